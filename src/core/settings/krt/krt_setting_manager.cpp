#include "core/settings/krt/krt_setting_manager.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/record_text.h"
#include "core/settings/m420/settings_alert_sink.h"
#include "core/util/atomic_file.h"

namespace tarvik {

namespace fs = std::filesystem;

namespace {

// A real blackbox.cfg is a few hundred bytes; anything past this is not one.
constexpr std::size_t kMaxFileBytes = 1 << 20;
constexpr const char* kFactoryFileName = "default_Q260.cfg";

std::optional<std::string>& factoryOverride() {
    static std::optional<std::string> text;
    return text;
}

std::optional<std::string> readText(const fs::path& p) {
    std::string text;
    std::size_t size = 0;
    if (!readFileHead(p.string(), kMaxFileBytes, &text, &size) || size > kMaxFileBytes ||
        !recordtext::isValidUtf8(text))
        return std::nullopt;
    return text;
}

bool startsWith(std::string_view s, std::string_view prefix) { return s.substr(0, prefix.size()) == prefix; }

}  // namespace

KRTSettingManager& KRTSettingManager::SharedKRTSettingManager() {
    static KRTSettingManager shared;
    return shared;
}

const std::vector<std::map<std::string, std::string>>& KRTSettingManager::memoryPartitionRatiosArray() {
    static const std::vector<std::map<std::string, std::string>> presets = {
        {{"continuous", "60"}, {"event", "22"}, {"park", "4"}, {"manual", "9"}},
        {{"continuous", "35"}, {"event", "17"}, {"park", "4"}, {"manual", "39"}},
        {{"continuous", "53"}, {"event", "19"}, {"park", "14"}, {"manual", "9"}},
    };
    return presets;
}

const std::map<std::string, std::string>& KRTSettingManager::memoryPartitionKeys() {
    static const std::map<std::string, std::string> keys = {
        {"continuous", "const="}, {"event", "event="}, {"park", "park="}, {"manual", "manual="}};
    return keys;
}

void KRTSettingManager::setFactoryDefaultsText(std::optional<std::string> text) {
    factoryOverride() = std::move(text);
}

std::optional<std::string> KRTSettingManager::factoryDefaultsText() {
    if (factoryOverride()) return factoryOverride();
    std::error_code ec;
    fs::path dir = fs::read_symlink("/proc/self/exe", ec).parent_path();
    if (ec) return std::nullopt;
    for (int up = 0; up <= 3 && !dir.empty(); ++up, dir = dir.parent_path()) {
        // Beside the program in the build tree, or PREFIX/share/tarvik/settings once installed.
        for (const fs::path& p : {dir / "settings" / kFactoryFileName, dir / kFactoryFileName,
                                  dir / "share" / "tarvik" / "settings" / kFactoryFileName})
            if (fs::is_regular_file(p, ec)) return readText(p);
        if (dir == dir.root_path()) break;
    }
    return std::nullopt;
}

std::vector<std::string> KRTSettingManager::splitLines(std::string_view text) {
    auto blank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && blank(text.back())) text.remove_suffix(1);
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t p = text.find("\r\n"); p != std::string_view::npos; p = text.find("\r\n", start)) {
        lines.emplace_back(text.substr(start, p - start));
        start = p + 2;
    }
    lines.emplace_back(text.substr(start));
    return lines;
}

std::string KRTSettingManager::joinLines(const std::vector<std::string>& lines) {
    std::string out;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i) out += "\r\n";
        out += lines[i];
    }
    return out;
}

void KRTSettingManager::loadData() {
    const std::string& root = M420SettingManager::SharedM420SettingManager().settingDirPath();
    std::error_code ec;
    const fs::path file = fs::path(root) / "SETTING" / "blackbox.cfg";
    if (root.empty() || !fs::exists(file, ec)) {
        loadDefaultData_Q260();
        return;
    }
    std::optional<std::string> text = readText(file);
    linedSettings_ = text ? splitLines(*text) : std::vector<std::string>{};
}

