// Factory settings of the five oldest models. A loader writes only the fields
// it knows; the rest of the record keeps its values.

#include <array>
#include <initializer_list>

#include "core/settings/m420/m420_setting_manager.h"

namespace tarvik {

namespace {

using F = M420Field;

// Consecutive integer fields starting at `first`.
void setRun(M420SettingManager& m, F first, std::initializer_list<int> values) {
    int i = fieldIndex(first);
    for (int v : values) m.setIntValue(static_cast<F>(i++), v);
}

struct BaseDefaults {
    int checksum;
    int structVersion;
    const char* product;
    const char* serial;
    // front_resolution .. driving_guide_version, 44 fields in record order.
    std::array<int, 44> block;
    const char* settingPath;
    int gmtOffset, daylightOffset;
    const char* tzKey;
    // date_format, measurement_unit, lcd_brightness, lcd_off_timer, cur_language
    std::array<int, 5> display;
};

void applyBase(M420SettingManager& m, const BaseDefaults& d) {
    m.setChecksum(d.checksum);
    m.setCfg_struct_version(d.structVersion);
    m.setProduct_name(d.product);
    m.setSerial_number(d.serial);
    m.setVersion("");
    m.setReserved(0);
    for (int i = 0; i < 44; ++i) m.setIntValue(static_cast<F>(fieldIndex(F::front_resolution) + i), d.block[i]);
    m.setSetting_path(d.settingPath);
    m.setMicom_version("");
    m.setGmt_offset(d.gmtOffset);
    m.setDaylight_offset(d.daylightOffset);
    m.setTz_key(d.tzKey);
    for (int i = 0; i < 5; ++i) m.setIntValue(static_cast<F>(fieldIndex(F::date_format) + i), d.display[i]);
}

}  // namespace

void M420SettingManager::loadDefaultDataForK310() {
    // The misspelt time zone is what K310 cameras ship with.
    applyBase(*this, {432, 65541, "K310", "",
                      {2, 3, 3, 1, 0, 0, /*rear*/ 0, 0, 0, 0, 0, 0, /*audio*/ 1, 0, 1, 3, /*guide*/ 0, 7, 0, 0,
                       1, 1, 1, 1, 1, /*parking*/ 2, 3, 3, 0, 0, 0, 7, 0, 1, 4095, 4095, 2, 48, 6, 6, 1, 0, 0, 0},
                      "SETTING/K310_Setting.exe", -480, 1, "Parcific Standard Time", {0, 0, 0, 0, 0}});
}

void M420SettingManager::loadDefaultDataForM420() {
    applyBase(*this, {432, 65541, "M420", "",
                      {3, 3, 3, 0, 0, 0, /*rear*/ 2, 3, 3, 0, 0, 0, /*audio*/ 1, 3, 1, 3, /*guide*/ 1, 6, 0, 4,
                       1, 1, 1, 1, 1, /*parking*/ 3, 2, 3, 2, 2, 3, 7, 0, 1, 4095, 4095, 3, 48, 6, 6, 1, 0, 0, 0},
                      "SETTING/M420_Setting.exe", -480, 1, "Pacific Standard Time", {0, 0, 0, 0, 0}});
}

void M420SettingManager::loadDefaultDataForQ610() {
    applyBase(*this, {432, 65541, "Q610", "",
                      {3, 5, 3, 0, 0, 0, /*rear*/ 2, 3, 3, 0, 0, 0, /*audio*/ 1, 3, 1, 3, /*guide*/ 0, 6, 1, 4,
                       1, 1, 1, 1, 1, /*parking*/ 3, 2, 3, 2, 2, 3, 7, 0, 1, 4095, 4095, 2, 48, 6, 6, 1, 0, 0, 0},
                      "SETTING/Q610_Setting.exe", -480, 1, "Pacific Standard Time", {0, 0, 0, 0, 0}});
}

void M420SettingManager::loadDefaultDataForQ810() {
    // Q810 firmware expects the model name in the serial number too, and its
    // own setting path with a backslash.
    applyBase(*this, {464, 65545, "Q810", "Q810",
                      {3, 5, 3, 1, 0, 0, /*rear*/ 3, 5, 3, 1, 0, 0, /*audio*/ 1, 3, 1, 2, /*guide*/ 1, 2, 1, 4,
                       1, 1, 1, 1, 1, /*parking*/ 2, 2, 3, 2, 2, 3, 3, 0, 1, 4095, 4095, 3, 48, 6, 6, 1, 0, 0, 0},
                      "SETTING\\Q810_Setting.exe", -480, 1, "Pacific Standard Time", {0, 0, 1, 30000, 0}});
    setRun(*this, F::battery_auto_set, {0, 1, 0, 114, 218, 2, 1, /*local_id*/ 0});
    if (localID_ == 3) {  // United Kingdom
        setLocal_id(3);
        setGmt_offset(0);
        setDaylight_offset(0);
        setTz_key("GMT Standard Time");
        setMeasurement_unit(1);
    }
}

void M420SettingManager::loadDefaultDataForM640() {
    applyBase(*this, {508, 65555, "M640", "",
                      {3, 5, 3, 1, 0, 0, /*rear*/ 3, 5, 1, 1, 0, 0, /*audio*/ 1, 3, 1, 2, /*guide*/ 1, 2, 1, 4,
                       1, 1, 1, 1, 1, /*parking*/ 3, 2, 3, 3, 2, 3, 3, 0, 1, 4095, 4095, 3, 48, 6, 6, 1, 0, 0,
                       218303744},
                      "SETTING/M640_Setting.exe", -480, 0, "Pacific Standard Time", {0, 1, 1, 30000, 0}});
    setRun(*this, F::battery_auto_set,
           {0, 1, 1, 114, 218, 2, 0, /*local_id*/ 1, /*low_vol_shutdown..*/ 1, 0, 2, 2, 2,
            /*fcws_onoff..set_resolution*/ 1, 2, 0, 0, 1, 0});
}

void M420SettingManager::loadDefaultValue() {
    switch (modelType_) {
    case 0: loadDefaultDataForK310(); break;
    case 1: loadDefaultDataForM420(); break;
    case 2: loadDefaultDataForQ610(); break;
    case 3:
    case 4: loadDefaultDataForQ810(); break;
    case 5: loadDefaultDataForM640(); break;
    default: break;
    }
}

}  // namespace tarvik
