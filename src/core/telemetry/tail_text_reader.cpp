#include <algorithm>
#include <cstring>
#include <string_view>
#include <vector>

#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/telemetry_readers.h"
#include "core/telemetry/text_fields.h"

namespace tarvik::readers {

namespace {
constexpr char kMarker[] = "QZRVT7";
constexpr std::size_t kMarkerLen = 6;
// The marker is looked for only this close to the end of the file.
constexpr std::size_t kTailWindow = 33006;

std::size_t textStart(const unsigned char* d, std::size_t n) {
    if (n < kTailWindow) return kMarkerLen;
    const std::size_t last = n - 7;
    for (std::size_t s = n - kTailWindow; s <= last; ++s) {
        const void* hit = std::memchr(d + s, 'Q', last - s + 1);
        if (!hit) break;
        s = static_cast<std::size_t>(static_cast<const unsigned char*>(hit) - d);
        if (std::memcmp(d + s, kMarker, kMarkerLen) == 0) return s + kMarkerLen;
    }
    return kMarkerLen;
}
}  // namespace

int readTailText(const MappedFile& file, OrvoClipData& out) {
    out.setGpsDataCount(0);
    const unsigned char* d = file.data();
    const std::size_t n = file.size();
    const std::size_t from = textStart(d, n);
    if (from >= n) return 0;

    // The whole text has to be valid UTF-8 before any line counts.
    if (!text::isValidUtf8(file, from)) return 0;

    std::string_view txt(reinterpret_cast<const char*>(d + from), n - from);
    std::vector<std::string_view> f;
    f.reserve(8);
    int count = 0, withFix = 0;
    std::size_t pos = 0;
    while (pos <= txt.size()) {
        std::size_t nl = txt.find('\n', pos);
        std::string_view line = txt.substr(pos, nl == std::string_view::npos ? txt.npos : nl - pos);
        f.clear();
        if (text::splitBounded(line, ',', f, 8) == 7) {
            const float lat = text::floatValue(f[1]);
            const float lng = text::floatValue(f[2]);
            out.storeSample(count, static_cast<std::int16_t>(text::intValue(f[4])),
                            static_cast<std::int16_t>(text::intValue(f[5])),
                            static_cast<std::int16_t>(text::intValue(f[6])), lat, lng,
                            static_cast<unsigned>(text::intValue(f[3])));
            if (lat != 0.0f || lng != 0.0f) ++withFix;
            ++count;
            if (count == OrvoClipData::kCapacity) break;
        }
        if (nl == std::string_view::npos) break;
        pos = nl + 1;
        file.scannedUpTo(from + pos);
    }
    out.setGpsDataCount(withFix);
    return count;
}

}  // namespace tarvik::readers
