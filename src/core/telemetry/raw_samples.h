#pragma once
// What the per-second readers collect before the final coordinate pass:
// G readings, the GPS state of each second and the samples emitted so far.

#include <cstddef>
#include <cstdint>

namespace tarvik {

class OrvoClipData;

struct GReading {
    std::int16_t x = 0, y = 0, z = 0;
};

// Position held as millionths of a degree with hemisphere letters, speed in km/h.
struct GpsFix {
    std::uint32_t lat = 0, lng = 0;
    char ns = 'N', ew = 'E';
    std::uint32_t speed = 0;
};

class RawSamples {
public:
    static constexpr int kCapacity = 650;
    bool full() const { return count_ >= kCapacity; }
    int count() const { return count_; }
    void push(const GReading& g, const GpsFix& fix);
    // Converts to signed degrees (negated unless 'N' / 'E'), stores every
    // sample into `out` and sets its GPS count; returns the sample count.
    int finish(OrvoClipData& out) const;

private:
    GReading g_[kCapacity];
    GpsFix fix_[kCapacity];
    int count_ = 0;
};

}  // namespace tarvik
