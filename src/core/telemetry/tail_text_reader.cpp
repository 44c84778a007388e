#include <algorithm>
#include <cstring>
#include <string_view>
#include <vector>

#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/telemetry_readers.h"
#include "core/telemetry/text_fields.h"
#include "core/telemetry/text_stream.h"

namespace tarvik::readers {

namespace {
constexpr char kMarker[] = "QZRVT7";
constexpr std::size_t kMarkerLen = 6;
// The marker is looked for only this close to the end of the file.
constexpr std::size_t kTailWindow = 33006;

std::size_t textStart(const BoundedFile& file) {
    const std::size_t n = file.size();
    if (n < kTailWindow) return kMarkerLen;
    std::vector<unsigned char> tail(kTailWindow);
    const std::size_t base = n - kTailWindow;
    if (!file.readAt(base, tail.data(), kTailWindow)) return n;
    const unsigned char* d = tail.data();
    const std::size_t last = kTailWindow - 7;
    for (std::size_t s = 0; s <= last; ++s) {
        const void* hit = std::memchr(d + s, 'Q', last - s + 1);
        if (!hit) break;
        s = static_cast<std::size_t>(static_cast<const unsigned char*>(hit) - d);
        if (std::memcmp(d + s, kMarker, kMarkerLen) == 0) return base + s + kMarkerLen;
    }
    // Without the marker only a file of text is read whole; text holds no
    // NUL, and a clip's zeros (a preallocated file's gigabytes of them) would
    // otherwise all be read as valid text.
    unsigned char head[512];
    const std::size_t headLen = std::min(sizeof head, n);
    if (std::memchr(d, 0, kTailWindow) || !file.readAt(0, head, headLen) || std::memchr(head, 0, headLen)) return n;
    return kMarkerLen;
}
}  // namespace

int readTailText(const BoundedFile& file, OrvoClipData& out) {
    out.setGpsDataCount(0);
    const std::size_t n = file.size();
    const std::size_t from = textStart(file);
    if (from >= n) return 0;

    // The whole text has to be valid UTF-8 before any line counts.
    if (!text::isValidUtf8(file, from)) return 0;

    std::vector<std::string_view> f;
    f.reserve(8);
    int count = 0, withFix = 0;
    text::LineReader lines(file, from, n, "\n");
    std::string_view line;
    while (lines.next(line)) {
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
    }
    out.setGpsDataCount(withFix);
    return count;
}

}  // namespace tarvik::readers
