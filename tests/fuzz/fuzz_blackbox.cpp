// The KRT family's blackbox.cfg: any text splits into lines, every look-up
// and edit the settings pane makes works on them, and joins back.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/settings/krt/krt_setting_manager.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    tarvik::KRTSettingManager k;
    k.setLinedSettings(tarvik::KRTSettingManager::splitLines(text));
    for (std::string_view key : {"const=", "event=", "park=", "manual=", "set=", "year=", "gsensor="}) {
        k.valueForKey(key);
        k.intValueForKey(key);
    }
    const int preset = k.currentMemoryPartitionPreset();
    if (preset < -1 || preset > 2) std::abort();
    k.removeTimeDateDelimiters();
    k.addTimeDateDelimiters(tarvik::KRTSettingManager::clockLines(2026, 11, 23, 13, 0, 0));
    k.applyMemoryPartitionPreset(static_cast<int>(size % 3));
    if (k.currentMemoryPartitionPreset() != static_cast<int>(size % 3) && k.indexOfLineWithPrefix("const=") >= 0 &&
        k.indexOfLineWithPrefix("event=") >= 0 && k.indexOfLineWithPrefix("park=") >= 0 &&
        k.indexOfLineWithPrefix("manual=") >= 0)
        std::abort();
    tarvik::KRTSettingManager::splitLines(tarvik::KRTSettingManager::joinLines(k.linedSettings()));
    return 0;
}
