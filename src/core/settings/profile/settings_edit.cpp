#include "core/settings/profile/settings_edit.h"

#include "core/settings/m420/setting_record_layout.h"
#include "core/settings/profile/setting_rules.h"
#include "core/util/atomic_file.h"

namespace tarvik {

namespace {

// Only the field's own bytes change; whatever else the file holds (bytes past
// the record, padding after a text) stays as the camera wrote it.
void patchRecord(std::string& bytes, const std::string& name, const std::string& value) {
    M420Field f{};
    m420FieldFromName(name, &f);
    const auto at = static_cast<std::size_t>(fieldOffset(fieldIndex(f)));
    const auto width = static_cast<std::size_t>(fieldWidth(f));
    if (isIntegerField(f)) {
        const auto v = static_cast<std::uint32_t>(std::stoll(value));
        for (std::size_t k = 0; k < width; ++k) bytes[at + k] = static_cast<char>(v >> (8 * k));
    } else {
        for (std::size_t k = 0; k < width; ++k) bytes[at + k] = k < value.size() ? value[k] : '\0';
    }
}

// The value of the first line beginning with name=, found the way the camera
// splits the file ("\r\n" between lines, blanks and tabs trimmed at both ends
// of the whole text), so that only that value's bytes are replaced.
void patchLines(std::string& bytes, const std::string& name, const std::string& value) {
    const std::string key = name + "=";
    std::size_t begin = bytes.find_first_not_of(" \t");
    std::size_t end = bytes.find_last_not_of(" \t");
    if (begin == std::string::npos) return;
    ++end;
    for (std::size_t s = begin; s < end;) {
        std::size_t e = bytes.find("\r\n", s);
        if (e == std::string::npos || e > end) e = end;
        if (bytes.compare(s, key.size(), key) == 0 && s + key.size() <= e) {
            bytes.replace(s + key.size(), e - s - key.size(), value);
            return;
        }
        s = e + 2;
    }
}

// A profile's number for a text field (or text for a number field) is a
// profile for another layout, even when the text reads as a number.
bool kindFits(const SettingValue* field, const SettingAssignment& a, std::string* error) {
    const bool number = field && field->numeric;
    if (a.given == ValueKind::Text && number) {
        if (error) *error = a.name + ": a whole number is expected, not a text";
        return false;
    }
    if (a.given == ValueKind::Number && !number) {
        if (error) *error = a.name + ": a text is expected, not a number";
        return false;
    }
    return true;
}

}  // namespace

std::optional<SettingsEdit> planSettingsEdit(const CardSettings& card, const std::vector<SettingAssignment>& set,
                                             std::string* error) {
    SettingsEdit edit;
    edit.newBytes = card.bytes;
    for (const auto& a : set) {
        const auto value = checkSettingValue(card, a.name, a.value, error);
        if (!value) return std::nullopt;
        const SettingValue* old = card.find(a.name);
        if (!kindFits(old, a, error)) return std::nullopt;
        const std::string from = old ? old->value : "";
        if (card.family == SettingsFamily::M420) patchRecord(edit.newBytes, a.name, *value);
        else patchLines(edit.newBytes, a.name, *value);
        // A name set twice counts once, with its last value.
        std::erase_if(edit.changes, [&](const SettingChange& c) { return c.name == a.name; });
        if (from != *value) edit.changes.push_back({a.name, from, *value});
    }
    return edit;
}

bool commitSettingsEdit(const CardSettings& card, const SettingsEdit& edit, std::string* error) {
    if (edit.newBytes == card.bytes) return true;
    std::string now;
    std::size_t size = 0;
    if (!readFileHead(card.file, card.bytes.size() + 1, &now, &size) || size != card.bytes.size() ||
        now != card.bytes) {
        if (error) *error = card.file + " changed while it was being edited; nothing was written";
        return false;
    }
    if (!writeFileAtomically(card.file, edit.newBytes)) {
        if (error) *error = "cannot write " + card.file + " (is the card read-only or full?); it is unchanged";
        return false;
    }
    return true;
}

}  // namespace tarvik
