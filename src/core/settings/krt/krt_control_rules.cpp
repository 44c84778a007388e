#include "core/settings/krt/krt_control_rules.h"

#include <cstdio>

#include "core/settings/krt/krt_setting_manager.h"
#include "core/settings/m420/record_text.h"
#include "core/settings/m420/settings_alert_sink.h"

namespace tarvik::krtrules {

namespace {

int integer(const std::string& value) { return static_cast<int>(recordtext::leadingInteger(value)); }

// Rows of an on/off group: row 0 is on.
int onRowWhen(bool on) { return on ? 0 : 1; }

// Time-zone item for the whole hours of the stored offset, -10 .. 10. The
// camera stores only these zones; an hour it does not list (and a half hour's
// whole part, 9 for Adelaide's 9.5) falls back as the camera does.
int timeZoneItemForHours(int hours) {
    constexpr int kPacific = 2;
    static constexpr int kItems[21] = {0,        1,        2,        3,        4,        5,        6,
                                       kPacific, kPacific, kPacific, 7,        8,        kPacific, kPacific,
                                       kPacific, kPacific, kPacific, kPacific, 9,        10,       11};
    const long at = static_cast<long>(hours) + 10;
    return at >= 0 && at < 21 ? kItems[at] : kPacific;
}

int sliderRead(KrtControl c, int v) {
    for (int step : sliderSteps(c))
        if (v == step) return v;
    return 3;
}

}  // namespace

const char* keyFor(KrtControl control) {
    switch (control) {
    case KrtControl::ParkMode: return "park_mode=";
    case KrtControl::PowerOffVoltage: return "power_off_vlt=";
    case KrtControl::TimeZone: return "local_time=";
    case KrtControl::SummerTime: return "summer_time=";
    case KrtControl::SpeedUnit: return "osd_speed=";
    case KrtControl::SoundRecording: return "mic_in=";
    case KrtControl::VoiceGuidance: return "voice_out=";
    case KrtControl::VoiceVolume: return "voice_volume=";
    case KrtControl::ImpactSensitivity: return "acc_level=";
    case KrtControl::MotionSensitivity: return "motion_level=";
    case KrtControl::Language: return "language=";
    case KrtControl::SecurityLed: return "front_led=";
    }
    return "";
}

int readIndex(KrtControl control, const std::string& value) {
    const int v = integer(value);
    switch (control) {
    case KrtControl::ParkMode:
    case KrtControl::SummerTime:
    case KrtControl::SecurityLed: return onRowWhen(v == 1);
    case KrtControl::SoundRecording: return onRowWhen(v != 0);
    case KrtControl::VoiceGuidance: return onRowWhen(v != 0);
    case KrtControl::SpeedUnit: return v == 2 ? 1 : 0;
    case KrtControl::PowerOffVoltage:
        switch (v / 100) {  // millivolts to tenths of a volt: 11850 is still 11.8 V
        case 0: return 0;
        case 118: return 1;
        case 122: return 3;
        default: return 2;
        }
    case KrtControl::TimeZone: return timeZoneItemForHours(v);
    case KrtControl::VoiceVolume:
    case KrtControl::ImpactSensitivity:
    case KrtControl::MotionSensitivity: return sliderRead(control, v);
    case KrtControl::Language: return value == "fr" ? 1 : 0;
    }
    return 0;
}

std::string writeValue(KrtControl control, int index) {
    switch (control) {
    case KrtControl::ParkMode:
    case KrtControl::SummerTime:
    case KrtControl::SoundRecording:
    case KrtControl::VoiceGuidance:
    case KrtControl::SecurityLed: return index == 0 ? "1" : "0";
    case KrtControl::SpeedUnit: return index == 1 ? "2" : "1";
    case KrtControl::PowerOffVoltage:
        switch (index) {
        case 0: return "0";
        case 1: return "11800";
        case 3: return "12200";
        default: return "12000";
        }
    case KrtControl::TimeZone: {
        char text[32];
        std::snprintf(text, sizeof text, "%f", timeZoneOffset(index));
        return text;
    }
    case KrtControl::VoiceVolume:
    case KrtControl::ImpactSensitivity:
    case KrtControl::MotionSensitivity: return std::to_string(index);
    case KrtControl::Language: return index == 1 ? "fr" : "us";
    }
    return {};
}

int readControl(const KRTSettingManager& settings, KrtControl control) {
    return readIndex(control, settings.valueForKey(keyFor(control)).value_or(""));
}

bool writeControl(KRTSettingManager& settings, KrtControl control, int index) {
    return settings.setValueForKey(keyFor(control), writeValue(control, index));
}

const std::vector<std::string>& timeZoneKeys() {
    // Texts as the camera's lists name them: the double blank and "Sidney"
    // are part of the keys.
    static const std::vector<std::string> keys = {
        "(UTC-10:00) Hawaii",
        "(UTC-09:00) Alaska",
        "(UTC-08:00) Pacific Standard Time (U.S.A and Canada)",
        "(UTC-07:00) Mountain Standard Time (U.S.A and Canada)",
        "(UTC-06:00) Central Standard Time (U.S.A and Canada)",
        "(UTC-05:00) Eastern Standard Time (U.S.A and Canada)",
        "(UTC-04:00) Atlantic  Standard Time (Canada)",
        "(UTC) Greenwich",
        "(UTC+01:00) Brussels, Copenhagen, Madrid, Paris",
        "(UTC+08:00) Kuala Lumpur, Singapore",
        "(UTC+09:30) Adelaide",
        "(UTC+10:00) Canberra, Melbourne, Sidney",
    };
    return keys;
}

double timeZoneOffset(int item) {
    static constexpr double kOffsets[kTimeZoneCount] = {-10, -9, -8, -7, -6, -5, -4, 0, 1, 8, 9.5, 10};
    return item >= 0 && item < kTimeZoneCount ? kOffsets[item] : -8;
}

int memoryPartitionColumn(const KRTSettingManager& settings) {
    const int preset = settings.currentMemoryPartitionPreset();
    return preset < 0 ? 0 : preset;
}

std::array<int, 4> memoryPartitionPercents(const KRTSettingManager& settings) {
    return {settings.intValueForKey("const="), settings.intValueForKey("event="), settings.intValueForKey("park="),
            settings.intValueForKey("manual=")};
}

std::array<int, 3> sliderSteps(KrtControl slider) {
    if (slider == KrtControl::ImpactSensitivity) return {2, 3, 4};
    return {1, 3, 5};
}

bool setClockEnabled(KRTSettingManager& settings, bool on) {
    auto& lines = settings.linedSettings();
    if (lines.empty()) return false;
    // Without a "set=" line the first line of the file takes it: the camera
    // reads the clock switch wherever the first line is.
    const int at = settings.indexOfLineWithPrefix("set=");
    lines[static_cast<std::size_t>(at < 0 ? 0 : at)] = on ? "set=1" : "set=0";
    return true;
}

bool commitSettings(KRTSettingManager& settings, const ClockDate* clock) {
    if (settings.linedSettings().empty()) {
        raiseMemoryCardAlert();
        return false;
    }
    if (clock) {
        settings.removeTimeDateDelimiters();
        settings.addTimeDateDelimiters(KRTSettingManager::clockLines(clock->year, clock->month, clock->day,
                                                                     clock->hour, clock->minute, clock->second));
    }
    return settings.saveData();
}

}  // namespace tarvik::krtrules
