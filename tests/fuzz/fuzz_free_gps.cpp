#include "core/telemetry/content_readers.h"
#include "fuzz_common.h"

// The blocks through the index box and through the scan of the media data.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarvik::fuzz::check(data, size, tarvik::readers::readFreeGpsIndexed);
    return tarvik::fuzz::check(data, size, tarvik::readers::readFreeGpsScan);
}
