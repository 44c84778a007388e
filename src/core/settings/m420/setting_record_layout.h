#pragma once
// The packed setting record of the M420 camera family: field order, names and
// byte widths. This is the one place a width lives; offsets, record lengths,
// reading and writing are all derived from it.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace tarvik {

// X(field name, setter suffix, width in bytes), in record order. Widths 1, 2
// and 4 are little-endian integers; any other width is NUL-padded UTF-8 text.
#define TARVIK_M420_RECORD_FIELDS(X) \
    X(checksum, Checksum, 4) \
    X(cfg_struct_version, Cfg_struct_version, 4) \
    X(product_name, Product_name, 16) \
    X(serial_number, Serial_number, 16) \
    X(version, Version, 10) \
    X(reserved, Reserved, 2) \
    X(front_resolution, Front_resolution, 4) \
    X(front_framerate, Front_framerate, 4) \
    X(front_quality, Front_quality, 4) \
    X(front_brightness, Front_brightness, 4) \
    X(front_constrast, Front_constrast, 4) \
    X(front_shapness, Front_shapness, 4) \
    X(rear_resolution, Rear_resolution, 4) \
    X(rear_framerate, Rear_framerate, 4) \
    X(rear_quality, Rear_quality, 4) \
    X(rear_brightness, Rear_brightness, 4) \
    X(rear_contrast, Rear_contrast, 4) \
    X(rear_sharpness, Rear_sharpness, 4) \
    X(audio_record, Audio_record, 4) \
    X(audio_record_volume, Audio_record_volume, 4) \
    X(voice_ment, Voice_ment, 4) \
    X(audio_ment_volume, Audio_ment_volume, 4) \
    X(enable_driving_guide, Enable_driving_guide, 4) \
    X(acceleration_sensor, Acceleration_sensor, 4) \
    X(enable_av_out, Enable_av_out, 4) \
    X(av_out_mode, Av_out_mode, 4) \
    X(record_normal_overwrite, Record_normal_overwrite, 4) \
    X(record_cevent_overwrite, Record_cevent_overwrite, 4) \
    X(record_motion_overwrite, Record_motion_overwrite, 4) \
    X(record_prevent_overwrite, Record_prevent_overwrite, 4) \
    X(record_manual_overwrite, Record_manual_overwrite, 4) \
    X(parking_front_resolution, Parking_front_resolution, 4) \
    X(parking_front_framerate, Parking_front_framerate, 4) \
    X(parking_front_quality, Parking_front_quality, 4) \
    X(parking_rear_resolution, Parking_rear_resolution, 4) \
    X(parking_rear_framerate, Parking_rear_framerate, 4) \
    X(parking_rear_quality, Parking_rear_quality, 4) \
    X(parking_acceleration_sensor, Parking_acceleration_sensor, 4) \
    X(parking_mode_set, Parking_mode_set, 4) \
    X(parking_motion_set, Parking_motion_set, 4) \
    X(parking_front_motion_region, Parking_front_motion_region, 4) \
    X(parking_rear_motion_region, Parking_rear_motion_region, 4) \
    X(parking_motion_sensitivity, Parking_motion_sensitivity, 4) \
    X(parking_time_limit, Parking_time_limit, 4) \
    X(battery_12v_R_off, Battery_12v_R_off, 4) \
    X(battery_24v_R_off, Battery_24v_R_off, 4) \
    X(partition_type, Partition_type, 4) \
    X(security_led_mode, Security_led_mode, 4) \
    X(enable_format_sd, Enable_format_sd, 4) \
    X(driving_guide_version, Driving_guide_version, 4) \
    X(setting_path, Setting_path, 128) \
    X(micom_version, Micom_version, 16) \
    X(gmt_offset, Gmt_offset, 4) \
    X(daylight_offset, Daylight_offset, 4) \
    X(tz_key, Tz_key, 32) \
    X(date_format, Date_format, 4) \
    X(measurement_unit, Measurement_unit, 4) \
    X(lcd_brightness, Lcd_brightness, 4) \
    X(lcd_off_timer, Lcd_off_timer, 4) \
    X(cur_language, Cur_language, 4) \
    X(battery_auto_set, Battery_auto_set, 4) \
    X(wdr, Wdr, 4) \
    X(ldws_detect, Ldws_detect, 4) \
    X(ldws_offset_top, Ldws_offset_top, 4) \
    X(ldws_offset_bottom, Ldws_offset_bottom, 4) \
    X(ldws_depart_Sensitivity, Ldws_depart_Sensitivity, 4) \
    X(voice_detect, Voice_detect, 4) \
    X(local_id, Local_id, 4) \
    X(low_vol_shutdown, Low_vol_shutdown, 4) \
    X(adas_car_high, Adas_car_high, 4) \
    X(ldws_left_depart_Sensitivity, Ldws_left_depart_Sensitivity, 4) \
    X(ldws_right_depart_Sensitivity, Ldws_right_depart_Sensitivity, 4) \
    X(ldws_depart_speed, Ldws_depart_speed, 4) \
    X(fcws_onoff, Fcws_onoff, 4) \
    X(fcws_frontal_sensitivity, Fcws_frontal_sensitivity, 4) \
    X(fcmd_onoff, Fcmd_onoff, 4) \
    X(llws_onoff, Llws_onoff, 4) \
    X(ldws_onoff, Ldws_onoff, 4) \
    X(set_resolution, Set_resolution, 4) \
    X(parking_night_vision, Parking_night_vision, 4) \
    X(speed_stamp, Speed_stamp, 4) \
    X(rear_preview_rotation, Rear_preview_rotation, 4) \
    X(bsd_onoff, Bsd_onoff, 4) \
    X(gearR_video_on, GearR_video_on, 4) \
    X(ufcws_sensitivity, Ufcws_sensitivity, 4) \
    X(ufcws_onoff, Ufcws_onoff, 4) \
    X(drive_night_vision, Drive_night_vision, 4) \
    X(gsound_onoff, Gsound_onoff, 4) \
    X(audio_adas_volume, Audio_adas_volume, 4) \
    X(mobile_safety_cam_alert, Mobile_safety_cam_alert, 4) \
    X(rear_led_onoff, Rear_led_onoff, 4) \
    X(rear_camera_rotation, Rear_camera_rotation, 4) \
    X(use_only_front_cam, Use_only_front_cam, 4) \
    X(use_compatible_battery, Use_compatible_battery, 4) \
    X(greater_impact_alarm, Greater_impact_alarm, 4) \
    X(cloud_onoff, Cloud_onoff, 4) \
    X(iot_onoff, Iot_onoff, 1) \
    X(radar_onoff, Radar_onoff, 1) \
    X(event_file_upload, Event_file_upload, 1) \
    X(bsd_horizontal, Bsd_horizontal, 1) \
    X(front_camera_rotation, Front_camera_rotation, 1) \
    X(eis_onoff, Eis_onoff, 1) \
    X(side_brightness, Side_brightness, 1) \
    X(side_camera_rotation, Side_camera_rotation, 1) \
    X(liveview_display_division, Liveview_display_division, 1) \
    X(hdr, Hdr, 1) \
    X(parking_impact_alarm, Parking_impact_alarm, 1) \
    X(parking_event_file_upload, Parking_event_file_upload, 1) \
    X(wifi_frequency, Wifi_frequency, 1) \
    X(p2p_lora_onoff, P2p_lora_onoff, 1) \
    X(parking_greater_impact_alarm, Parking_greater_impact_alarm, 1) \
    X(record_sos_overwrite, Record_sos_overwrite, 1) \
    X(privacy_record, Privacy_record, 1) \
    X(tlds_onoff, Tlds_onoff, 1) \
    X(bcws_onoff, Bcws_onoff, 1) \
    X(avn_onoff, Avn_onoff, 1)

