#pragma once
// Shared checks: whatever the bytes, a reader returns a count within the
// storage and a GPS count no larger than it.

#include <cstdint>
#include <cstdlib>
#include <memory>

#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/telemetry_readers.h"

namespace tarvik::fuzz {

template <typename Reader>
int check(const std::uint8_t* data, std::size_t size, Reader reader) {
    static auto clip = std::make_unique<OrvoClipData>();
    BoundedFile file(data, size);
    const int n = reader(file, *clip);
    if (n < 0 || n > OrvoClipData::kCapacity || clip->gpsDataCount() < 0 || clip->gpsDataCount() > n) std::abort();
    clip->setClipDataCount(n);
    for (int i = 0; i < n; ++i) {
        int x, y, z;
        float lat, lng;
        unsigned speed;
        clip->getClipDataWithIndex(i, x, y, z, lat, lng, speed);
    }
    return 0;
}

}  // namespace tarvik::fuzz
