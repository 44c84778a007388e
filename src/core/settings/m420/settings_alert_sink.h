#pragma once
// When a settings file cannot be written to the card the user must be told;
// the core only knows the message keys, the interface layer shows them (through
// its localisation table) as a modal alert. Without a sink a failure is silent.

#include <string>

namespace tarvik {

inline constexpr const char* kMemoryCardErrorTitleKey = "메모리카드 오류";
inline constexpr const char* kMemoryCardErrorMessageKey = "메모리카드를 확인하여 주시기 바랍니다.";
inline constexpr const char* kMemoryCardErrorButton = "OK";

class SettingsAlertSink {
public:
    virtual ~SettingsAlertSink() = default;
    // The three texts are localisation keys (the button title "OK" included);
    // the sink translates them and blocks until the user has dismissed the alert.
    virtual void showSettingsAlert(const std::string& titleKey, const std::string& messageKey,
                                   const std::string& buttonKey) = 0;
};

// The process-wide sink, shared by every settings manager; nullptr for none.
// The caller keeps ownership and must clear it before destroying the sink.
void setSettingsAlertSink(SettingsAlertSink* sink);
SettingsAlertSink* settingsAlertSink();

// Raises the memory-card alert on the current sink, if any.
void raiseMemoryCardAlert();

}  // namespace tarvik