void KRTSettingManager::loadDefaultValue() {
    if (M420SettingManager::SharedM420SettingManager().modelType() == m420model::Q260) loadDefaultData_Q260();
}

void KRTSettingManager::loadDefaultData_Q260() {
    std::optional<std::string> text = factoryDefaultsText();
    linedSettings_ = text ? splitLines(*text) : std::vector<std::string>{};
}

bool KRTSettingManager::saveData() {
    const std::string& root = M420SettingManager::SharedM420SettingManager().settingDirPath();
    bool ok = false;
    if (!root.empty()) {
        const fs::path dir = fs::path(root) / "SETTING";
        std::error_code ec;
        // A card pulled out while the pane was open leaves its mount point
        // behind, or not even that: SETTING is made on the card, never in its place.
        ok = fs::is_directory(root, ec) && (fs::is_directory(dir, ec) || fs::create_directories(dir, ec)) &&
             writeFileAtomically((dir / "blackbox.cfg").string(), joinLines(linedSettings_));
    }
    if (!ok) raiseMemoryCardAlert();
    return ok;
}

int KRTSettingManager::indexOfLineWithPrefix(std::string_view prefix) const {
    for (std::size_t i = 0; i < linedSettings_.size(); ++i)
        if (startsWith(linedSettings_[i], prefix)) return static_cast<int>(i);
    return -1;
}

void KRTSettingManager::removeTimeDateDelimiters() {
    for (const char* key : {"year=", "month=", "day=", "hour=", "min=", "sec="}) {
        int i = indexOfLineWithPrefix(key);
        if (i >= 0) linedSettings_.erase(linedSettings_.begin() + i);
    }
}

void KRTSettingManager::addTimeDateDelimiters(const std::vector<std::string>& lines) {
    // Without a "set=" line the clock goes after the first line of the file,
    // which the camera accepts; an empty list just takes the lines.
    int at = indexOfLineWithPrefix("set=");
    std::size_t pos = at >= 0 ? static_cast<std::size_t>(at) + 1 : 1;
    pos = std::min(pos, linedSettings_.size());
    linedSettings_.insert(linedSettings_.begin() + static_cast<std::ptrdiff_t>(pos), lines.begin(), lines.end());
}

std::vector<std::string> KRTSettingManager::clockLines(int year, int month, int day, int hour, int minute,
                                                       int second) {
    return {"year=" + std::to_string(year), "month=" + std::to_string(month), "day=" + std::to_string(day),
            "hour=" + std::to_string(hour), "min=" + std::to_string(minute),  "sec=" + std::to_string(second)};
}

bool KRTSettingManager::setValueForKey(std::string_view key, std::string_view value) {
    int i = indexOfLineWithPrefix(key);
    if (i < 0 || key.empty()) return false;
    linedSettings_[static_cast<std::size_t>(i)] = std::string(key) + std::string(value);
    return true;
}

std::optional<std::string> KRTSettingManager::valueForKey(std::string_view key) const {
    int i = indexOfLineWithPrefix(key);
    if (i < 0) return std::nullopt;
    return linedSettings_[static_cast<std::size_t>(i)].substr(key.size());
}

int KRTSettingManager::intValueForKey(std::string_view key) const {
    return static_cast<int>(recordtext::leadingInteger(valueForKey(key).value_or("")));
}

void KRTSettingManager::applyMemoryPartitionPreset(int preset) {
    const auto& presets = memoryPartitionRatiosArray();
    if (preset < 0 || preset >= static_cast<int>(presets.size())) return;
    for (const auto& [kind, percent] : presets[static_cast<std::size_t>(preset)])
        setValueForKey(memoryPartitionKeys().at(kind), percent);
}

int KRTSettingManager::currentMemoryPartitionPreset() const {
    const auto& presets = memoryPartitionRatiosArray();
    for (std::size_t p = 0; p < presets.size(); ++p) {
        bool same = true;
        for (const auto& [kind, percent] : presets[p])
            same = same && intValueForKey(memoryPartitionKeys().at(kind)) == std::stoi(percent);
        if (same) return static_cast<int>(p);
    }
    return -1;
}

}  // namespace tarvik
