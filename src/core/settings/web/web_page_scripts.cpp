#include "core/settings/web/web_page_scripts.h"

#include <cstdio>
#include <cstdlib>

namespace tarvik::webscript {

namespace {

constexpr std::size_t kLanguageIndexHexEnd = 864;  // byte 428 + 4, two digits a byte

std::string call(const char* function, std::string_view argument) {
    return std::string(function) + "(\"" + escaped(argument) + "\")";
}

}  // namespace

std::string escaped(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        switch (c) {
        case '\\': out += "\\\\"; continue;
        case '"': out += "\\\""; continue;
        case '\'': out += "\\'"; continue;
        case '\n': out += "\\n"; continue;
        case '\r': out += "\\r"; continue;
        default: break;
        }
        if (c < 0x20 || c == 0x7f) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\x%02x", c);
            out += buf;
        } else if (c == 0xe2 && i + 2 < text.size() && static_cast<unsigned char>(text[i + 1]) == 0x80 &&
                   (static_cast<unsigned char>(text[i + 2]) & 0xfe) == 0xa8) {
            // U+2028 and U+2029 end a line inside a script literal.
            out += static_cast<unsigned char>(text[i + 2]) == 0xa8 ? "\\u2028" : "\\u2029";
            i += 2;
        } else {
            out += static_cast<char>(c);
        }
    }
    return out;
}

std::string setCfg(std::string_view hex) { return call("set_cfg", hex); }

std::string setParamLanguage(const LanguageList& languages) {
    std::string script = "setParamLanguage([";
    for (const auto& entry : languages) script += "'" + escaped(entry.second) + "',";
    return script + "])";
}

std::string setLanguage(std::string_view code) { return call("set_language", code); }
std::string setTimeDate(std::string_view date) { return call("setTimeDate", date); }
std::string setTimeHour(std::string_view hour) { return call("setTimeHour", hour); }
std::string setTimeMin(std::string_view minute) { return call("setTimeMin", minute); }
std::string generateSetting(bool showTabs) { return showTabs ? "generateSetting(true)" : "generateSetting(false)"; }

std::string updateOk(std::int32_t index, std::string_view value) {
    return "update_ok(" + std::to_string(index) + ", \"" + escaped(value) + "\")";
}

std::string updateCancel(std::int32_t index) { return "update_cancel(" + std::to_string(index) + ")"; }

std::optional<std::string> selectedLanguageCode(std::string_view cfgHex, const LanguageList& languages) {
    if (cfgHex.size() < kLanguageIndexHexEnd) return std::nullopt;
    // Little-endian on the card: the last byte's digits come first.
    std::string bigEndian;
    for (std::size_t pos : {862u, 860u, 858u, 856u}) bigEndian.append(cfgHex.substr(pos, 2));
    char* end = nullptr;
    const unsigned long index = std::strtoul(bigEndian.c_str(), &end, 16);
    if (end != bigEndian.c_str() + bigEndian.size() || index >= languages.size()) return std::nullopt;
    return languages[index].second;
}

}  // namespace tarvik::webscript
