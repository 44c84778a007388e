// time.dat: a text either parses into a valid time that formats back to the
// same time, or gives nothing.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/settings/m420/setting_time_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto t = tarvik::parseSettingTime(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!t) return 0;
    if (t->month < 1 || t->month > 12 || t->day < 1 || t->day > 31 || t->hour > 23 || t->minute > 59) std::abort();
    const auto again = tarvik::parseSettingTime(tarvik::formatSettingTime(*t));
    if (!again || !(*again == *t)) std::abort();
    return 0;
}
