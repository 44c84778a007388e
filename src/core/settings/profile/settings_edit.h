#pragma once
// Changing settings on a card: every assignment is checked first, then the
// new file is written in one atomic step, or nothing is written at all.

#include <optional>
#include <string>
#include <vector>

#include "core/settings/profile/card_settings.h"

namespace tarvik {

// What the value was written as: a profile says (a JSON number or text), a
// command line does not.
enum class ValueKind { Any, Number, Text };

struct SettingAssignment {
    std::string name;
    std::string value;
    ValueKind given = ValueKind::Any;
};

struct SettingChange {
    std::string name;
    std::string from;
    std::string to;
};

struct SettingsEdit {
    std::vector<SettingChange> changes;  // only the values that differ
    std::string newBytes;                // the whole new file
};

// Nothing (with *error) when any assignment is refused.
std::optional<SettingsEdit> planSettingsEdit(const CardSettings& card, const std::vector<SettingAssignment>& set,
                                             std::string* error);

// Writes the planned file, unless the card's file changed since it was read.
// No changes, no write. False with *error when nothing could be written.
bool commitSettingsEdit(const CardSettings& card, const SettingsEdit& edit, std::string* error);

}  // namespace tarvik
