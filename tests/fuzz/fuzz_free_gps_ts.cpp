#include "core/telemetry/content_readers.h"
#include "fuzz_common.h"

// The records of a transport stream's private streams.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return tarvik::fuzz::check(data, size, tarvik::readers::readFreeGpsTs);
}
