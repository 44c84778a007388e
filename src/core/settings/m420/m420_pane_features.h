#pragma once
// What the M420-family settings pane offers for each camera model: its
// controls, which record field each one edits and how positions map to
// values, and the one table saying which model group shows which control.
// A control is shown only when its group lists it AND the card's record is
// long enough to carry its field, so a firmware with a shorter record loses
// the controls of the fields it lacks without a rule of its own.

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/settings/m420/setting_record_layout.h"

namespace tarvik::m420pane {

enum class Tab { Common, Always, Parking, Etc };

enum class Control : int {
    // common
    FrontBrightness, AudioRecord, VoiceMent, VoiceVolume, TimeZone, Dst, SpeedUnit, DrivingGuide, Language,
    LcdBrightness, ClockSetting,
    // continuous recording
    FrontResolution, FrameRate, FrontQuality, RearResolution, RearQuality, ShockSensitivity, LdwsOnOff, LdwsSpeed,
    FcwsOnOff, FcmdOnOff,
    // parking
    ParkingMode, ParkingFrontResolution, ParkingFrameRate, ParkingFrontQuality, ParkingRearResolution,
    ParkingRearQuality, ParkingShock, ParkingMotion, ParkingMotionSensitivity, ParkingTimeLimit, Battery12V,
    Battery24V,
    // the rest
    OverwriteAlwaysShock, OverwriteParkingMotion, OverwriteParkingShock, OverwriteManual, SecurityLed, Partition,
    TouchCalibration, Format,
    Count
};
inline constexpr int kControlCount = static_cast<int>(Control::Count);

enum class Widget { Slider, Rows, Columns, Check, Combo, Button, Clock };

// How a position becomes a record value (the pane's apply is the inverse).
enum class Mapping {
    Value,              // slider value as is
    Reversed3,          // 0,1,2 -> 2,1,0
    Columns,            // column i -> i + 1
    RowOn,              // row 0 -> 1, row 1 -> 0
    RowMiles,           // row 1 -> 1, row 0 -> 0
    Check,              // checked -> 1
    MotionSensitivity,  // 1,2,3 -> 1,3,5; any other position -> 3
    TimeLimit,          // hours per slider step; the step table depends on the model
    SecurityLed,        // column 0,1,2,3 -> 1,2,3,0
    ParkingMode,        // two rows (on/off) or, with time-lapse, three rows (motion/time-lapse/off)
    TimeZone,           // index into the time-zone lists
    Language,           // index into the card's language list
    None,               // buttons and the clock: no record field
};

struct ControlSpec {
    Control id;
    Tab tab;
    Widget widget;
    M420Field field;  // meaningless for Mapping::None
    Mapping mapping;
    int positions;    // columns, rows or the slider's maximum
    int minimum;      // the slider's minimum (0 otherwise)
    const char* name; // the control's name in the pane, e.g. "commonFrontBrightnessSlider"
};

const ControlSpec& controlSpec(Control c);

enum class ModelGroup { None, K310, M420, Q610, Q810, M640, Q650, M60 };
ModelGroup modelGroup(std::int64_t modelType);
std::string_view modelGroupName(ModelGroup g);

// The pane's shape for one model type and record length (fields carried).
struct PaneFeatures {
    ModelGroup group = ModelGroup::None;
    std::array<bool, kControlCount> shown{};
    int sliderMaximum(Control c) const;  // the group's range where it differs
    int sliderMinimum(Control c) const;
    bool timeLimitWith36Hours = false;   // parkingTimeLimitSlider_36o rather than _36x
    bool parkingTimeLapse = false;       // the parking mode's middle row is time-lapse
    int shockMaximum = 10;
    const char* productName = nullptr;   // what the save writes into product_name; null keeps the card's
    bool isShown(Control c) const { return shown[static_cast<int>(c)]; }
};
PaneFeatures paneFeatures(std::int64_t modelType, int recordFieldCount);

// Hours per step of the parking time-limit slider (steps count from 1).
std::optional<int> timeLimitHours(bool with36Hours, int step);
std::optional<int> timeLimitStep(bool with36Hours, int hours);

// The memory partition's five shares in percent (continuous, continuous
// impact, parking motion, parking impact, manual); zeros for a column not 0..2.
std::array<double, 5> partitionShares(std::int64_t modelType, int column);

// The four lane-departure speed labels for the unit (miles or not), or
// nothing for models that keep their labels.
std::optional<std::array<const char*, 4>> ldwsSpeedLabels(std::int64_t modelType, bool miles);

}  // namespace tarvik::m420pane
