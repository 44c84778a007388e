#pragma once
// A settings profile: the camera model and the settings a fleet copies from
// one card to the others, as a small JSON document (docs/settings-profile.md).

#include <optional>
#include <string>
#include <vector>

#include "core/settings/profile/card_settings.h"
#include "core/settings/profile/settings_edit.h"

namespace tarvik {

struct SettingsProfile {
    SettingsFamily family = SettingsFamily::M420;
    std::int64_t modelType = -1;
    std::string modelName;
    std::vector<SettingAssignment> settings;
};

// Largest profile file read; anything bigger is refused unread.
inline constexpr std::size_t kMaxProfileBytes = 1 << 20;

std::string exportSettingsProfile(const CardSettings& card);
std::optional<SettingsProfile> parseSettingsProfile(const std::string& json, std::string* error);
std::optional<SettingsProfile> readSettingsProfile(const std::string& path, std::string* error);

// Why the profile does not fit the card (another model), or nothing.
std::optional<std::string> profileMismatch(const SettingsProfile& profile, const CardSettings& card);

}  // namespace tarvik
