#include "fuzz_common.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return tarvik::fuzz::check(data, size, [](const tarvik::BoundedFile& f, tarvik::OrvoClipData& d) {
        return tarvik::readers::readAviChunks(f, tarvik::readers::AviFamily::Krt, d);
    });
}
