// Which camera wrote the card: the volume, the model, region, firmware and
// the languages the camera offers.

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "core/device/external_memory.h"
#include "core/device/volume_list.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/record_text.h"
#include "core/util/atomic_file.h"

namespace tarvik {

namespace fs = std::filesystem;
using namespace recordtext;

namespace {

bool pathExists(const fs::path& p) {
    std::error_code ec;
    return fs::exists(p, ec);
}

struct NameRule {
    const char* lowerName;
    std::int64_t type;
};
constexpr std::array<NameRule, 25> kNameRules = {{
    {"k310", 0}, {"m420", 1}, {"q610", 2}, {"610", 2}, {"q810", 3}, {"m640", 5}, {"m900", 16},
    {"m900max", 17}, {"dvr-m900max", 24}, {"q630", 7}, {"q650", 8}, {"q850", 9}, {"m670", 10},
    {"mb600", 18}, {"m60", 11}, {"m30", 20}, {"mb20", 12}, {"rq-t4-zn", 19}, {"m120", 13},
    {"mv20", 15}, {"qv20", 14}, {"mb240", 22}, {"m240", 21}, {"dvr-m240", 25}, {"q970", 23},
}};

std::string asciiLower(std::string s) {
    for (char& c : s)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return s;
}

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r'; }
bool isLineTerminator(char c) { return c == '\n' || c == '\v' || c == '\f' || c == '\r'; }

// The capture of "#\s+Language ISO Code:(.+?)\s*$" in one line, written out
// by hand: a regex engine recursing over a hostile megabyte line can exhaust
// the stack.
std::optional<std::string_view> languageCodes(std::string_view line) {
    static constexpr std::string_view kTag = "Language ISO Code:";
    for (std::size_t p = line.find(kTag); p != std::string_view::npos; p = line.find(kTag, p + 1)) {
        std::size_t j = p;
        while (j > 0 && isBlank(line[j - 1])) --j;
        if (j == p || j == 0 || line[j - 1] != '#') continue;
        std::string_view rest = line.substr(p + kTag.size());
        if (rest.empty()) continue;
        std::size_t end = rest.size();
        while (end > 0 && isBlank(rest[end - 1])) --end;
        std::string_view capture = rest.substr(0, std::max<std::size_t>(end, 1));
        if (std::any_of(capture.begin(), capture.end(), isLineTerminator)) continue;
        return capture;
    }
    return std::nullopt;
}

}  // namespace

std::string M420SettingManager::recordFilePath(const std::string& root) {
    if (root.empty()) return {};
    for (const char* folder : {"setting", "SETTING"}) {
        fs::path p = fs::path(root) / folder / "setup.cfg";
        if (pathExists(p)) return p.string();
    }
    return {};
}

std::int64_t M420SettingManager::loadModelTypeWithSDPath(const std::string& root) {
    if (root.empty()) return -1;
    const std::string file = recordFilePath(root);
    std::string head;
    std::size_t size = 0;
    if (!file.empty() && readFileHead(file, 24, &head, &size)) {
        std::array<std::uint8_t, 16> raw{};
        if (head.size() > 8) std::copy(head.begin() + 8, head.end(), raw.begin());
        const std::optional<std::string> name = utf8UpToNul(raw.data(), raw.size());
        const std::string lower = asciiLower(name.value_or(""));
        if (name) {
            for (const auto& rule : kNameRules)
                if (lower == rule.lowerName) return rule.type;
        }
        // A newer camera names itself; its record's first field is its length.
        if (head.size() >= 4 && readLe32(reinterpret_cast<const std::uint8_t*>(head.data())) >= 0 &&
            static_cast<std::size_t>(readLe32(reinterpret_cast<const std::uint8_t*>(head.data()))) == size) {
            modelName_ = name.value_or("");
            return 26;
        }
    }
    for (const char* folder : {"setting", "SETTING"})
        if (pathExists(fs::path(root) / folder / "blackbox.cfg")) return 6;
    return -1;
}

std::int64_t M420SettingManager::loadLocalIDWithSDPath(const std::string& root) {
    const std::string file = recordFilePath(root);
    std::string head;
    if (file.empty() || !readFileHead(file, 464, &head) || head.size() < 464) return -1;
    const std::int32_t id = readLe32(reinterpret_cast<const std::uint8_t*>(head.data()) + 460);
    return (id >= 0 && id <= 6) ? id : -1;
}

std::optional<std::string> M420SettingManager::loadVersionSDPath(const std::string& root) {
    const std::string file = recordFilePath(root);
    std::string head;
    if (file.empty() || !readFileHead(file, 50, &head) || head.size() < 48) return std::nullopt;
    std::array<std::uint8_t, 10> raw{};  // a 48- or 49-byte file gives what it has
    std::copy(head.begin() + 40, head.end(), raw.begin());
    return utf8UpToNul(raw.data(), raw.size());
}

std::int32_t M420SettingManager::firmwareNumberFromVersion(const std::optional<std::string>& version) {
    if (!version) return 0;
    const auto dot = version->rfind('.');
    const std::string_view last = dot == std::string::npos ? std::string_view(*version)
                                                           : std::string_view(*version).substr(dot + 1);
    return static_cast<std::int32_t>(leadingInteger(last));
}

std::string M420SettingManager::findSDCardPath() {
    for (const std::string& volume : mountedVolumePaths()) {
        if (isEXteranlMemoryWithURL(volume)) sdcardUrl_ = volume;
        if (loadModelTypeWithSDPath(volume) != -1) return volume;
    }
    sdcardUrl_.clear();
    return {};
}

void M420SettingManager::loadVersionInfo() { loadVersionInfoForPath(findSDCardPath()); }

void M420SettingManager::loadVersionInfoForPath(const std::string& root) {
    settingDirPath_ = root;
    modelType_ = loadModelTypeWithSDPath(settingDirPath_);
    if (modelType_ == 3 || modelType_ == 4) {
        const std::int64_t id = loadLocalIDWithSDPath(settingDirPath_);
        if (id != -1) localID_ = id;
    }
    const std::optional<std::string> v = loadVersionSDPath(settingDirPath_);
    setVersion(v.value_or(""));
    firmwareVersionInt_ = firmwareNumberFromVersion(v);
}

LanguageList M420SettingManager::parseLanguages(std::string_view text) {
    LanguageList out;
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string_view::npos) end = text.size();
        if (auto codes = languageCodes(text.substr(start, end - start))) {
            // Every separator makes a piece, so a blank after the colon or two
            // blanks in a row give empty pieces that keep their numbers.
            int n = 0;
            std::size_t a = 0;
            for (std::size_t b = 0; b <= codes->size(); ++b) {
                if (b == codes->size() || isBlank((*codes)[b])) {
                    out.emplace_back(n++, std::string(codes->substr(a, b - a)));
                    a = b + 1;
                }
            }
        }
        start = end + 1;
    }
    return out;
}

void M420SettingManager::loadLanguages() {
    constexpr std::size_t kMaxVerDat = 1 << 20;
    std::string text;
    LanguageList list;
    if (!settingDirPath_.empty() &&
        readFileHead((fs::path(settingDirPath_) / "SETTING" / "lang" / "ver.dat").string(), kMaxVerDat, &text) &&
        isValidUtf8(text))
        list = parseLanguages(text);
    if (list.empty()) list = {{0, "en"}, {1, "fr"}, {4, "es"}};
    languages_ = std::move(list);
}

}  // namespace tarvik
