#include "core/telemetry/krt_clip_name.h"

namespace tarvik {

bool isKrtClipName(std::string_view fileName) {
    if (!fileName.ends_with(".avi")) return false;
    for (std::string_view prefix : {"Rec_", "Event_", "Park_", "Manual_"})
        if (fileName.starts_with(prefix)) return true;
    return false;
}

}  // namespace tarvik
