#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/second_resampler.h"
#include "core/telemetry/telemetry_readers.h"
#include "core/telemetry/telemetry_records.h"
#include "core/telemetry/text_fields.h"

namespace tarvik::readers {

namespace {

// A second never holds more readings than this; later ones are dropped.
constexpr std::size_t kMaxReadingsPerSecond = 60;
constexpr std::size_t kMaxLongText = 64u << 10;

std::uint32_t le32(const unsigned char* p) {
    return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
           static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
}

bool isTextChunk(const unsigned char* c) {
    return c[0] == '0' && (c[1] == '2' || c[1] == '3') && c[2] == 't' && c[3] == 'x';
}

// Reads small pieces of the file through a 2 KiB window: the text and audio
// chunks between two frames usually share one read.
class WindowReader {
public:
    explicit WindowReader(const BoundedFile& file) : file_(file) {}
    bool get(std::uint64_t pos, void* dst, std::size_t n) {
        if (pos < start_ || pos + n > start_ + len_) {
            if (pos >= file_.size()) return false;
            len_ = static_cast<std::size_t>(std::min<std::uint64_t>(sizeof buf_, file_.size() - pos));
            if (len_ < n || !file_.readAt(static_cast<std::size_t>(pos), buf_, len_)) {
                len_ = 0;
                return false;
            }
            start_ = pos;
        }
        std::memcpy(dst, buf_ + (pos - start_), n);
        return true;
    }

private:
    const BoundedFile& file_;
    unsigned char buf_[2048];
    std::uint64_t start_ = 0;
    std::size_t len_ = 0;
};

struct ChunkWalk {
    ChunkWalk(AviFamily family) : krt(family == AviFamily::Krt), second(raw) {}

    // One text chunk's payload; bytes the file does not have read as zero.
    void payload(const unsigned char* p, std::size_t len) {
        auto at = [&](std::size_t i) -> unsigned { return i < len ? p[i] : 0u; };
        const unsigned kind = at(0);
        if (kind == 'M') {
            if (second.pending() >= kMaxReadingsPerSecond) return;
            GReading g;
            if (krt) {
                if (at(4) != 1 || at(5) != 1 || at(6) != 1) return;
                g.x = static_cast<std::int16_t>(static_cast<int>(at(1)) * 10 - 1280);
                g.y = static_cast<std::int16_t>(static_cast<int>(at(2)) * 10 - 1280);
                g.z = static_cast<std::int16_t>(static_cast<int>(at(3)) * 10 - 1280);
            } else {
                g.x = static_cast<std::int16_t>(128 - static_cast<int>(at(1)));
                g.y = static_cast<std::int16_t>(128 - static_cast<int>(at(2)));
                g.z = static_cast<std::int16_t>(128 - static_cast<int>(at(3)));
            }
            second.add(g);
        } else if (kind == '$' || kind == 'G') {
            const void* z = std::memchr(p, 0, len);
            const std::size_t textLen = z ? static_cast<std::size_t>(static_cast<const unsigned char*>(z) - p) : len;
            f.clear();
            text::splitBounded(std::string_view(reinterpret_cast<const char*>(p), textLen), ',', f);
            if (f[0] != "G$GPRMC" && f[0] != "$GPRMC") return;
            held = records::gpsFix(f);
            second.close(held);
        } else if (kind == 'T' && !krt) {
            // A second the camera had no position for.
            held = GpsFix{};
            second.close(held);
        }
    }

    bool krt;
    RawSamples raw;
    SecondResampler second;
    GpsFix held;
    std::vector<std::string_view> f;
};

}  // namespace

int readAviChunks(const BoundedFile& file, AviFamily family, OrvoClipData& out) {
    out.setGpsDataCount(0);
    const std::size_t n = file.size();
    unsigned char head[12];
    if (!file.readAt(0, head, sizeof head) || std::memcmp(head, "RIFF", 4) != 0 ||
        std::memcmp(head + 8, "AVI ", 4) != 0)
        return 0;

    auto walk = std::make_unique<ChunkWalk>(family);
    auto window = std::make_unique<WindowReader>(file);
    // Lists are descended into by reading on past their type, so the walk is flat.
    std::uint64_t pos = 12;
    unsigned char h[8];
    unsigned char small[256];
    while (pos + 8 <= n && !walk->raw.full()) {
        // Headers are read, not mapped: touching one page per chunk of a long
        // clip costs more than the read.
        if (!window->get(pos, h, 8)) break;
        const std::uint64_t size = le32(h + 4);
        pos += 8;
        if (std::memcmp(h, "LIST", 4) == 0) {
            pos += 4;
            continue;
        }
        if (isTextChunk(h)) {
            const std::size_t len = static_cast<std::size_t>(std::min<std::uint64_t>(size, n - pos));
            if (len <= sizeof small) {
                if (!window->get(pos, small, len)) break;
                walk->payload(small, len);
            } else {
                // The cameras write no long text chunks; a record never needs
                // more than the start of one.
                std::vector<unsigned char> big(std::min(len, kMaxLongText));
                if (!file.readAt(static_cast<std::size_t>(pos), big.data(), big.size())) break;
                walk->payload(big.data(), big.size());
            }
        }
        pos += size + (size & 1);
    }
    if (!walk->raw.full()) walk->second.flushLeftover(walk->held);
    return walk->raw.finish(out);
}

}  // namespace tarvik::readers
