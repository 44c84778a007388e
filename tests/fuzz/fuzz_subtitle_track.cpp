// The subtitle track: loading any text, then the dashboard's look-ups at every tenth.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/telemetry/subtitle_data.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarvik::SubtitleData track;
    track.loadFromText(std::string_view(reinterpret_cast<const char*>(data), size));
    // However many cues, the look-ups keep a bounded table.
    if (track.memoryUse() > (8u << 20)) std::abort();
    for (unsigned t = 0; t < 700; t += 7) {
        int x, y, z;
        float lat, lng;
        unsigned speed;
        if (track.getSensorAt(t, x, y, z) && (x < -512 || x > 512 || z < -512 || z > 512)) std::abort();
        const int r = track.getGpsAt(t, lat, lng, speed);
        if (r < 0 || r > 2) std::abort();
    }
    return 0;
}
