#include "ui/base/prefs/notification_center.h"

namespace tarvik {

NotificationCenter& NotificationCenter::shared() {
    static NotificationCenter center;
    return center;
}

}  // namespace tarvik
