#pragma once
// Shows the card's write failures to the user: a modal alert over the main
// window with the texts of the current language.

#include <QPointer>
#include <QWidget>

#include "core/settings/m420/settings_alert_sink.h"

namespace tarvik {

class SettingsAlertBox : public SettingsAlertSink {
public:
    explicit SettingsAlertBox(QWidget* window) : window_(window) { setSettingsAlertSink(this); }
    ~SettingsAlertBox() override {
        if (settingsAlertSink() == this) setSettingsAlertSink(nullptr);
    }

    void showSettingsAlert(const std::string& titleKey, const std::string& messageKey,
                           const std::string& buttonKey) override;

private:
    QPointer<QWidget> window_;
};

}  // namespace tarvik
