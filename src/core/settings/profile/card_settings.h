#pragma once
// One card's camera and settings as the settings file holds them, read without
// writing anything: the command line shows, edits and copies settings from
// this, and refuses to touch a card whose file could not be read whole.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/settings/m420/m420_setting_manager.h"

namespace tarvik {

enum class SettingsFamily { M420, Krt };

struct SettingValue {
    std::string name;
    std::string value;
    bool numeric = false;
    // Product name, firmware and the like: shown, never copied or set.
    bool identity = false;
};

struct CardSettings {
    std::string root;
    SettingsFamily family = SettingsFamily::M420;
    std::int64_t modelType = -1;
    std::string modelName;
    std::string firmware;
    std::int32_t firmwareNumber = 0;
    std::int64_t region = -1;
    LanguageList languages;
    std::vector<SettingValue> fields;
    std::string file;   // the settings file the fields come from
    std::string bytes;  // that file, whole, as it was read
    // M420 family: how many record fields the card's model carries.
    int recordFieldCount = 0;

    const SettingValue* find(const std::string& name) const;
};

// Nothing (and *error says why) for an unknown camera, a missing settings
// file, or one shorter than the model's record.
std::optional<CardSettings> readCardSettings(const std::string& root, std::string* error);

}  // namespace tarvik
