#include "core/settings/web/web_setting_files.h"

#include <cerrno>
#include <cstdio>

#include "core/l10n/language_code.h"
#include "core/util/atomic_file.h"

namespace tarvik {

namespace {

constexpr std::size_t kTimeFileMaxBytes = 256;

bool isDigits(std::string_view s) {
    for (char c : s)
        if (c < '0' || c > '9') return false;
    return !s.empty();
}

bool isHexDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

}  // namespace

std::string WebSettingFiles::hexOfFile(const std::string& path) {
    std::string bytes;
    std::size_t size = 0;
    if (!readFileHead(path, kMaxCfgBytes, &bytes, &size) || size > kMaxCfgBytes) return {};
    return hexStringFromData(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

std::optional<WebTimeCorrection> WebSettingFiles::readTimeCorrection() const {
    std::string text;
    if (!readFileHead(timedateFilename(), kTimeFileMaxBytes, &text) || text.size() < 16) return std::nullopt;
    return WebTimeCorrection{text.substr(0, 10), text.substr(11, 2), text.substr(14, 2)};
}

bool WebSettingFiles::isUsableCfgHex(std::string_view text) {
    if (text.empty() || text.size() % 2 != 0 || text.size() > 2 * kMaxCfgBytes) return false;
    for (char c : text)
        if (!isHexDigit(c)) return false;
    return true;
}

std::optional<std::string> WebSettingFiles::timeLine(const WebTimeCorrection& t) {
    const std::string_view d = t.date;
    const bool dateOk = d.size() == 10 && d[4] == ',' && d[7] == ',' && isDigits(d.substr(0, 4)) &&
                        isDigits(d.substr(5, 2)) && isDigits(d.substr(8, 2));
    if (!dateOk || t.hour.size() != 2 || !isDigits(t.hour) || t.minute.size() != 2 || !isDigits(t.minute))
        return std::nullopt;
    return t.date + "," + t.hour + "," + t.minute + ",00,+0900";
}

WebSaveResult WebSettingFiles::save(std::string_view cfgHexFromPage,
                                    const std::optional<WebTimeCorrection>& time) const {
    if (!isUsableCfgHex(cfgHexFromPage)) return WebSaveResult::Refused;
    // The clock line is the page's text; a malformed one is left out rather
    // than handed to the camera, and the settings are still saved.
    if (time) {
        if (const auto line = timeLine(*time); line && !writeFileAtomically(timedateFilename(), *line))
            return WebSaveResult::WriteFailed;
    }
    const std::vector<std::uint8_t> bytes = dataFromHexString(cfgHexFromPage);
    return writeFileAtomically(cfgFilename(), bytes.data(), bytes.size()) ? WebSaveResult::Saved
                                                                          : WebSaveResult::WriteFailed;
}

bool WebSettingFiles::removeAdasFile() const {
    return std::remove(adasFilename().c_str()) == 0 || errno == ENOENT;
}

}  // namespace tarvik
