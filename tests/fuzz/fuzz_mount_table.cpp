// /proc/self/mountinfo: any text gives entries whose fields are no longer
// than the text itself.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/device/volume_list.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto entries = tarvik::parseMountInfo(std::string_view(reinterpret_cast<const char*>(data), size));
    for (const auto& e : entries) {
        if (e.mountPoint.size() > size || e.fsType.size() > size || e.source.size() > size) std::abort();
        tarvik::isPseudoOrNetworkFileSystem(e.fsType);
    }
    return 0;
}
