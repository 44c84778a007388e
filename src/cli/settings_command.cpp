// tarvik settings: a camera's settings from a terminal. Shows them, changes
// them, and copies one camera's settings to a fleet of cards through a
// profile. Every value is checked before anything is written, and a card is
// written in one atomic step or not at all.

#include <cstdio>
#include <string>
#include <vector>

#include "cli/commands.h"
#include <nlohmann/json.hpp>

#include "core/settings/profile/card_settings.h"
#include "core/settings/profile/json_value.h"
#include "core/settings/profile/settings_edit.h"
#include "core/settings/profile/settings_profile.h"

namespace tarvik::cli {

namespace {

std::optional<CardSettings> open(const std::string& root) {
    std::string error;
    auto card = readCardSettings(root, &error);
    if (!card) std::fprintf(stderr, "tarvik settings: %s\n", error.c_str());
    return card;
}

void show(const CardSettings& c, bool json) {
    if (!json) {
        std::printf("model=%s\nmodel_type=%lld\nfirmware_version=%s\nregion=%lld\nlanguages=", c.modelName.c_str(),
                    static_cast<long long>(c.modelType), c.firmware.c_str(), static_cast<long long>(c.region));
        for (std::size_t i = 0; i < c.languages.size(); ++i)
            std::printf("%s%d:%s", i ? " " : "", c.languages[i].first, c.languages[i].second.c_str());
        std::printf("\n");
        for (const auto& f : c.fields) std::printf("%s=%s\n", f.name.c_str(), f.value.c_str());
        return;
    }
    nlohmann::ordered_json doc;
    doc["path"] = c.root;
    doc["model"] = c.modelName;
    doc["model_type"] = c.modelType;
    doc["firmware_version"] = c.firmware;
    doc["region"] = c.region;
    auto& languages = doc["languages"] = nlohmann::ordered_json::array();
    for (const auto& [index, code] : c.languages) languages.push_back({{"index", index}, {"code", code}});
    auto& settings = doc["settings"] = nlohmann::ordered_json::object();
    for (const auto& f : c.fields) settings[f.name] = jsonSettingValue(f.value, f.numeric);
    std::fputs(jsonDocument(doc).c_str(), stdout);
}

// Plans and (unless dry) writes; the one line of result is the caller's.
bool edit(const CardSettings& card, const std::vector<SettingAssignment>& set, bool dry, std::string* summary) {
    std::string error;
    const auto plan = planSettingsEdit(card, set, &error);
    if (!plan || (!dry && !commitSettingsEdit(card, *plan, &error))) {
        *summary = "refused: " + error;
        return false;
    }
    *summary = (dry ? "would change " : "changed ") + std::to_string(plan->changes.size()) + " setting" +
               (plan->changes.size() == 1 ? "" : "s");
    for (const auto& c : plan->changes) *summary += "\n  " + c.name + ": " + c.from + " -> " + c.to;
    return true;
}

int setCommand(const CardSettings& card, const SettingsOptions& o) {
    std::vector<SettingAssignment> set;
    for (const std::string& a : o.assignments) {
        const std::size_t eq = a.find('=');
        set.push_back({a.substr(0, eq), a.substr(eq + 1)});
    }
    std::string summary;
    const bool ok = edit(card, set, o.dryRun, &summary);
    std::printf("%s: %s\n", card.root.c_str(), summary.c_str());
    return ok ? 0 : 1;
}

int applyCommand(const SettingsOptions& o) {
    std::string error;
    const auto profile = readSettingsProfile(o.profile, &error);
    if (!profile) {
        std::fprintf(stderr, "tarvik settings: %s\n", error.c_str());
        return 1;
    }
    int failures = 0;
    for (const std::string& path : o.cards) {
        std::string summary;
        const auto card = readCardSettings(path, &error);
        bool ok = false;
        if (!card) summary = "refused: " + error;
        else if (const auto why = profileMismatch(*profile, *card)) summary = "refused: " + *why;
        else ok = edit(*card, profile->settings, o.dryRun, &summary);
        failures += ok ? 0 : 1;
        std::printf("%s: %s\n", path.c_str(), summary.c_str());
    }
    return failures ? 1 : 0;
}

}  // namespace

int settingsCommand(const SettingsOptions& o) {
    using Action = SettingsOptions::Action;
    if (o.action == Action::Apply) return applyCommand(o);
    const auto card = open(o.card);
    if (!card) return 1;
    switch (o.action) {
    case Action::Set: return setCommand(*card, o);
    case Action::Export: std::fputs(exportSettingsProfile(*card).c_str(), stdout); return 0;
    default: show(*card, o.json); return 0;
    }
}

}  // namespace tarvik::cli
