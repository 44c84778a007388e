#pragma once
// What a value may be, field by field. A value is checked, and brought to the
// camera's own spelling, before anything is written.

#include <optional>
#include <string>

#include "core/settings/profile/card_settings.h"

namespace tarvik {

// Fields that say which camera this is (or set its clock) rather than how it
// records: never exported, copied or set.
bool isIdentitySetting(SettingsFamily family, const std::string& name);

// The value as it goes into the file, or nothing with *error saying why: an
// unknown name, a number out of the field's range, a text too long for it.
std::optional<std::string> checkSettingValue(const CardSettings& card, const std::string& name,
                                             const std::string& value, std::string* error);

}  // namespace tarvik
