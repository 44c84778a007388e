#pragma once
// How each control of the KRT pane reads its line of blackbox.cfg and what it
// writes back. The pane holds no copy of the settings: every control shows an
// index (radio row or column, combo item, slider value) derived from the
// line, and every change writes one line through the manager's line update.

#include <array>
#include <string>
#include <vector>

namespace tarvik {

class KRTSettingManager;

enum class KrtControl {
    ParkMode,         // radio rows: 0 on, 1 off
    PowerOffVoltage,  // radio columns: 0 off, 11.8 V, 12.0 V, 12.2 V
    TimeZone,         // combo item 0..11
    SummerTime,       // radio rows: 0 on, 1 off
    SpeedUnit,        // radio rows: 0 kph, 1 mph
    SoundRecording,   // radio rows: 0 on, 1 off
    VoiceGuidance,    // radio rows: 0 on, 1 off
    VoiceVolume,      // slider value
    ImpactSensitivity,
    MotionSensitivity,
    Language,         // radio rows: 0 English, 1 French
    SecurityLed,      // radio rows: 0 on, 1 off
};

namespace krtrules {

inline constexpr int kTimeZoneCount = 12;

// The line's key, "park_mode=" and so on.
const char* keyFor(KrtControl control);

// The index a control shows for the text after its key; a missing line reads
// as an empty text, which is the integer 0.
int readIndex(KrtControl control, const std::string& value);
// The text written for an index.
std::string writeValue(KrtControl control, int index);

// Through the manager's lines.
int readControl(const KRTSettingManager& settings, KrtControl control);
bool writeControl(KRTSettingManager& settings, KrtControl control, int index);

// Time-zone items: their localisation keys (which are also the English
// texts) and the hours each writes.
const std::vector<std::string>& timeZoneKeys();
double timeZoneOffset(int item);

// The partition radio column for the four lines: the preset they equal, else 0.
int memoryPartitionColumn(const KRTSettingManager& settings);
// Continuous, event, park and manual percentages as stored, preset or not.
std::array<int, 4> memoryPartitionPercents(const KRTSettingManager& settings);
// Three values each slider offers, low to high.
std::array<int, 3> sliderSteps(KrtControl slider);

// The clock check box: the first "set=" line (the file's first line when there
// is none) becomes set=1 or set=0. False when there is no line at all.
bool setClockEnabled(KRTSettingManager& settings, bool on);

struct ClockDate {
    int year, month, day, hour, minute, second;
};
// OK: with a date, the clock lines are replaced by that date's; then the
// lines are saved. A list that holds nothing (the card's file could not be
// read) is never written: that would empty the camera's file. The alert is
// raised instead. True when the card was written.
bool commitSettings(KRTSettingManager& settings, const ClockDate* clock);

}  // namespace krtrules
}  // namespace tarvik