enum class M420Field : int {
#define TARVIK_M420_ENUM(name, setter, width) name,
    TARVIK_M420_RECORD_FIELDS(TARVIK_M420_ENUM)
#undef TARVIK_M420_ENUM
};

inline constexpr int kM420FieldCount = 116;

// 117 entries: the last (width 1) belongs to no field and is never reached,
// since no record holds more than 116 fields; it stays so the table keeps the
// camera tool's shape.
inline constexpr std::array<int, kM420FieldCount + 1> kM420FieldWidths = {
#define TARVIK_M420_WIDTH(name, setter, width) width,
    TARVIK_M420_RECORD_FIELDS(TARVIK_M420_WIDTH)
#undef TARVIK_M420_WIDTH
    1};

inline constexpr std::array<std::string_view, kM420FieldCount> kM420FieldNames = {
#define TARVIK_M420_NAME(name, setter, width) #name,
    TARVIK_M420_RECORD_FIELDS(TARVIK_M420_NAME)
#undef TARVIK_M420_NAME
};

constexpr bool isIntegerWidth(int width) { return width == 1 || width == 2 || width == 4; }

constexpr int fieldIndex(M420Field f) { return static_cast<int>(f); }
constexpr int fieldWidth(M420Field f) { return kM420FieldWidths[fieldIndex(f)]; }
constexpr bool isIntegerField(M420Field f) { return isIntegerWidth(fieldWidth(f)); }

// Byte offset of field i in the file: the sum of the widths before it.
constexpr int fieldOffset(int index) {
    int sum = 0;
    for (int i = 0; i < index && i <= kM420FieldCount; ++i) sum += kM420FieldWidths[i];
    return sum;
}

// Bytes taken by the first `count` fields.
constexpr int recordLength(int count) { return fieldOffset(count); }

// In memory every integer field is a signed 32-bit value whatever its width.
template <int Width>
using M420FieldValue = std::conditional_t<isIntegerWidth(Width), std::int32_t, std::string>;

// Looks a field up by its record name; false when there is no such field.
bool m420FieldFromName(std::string_view name, M420Field* out);

}  // namespace tarvik
