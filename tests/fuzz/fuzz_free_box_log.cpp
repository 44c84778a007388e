#include "core/telemetry/content_readers.h"
#include "fuzz_common.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return tarvik::fuzz::check(data, size, tarvik::readers::readFreeBoxLog);
}
