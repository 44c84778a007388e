#include "core/settings/m420/settings_alert_sink.h"

namespace tarvik {

namespace {
SettingsAlertSink* g_sink = nullptr;
}

void setSettingsAlertSink(SettingsAlertSink* sink) { g_sink = sink; }
SettingsAlertSink* settingsAlertSink() { return g_sink; }

void raiseMemoryCardAlert() {
    if (g_sink) g_sink->showSettingsAlert(kMemoryCardErrorTitleKey, kMemoryCardErrorMessageKey, kMemoryCardErrorButton);
}

}  // namespace tarvik
