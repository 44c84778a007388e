#include "core/settings/m420/m420_pane_features.h"

#include <initializer_list>

#include "core/settings/m420/m420_model_types.h"

namespace tarvik::m420pane {

namespace {

using F = M420Field;
using C = Control;
using W = Widget;
using M = Mapping;

// Every control of the pane, in Control order.
constexpr std::array<ControlSpec, kControlCount> kControls = {{
    {C::FrontBrightness, Tab::Common, W::Slider, F::front_brightness, M::Reversed3, 2, 0, "commonFrontBrightnessSlider"},
    {C::AudioRecord, Tab::Common, W::Rows, F::audio_record, M::RowOn, 2, 0, "commonAudioRecordRadioGroup"},
    {C::VoiceMent, Tab::Common, W::Rows, F::voice_ment, M::RowOn, 2, 0, "commonVoiceMentRadioGroup"},
    {C::VoiceVolume, Tab::Common, W::Slider, F::audio_ment_volume, M::Value, 5, 0, "commonVoiceMentSlider"},
    {C::TimeZone, Tab::Common, W::Combo, F::gmt_offset, M::TimeZone, 39, 0, "commonGMTComboBox"},
    {C::Dst, Tab::Common, W::Rows, F::daylight_offset, M::RowOn, 2, 0, "commonDSTRadioGroup"},
    {C::SpeedUnit, Tab::Common, W::Rows, F::measurement_unit, M::RowMiles, 2, 0, "commonSpeedUnitRadioGroup"},
    {C::DrivingGuide, Tab::Common, W::Rows, F::enable_driving_guide, M::RowOn, 2, 0, "commonDrivingGuideRadioGroup"},
    {C::Language, Tab::Common, W::Combo, F::cur_language, M::Language, 0, 0, "commonLanguageComboBox"},
    {C::LcdBrightness, Tab::Common, W::Slider, F::lcd_brightness, M::Value, 2, 0, "commonLCDBrightnessSlider"},
    {C::ClockSetting, Tab::Common, W::Clock, F::checksum, M::None, 0, 0, "commonTimeSettingCheckBox"},

    {C::FrontResolution, Tab::Always, W::Columns, F::front_resolution, M::Columns, 3, 0, "alwaysRadioGroupFrontResolution"},
    {C::FrameRate, Tab::Always, W::Columns, F::front_framerate, M::Columns, 3, 0, "alwaysRadioGroupFrameRate"},
    {C::FrontQuality, Tab::Always, W::Columns, F::front_quality, M::Columns, 3, 0, "alwaysRadioGroupFrontQuality"},
    {C::RearResolution, Tab::Always, W::Columns, F::rear_resolution, M::Columns, 2, 0, "alwaysRadioGroupRearResolution"},
    {C::RearQuality, Tab::Always, W::Columns, F::rear_quality, M::Columns, 3, 0, "alwaysRadioGroupRearQuality"},
    {C::ShockSensitivity, Tab::Always, W::Slider, F::acceleration_sensor, M::Value, 10, 1, "alwaysShockSensitivitySlider"},
    {C::LdwsOnOff, Tab::Always, W::Rows, F::ldws_onoff, M::RowOn, 2, 0, "alwaysLDWSRadioGroup"},
    {C::LdwsSpeed, Tab::Always, W::Columns, F::ldws_depart_speed, M::Columns, 4, 0, "alwaysLDWSSpeedRadioGroup"},
    {C::FcwsOnOff, Tab::Always, W::Rows, F::fcws_onoff, M::RowOn, 2, 0, "alwaysFCWSRadioGroup"},
    {C::FcmdOnOff, Tab::Always, W::Rows, F::fcmd_onoff, M::RowOn, 2, 0, "alwaysFCMDRadioGroup"},

    {C::ParkingMode, Tab::Parking, W::Rows, F::parking_mode_set, M::ParkingMode, 2, 0, "parkingModeRadioGroup"},
    {C::ParkingFrontResolution, Tab::Parking, W::Columns, F::parking_front_resolution, M::Columns, 3, 0, "parkingFrontResolutionRadioGroup"},
    {C::ParkingFrameRate, Tab::Parking, W::Columns, F::parking_front_framerate, M::Columns, 3, 0, "parkingFrameRateRadioGroup"},
    {C::ParkingFrontQuality, Tab::Parking, W::Columns, F::parking_front_quality, M::Columns, 3, 0, "parkingFrontQualityRadioGroup"},
    {C::ParkingRearResolution, Tab::Parking, W::Columns, F::parking_rear_resolution, M::Columns, 2, 0, "parkingRearResolutionRadioGroup"},
    {C::ParkingRearQuality, Tab::Parking, W::Columns, F::parking_rear_quality, M::Columns, 3, 0, "parkingRearQualityRadioGroup"},
    {C::ParkingShock, Tab::Parking, W::Slider, F::parking_acceleration_sensor, M::Value, 10, 1, "parkingShockSensitivitySlider"},
    {C::ParkingMotion, Tab::Parking, W::Rows, F::parking_motion_set, M::RowOn, 2, 0, "parkingMotionRadioGroup"},
    {C::ParkingMotionSensitivity, Tab::Parking, W::Slider, F::parking_motion_sensitivity, M::MotionSensitivity, 3, 1, "parkingMotionSlider"},
    {C::ParkingTimeLimit, Tab::Parking, W::Slider, F::parking_time_limit, M::TimeLimit, 8, 1, "parkingTimeLimitSlider"},
    {C::Battery12V, Tab::Parking, W::Slider, F::battery_12v_R_off, M::Value, 10, 0, "parkingBatteryOff12VSlider"},
    {C::Battery24V, Tab::Parking, W::Slider, F::battery_24v_R_off, M::Value, 10, 0, "parkingBatteryOff24VSlider"},

    {C::OverwriteAlwaysShock, Tab::Etc, W::Check, F::record_cevent_overwrite, M::Check, 2, 0, "etcOverwriteAlwaysShockCheckBox"},
    {C::OverwriteParkingMotion, Tab::Etc, W::Check, F::record_motion_overwrite, M::Check, 2, 0, "etcOverwriteParkingMotionCheckBox"},
    {C::OverwriteParkingShock, Tab::Etc, W::Check, F::record_prevent_overwrite, M::Check, 2, 0, "etcOverwriteParkingShockCheckBox"},
    {C::OverwriteManual, Tab::Etc, W::Check, F::record_manual_overwrite, M::Check, 2, 0, "etcOverwriteManualCheckBox"},
    {C::SecurityLed, Tab::Etc, W::Columns, F::security_led_mode, M::SecurityLed, 4, 0, "etcSecurityLEDRadioGroup"},
    {C::Partition, Tab::Etc, W::Columns, F::partition_type, M::Columns, 3, 0, "etcMemoryPartitionRadioGroup"},
    {C::TouchCalibration, Tab::Etc, W::Button, F::checksum, M::None, 0, 0, "etcInitializeTouchButton"},
    {C::Format, Tab::Etc, W::Button, F::checksum, M::None, 0, 0, "etcMemoryCardFormatButton"},
}};

constexpr std::uint64_t bits(std::initializer_list<Control> cs) {
    std::uint64_t b = 0;
    for (Control c : cs) b |= std::uint64_t{1} << static_cast<int>(c);
    return b;
}

// What every model of the family has.
constexpr std::uint64_t kCore = bits({
    C::FrontBrightness, C::AudioRecord, C::VoiceMent, C::VoiceVolume, C::TimeZone, C::Dst, C::SpeedUnit,
    C::DrivingGuide, C::Language, C::ClockSetting, C::FrontResolution, C::FrontQuality, C::ShockSensitivity,
    C::ParkingMode, C::ParkingFrontResolution, C::ParkingFrameRate, C::ParkingFrontQuality, C::ParkingShock,
    C::ParkingMotion, C::ParkingMotionSensitivity, C::ParkingTimeLimit, C::Battery12V, C::Battery24V,
    C::OverwriteAlwaysShock, C::OverwriteParkingMotion, C::OverwriteParkingShock, C::OverwriteManual, C::Partition,
    C::Format});
constexpr std::uint64_t kRear = bits({C::RearResolution, C::RearQuality, C::ParkingRearResolution, C::ParkingRearQuality});
constexpr std::uint64_t kAdas = bits({C::LdwsOnOff, C::LdwsSpeed, C::FcwsOnOff, C::FcmdOnOff});
constexpr std::uint64_t kLcd = bits({C::LcdBrightness});
constexpr std::uint64_t kTouch = bits({C::TouchCalibration});
constexpr std::uint64_t kLed = bits({C::SecurityLed});
constexpr std::uint64_t kFrameRate = bits({C::FrameRate});

struct GroupRow {
    ModelGroup group;
    const char* name;
    std::uint64_t controls;
    bool timeLimitWith36Hours;
    int shockMaximum;
    const char* productName;
};

// The one table of which model group shows what. The K310 records no rear
// camera; the models with a 5-step frame-rate code keep it fixed; the ones
// with a screen have its brightness, the touch screens their calibration.
constexpr std::array<GroupRow, 7> kGroups = {{
    {ModelGroup::K310, "K310", kCore | kFrameRate, false, 10, "K310"},
    {ModelGroup::M420, "M420", kCore | kFrameRate | kRear | kLed, false, 10, "M420"},
    {ModelGroup::Q610, "Q610", kCore | kRear | kLed, false, 10, "Q610"},
    {ModelGroup::Q810, "Q810", kCore | kRear | kLed | kAdas | kLcd | kTouch, false, 5, nullptr},
    {ModelGroup::M640, "M640", kCore | kRear | kLed | kAdas | kLcd, true, 5, nullptr},
    {ModelGroup::Q650, "Q650", kCore | kRear | kLed | kAdas | kLcd | kTouch, true, 5, nullptr},
    {ModelGroup::M60, "M60", kCore | kRear | kLed | kAdas | kLcd, true, 5, nullptr},
}};

const GroupRow* groupRow(ModelGroup g) {
    for (const auto& r : kGroups)
        if (r.group == g) return &r;
    return nullptr;
}

constexpr std::array<int, 8> k36o = {1, 2, 4, 6, 12, 24, 36, 48};
constexpr std::array<int, 7> k36x = {1, 2, 4, 6, 12, 24, 48};

}  // namespace

const ControlSpec& controlSpec(Control c) { return kControls[static_cast<std::size_t>(c)]; }

ModelGroup modelGroup(std::int64_t t) {
    using namespace m420model;
    switch (t) {
    case K310: return ModelGroup::K310;
    case M420: return ModelGroup::M420;
    case Q610: return ModelGroup::Q610;
    case Q810: case Q810UK: case Q850: return ModelGroup::Q810;
    case M640: case M670: case MB600: return ModelGroup::M640;
    case Q630: case Q650: case QV20: return ModelGroup::Q650;
    case M60: case MB20: case M120: case MV20: case RQ_T4_ZN: return ModelGroup::M60;
    default: return ModelGroup::None;
    }
}

std::string_view modelGroupName(ModelGroup g) {
    const GroupRow* r = groupRow(g);
    return r ? r->name : "";
}

int PaneFeatures::sliderMaximum(Control c) const {
    if (c == C::ShockSensitivity || c == C::ParkingShock) return shockMaximum;
    if (c == C::ParkingTimeLimit) return timeLimitWith36Hours ? 8 : 7;
    return controlSpec(c).positions;
}

int PaneFeatures::sliderMinimum(Control c) const { return controlSpec(c).minimum; }

PaneFeatures paneFeatures(std::int64_t modelType, int recordFieldCount) {
    PaneFeatures f;
    f.group = modelGroup(modelType);
    const GroupRow* r = groupRow(f.group);
    if (!r) return f;  // web and KRT models: the pane changes nothing
    f.timeLimitWith36Hours = r->timeLimitWith36Hours;
    f.shockMaximum = r->shockMaximum;
    f.productName = r->productName;
    using namespace m420model;
    f.parkingTimeLapse = modelType == Q850 || modelType == M670 || modelType == MB600;
    for (const auto& s : kControls) {
        const bool listed = (r->controls >> static_cast<int>(s.id)) & 1u;
        const bool carried = s.mapping == M::None || fieldIndex(s.field) < recordFieldCount;
        f.shown[static_cast<std::size_t>(s.id)] = listed && carried;
    }
    return f;
}

std::optional<int> timeLimitHours(bool with36Hours, int step) {
    const int n = with36Hours ? static_cast<int>(k36o.size()) : static_cast<int>(k36x.size());
    if (step < 1 || step > n) return std::nullopt;
    return with36Hours ? k36o[step - 1] : k36x[step - 1];
}

std::optional<int> timeLimitStep(bool with36Hours, int hours) {
    for (int step = 1; step <= 8; ++step)
        if (timeLimitHours(with36Hours, step) == hours) return step;
    return std::nullopt;
}

std::array<double, 5> partitionShares(std::int64_t t, int column) {
    using namespace m420model;
    static constexpr std::array<std::array<double, 5>, 3> kWide = {{
        {62, 20, 5, 3, 10}, {37, 15, 5, 3, 40}, {55, 15, 15, 5, 10}}};
    static constexpr std::array<std::array<double, 5>, 3> kTimeLapse = {{
        {60.6, 20, 5, 3, 10}, {36.3, 15, 5, 3, 40}, {53.6, 15, 15, 5, 10}}};
    static constexpr std::array<std::array<double, 5>, 3> kOther = {{
        {61, 20, 3, 5, 10}, {36, 15, 3, 5, 40}, {54, 15, 5, 15, 10}}};
    if (column < 0 || column > 2) return {};
    switch (t) {
    case Q630: case Q650: case M60: case MB20: case M120: case QV20: case RQ_T4_ZN:
        return kWide[static_cast<std::size_t>(column)];
    case Q810: case Q810UK: case Q850: case M670: case MB600:
        return kTimeLapse[static_cast<std::size_t>(column)];
    default:
        return kOther[static_cast<std::size_t>(column)];
    }
}

std::optional<std::array<const char*, 4>> ldwsSpeedLabels(std::int64_t t, bool miles) {
    using namespace m420model;
    switch (t) {
    case Q810: case Q810UK: case M640: case Q630: case Q650: case Q850: case M670: case M60: case MB20:
    case M120: case QV20: case MV20: case MB600: case RQ_T4_ZN:
        if (miles) return std::array<const char*, 4>{"30mph", "40mph", "50mph", "65mph"};
        return std::array<const char*, 4>{"50km", "60km", "80km", "100km"};
    default:
        return std::nullopt;
    }
}

}  // namespace tarvik::m420pane
