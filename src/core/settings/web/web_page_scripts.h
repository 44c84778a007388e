#pragma once
// The script texts the viewer evaluates in a camera's settings page. The page
// on the card defines the functions; these texts must match what it expects
// to the character. Every value that came from the card or the page is put
// into a script-language string literal escaped, so that a stray quote can
// never turn data into code.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/settings/m420/m420_setting_manager.h"

namespace tarvik::webscript {

inline constexpr const char* kModelName = "model.name";
inline constexpr const char* kModelCfgSize = "model.cfgSize";
inline constexpr const char* kGetCfg = "get_cfg()";

// The text between the quotes of a string literal: backslash, both quotes,
// control characters and the two script line separators escaped.
std::string escaped(std::string_view text);

std::string setCfg(std::string_view hex);
// setParamLanguage(['en','fr',]): every code followed by a comma.
std::string setParamLanguage(const LanguageList& languages);
std::string setLanguage(std::string_view code);
std::string setTimeDate(std::string_view date);
std::string setTimeHour(std::string_view hour);
std::string setTimeMin(std::string_view minute);
std::string generateSetting(bool showTabs);
std::string updateOk(std::int32_t index, std::string_view value);
std::string updateCancel(std::int32_t index);

// The language the settings select: the 32-bit little-endian index at byte
// 428, read from the settings' hexadecimal text, taken as a position in the
// list. Nothing when the settings are too short or the index is past the end.
std::optional<std::string> selectedLanguageCode(std::string_view cfgHex, const LanguageList& languages);

}  // namespace tarvik::webscript
