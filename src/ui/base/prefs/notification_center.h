#pragma once
// Application-wide announcements between subsystems: any open view can
// relabel or redraw itself when the viewer's language or speed unit changes.

#include <QObject>

namespace tarvik {

class NotificationCenter : public QObject {
    Q_OBJECT
public:
    static NotificationCenter& shared();

    void postRefreshLanguage() { emit refreshLanguage(); }
    void postRefreshSpeedUnit() { emit refreshSpeedUnit(); }

signals:
    void refreshLanguage();   // "RefreshLanguageNotification"
    void refreshSpeedUnit();  // "RefreshSpeedUnitNotification"
};

}  // namespace tarvik
