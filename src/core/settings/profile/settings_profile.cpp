#include "core/settings/profile/settings_profile.h"

#include <sys/stat.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "core/settings/m420/m420_model_types.h"
#include "core/settings/profile/json_value.h"
#include "core/util/atomic_file.h"

namespace tarvik {

namespace {

constexpr const char* kFormatKey = "tarvik_settings_profile";
constexpr std::int64_t kFormatVersion = 1;
constexpr std::size_t kMaxSettings = 1000;
constexpr std::size_t kMaxText = 4096;

const char* familyName(SettingsFamily f) { return f == SettingsFamily::Krt ? "krt" : "m420"; }

std::optional<SettingsProfile> refuse(std::string* error, std::string why) {
    if (error) *error = std::move(why);
    return std::nullopt;
}

}  // namespace

std::string exportSettingsProfile(const CardSettings& card) {
    nlohmann::ordered_json doc;
    doc[kFormatKey] = kFormatVersion;
    doc["family"] = familyName(card.family);
    doc["model_type"] = card.modelType;
    doc["model"] = card.modelName;
    auto& settings = doc["settings"] = nlohmann::ordered_json::object();
    for (const auto& f : card.fields)
        if (!f.identity) settings[f.name] = jsonSettingValue(f.value, f.numeric);
    return jsonDocument(doc);
}

std::optional<SettingsProfile> parseSettingsProfile(const std::string& json, std::string* error) {
    std::string why;
    const auto doc = parseJson(json, &why);
    if (!doc) return refuse(error, "not a settings profile: " + why);
    if (doc->kind != JsonValue::Kind::Object) return refuse(error, "not a settings profile: not a JSON object");
    SettingsProfile p;
    bool sawFormat = false, sawFamily = false, sawType = false, sawSettings = false;
    for (const auto& [key, v] : doc->members) {
        if (key == kFormatKey) {
            if (v.kind != JsonValue::Kind::Number)
                return refuse(error, "\"" + std::string(kFormatKey) + "\" must be the number " +
                                         std::to_string(kFormatVersion));
            if (v.number != kFormatVersion)
                return refuse(error, "profile format " + std::to_string(v.number) + " is not one this version reads");
            sawFormat = true;
        } else if (key == "family") {
            if (v.kind != JsonValue::Kind::String || (v.text != "m420" && v.text != "krt"))
                return refuse(error, "\"family\" must be \"m420\" or \"krt\"");
            p.family = v.text == "krt" ? SettingsFamily::Krt : SettingsFamily::M420;
            sawFamily = true;
        } else if (key == "model_type") {
            if (v.kind != JsonValue::Kind::Number || v.number < 0 || v.number >= m420model::Count)
                return refuse(error, "\"model_type\" must be a camera model number");
            p.modelType = v.number;
            sawType = true;
        } else if (key == "model") {
            if (v.kind != JsonValue::Kind::String || v.text.size() > 64)
                return refuse(error, "\"model\" must be a model name");
            p.modelName = v.text;
        } else if (key == "settings") {
            if (v.kind != JsonValue::Kind::Object) return refuse(error, "\"settings\" must be an object");
            if (v.members.size() > kMaxSettings) return refuse(error, "too many settings");
            for (const auto& [name, s] : v.members) {
                // Printed, a name with a NUL in it would read as another one.
                if (std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }))
                    return refuse(error, "setting " + jsonQuote(name) + ": a control character in the name");
                if (s.kind == JsonValue::Kind::Number)
                    p.settings.push_back({name, std::to_string(s.number), ValueKind::Number});
                else if (s.kind == JsonValue::Kind::String && s.text.size() <= kMaxText)
                    p.settings.push_back({name, s.text, ValueKind::Text});
                else if (s.kind == JsonValue::Kind::String)
                    return refuse(error, "setting " + jsonQuote(name) + ": a text of at most " +
                                             std::to_string(kMaxText) + " bytes is expected");
                else
                    return refuse(error, "setting " + jsonQuote(name) + ": a number or a short text is expected");
            }
            sawSettings = true;
        } else {
            return refuse(error, "unknown member " + jsonQuote(key));
        }
    }
    if (!sawFormat || !sawFamily || !sawType || !sawSettings)
        return refuse(error, "not a settings profile: it needs \"" + std::string(kFormatKey) +
                                 "\", \"family\", \"model_type\" and \"settings\"");
    return p;
}

std::optional<SettingsProfile> readSettingsProfile(const std::string& path, std::string* error) {
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0 || !S_ISREG(st.st_mode)) return refuse(error, "cannot read " + path);
    if (static_cast<std::uint64_t>(st.st_size) > kMaxProfileBytes)
        return refuse(error, path + " is too large to be a settings profile");
    std::string text;
    std::size_t size = 0;
    if (!readFileHead(path, kMaxProfileBytes + 1, &text, &size) || size > kMaxProfileBytes)
        return refuse(error, "cannot read " + path);
    return parseSettingsProfile(text, error);
}

std::optional<std::string> profileMismatch(const SettingsProfile& profile, const CardSettings& card) {
    const bool sameName = card.modelType != m420model::Newer || profile.modelName == card.modelName;
    if (profile.family == card.family && profile.modelType == card.modelType && sameName) return std::nullopt;
    return "the profile is for a " + (profile.modelName.empty() ? "model " + std::to_string(profile.modelType)
                                                                : profile.modelName) +
           ", this card is from a " + card.modelName;
}

}  // namespace tarvik
