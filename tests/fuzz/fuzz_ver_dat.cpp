// SETTING/lang/ver.dat and the firmware text: any bytes give a language list
// and a firmware number, never more languages than lines.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/settings/m420/m420_setting_manager.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const auto langs = tarvik::M420SettingManager::parseLanguages(text);
    if (langs.size() > size) std::abort();
    tarvik::M420SettingManager::firmwareNumberFromVersion(text);
    return 0;
}
