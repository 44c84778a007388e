#include "core/telemetry/content_readers.h"
#include "fuzz_common.h"

// The same bytes as an NMEA log and as a G table beside a clip.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return tarvik::fuzz::check(data, size, [](const tarvik::BoundedFile& f, tarvik::OrvoClipData& d) {
        return tarvik::readers::readSideFiles(&f, &f, d);
    });
}
