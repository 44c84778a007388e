#include <algorithm>
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
// More indexed chunks than hours of video have; a larger index is not used.
constexpr std::size_t kMaxIndexed = 1u << 19;

std::uint32_t le32(const unsigned char* p) {
    return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
           static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
}

// A chunk's tag is four printable characters; anything else is where the
// recording stopped (preallocated zeros) or the walk lost its step, and
// nothing after it is found by walking on.
bool isChunkTag(const unsigned char* c) {
    for (int i = 0; i < 4; ++i)
        if (c[i] < 0x20 || c[i] > 0x7e) return false;
    return true;
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

// The chunks of the index that are not text, in file order: what lies
// between them is read, everything they cover is skipped unread.
struct Indexed {
    std::uint64_t pos;  // of the chunk header
    std::uint32_t size;
    unsigned char tag[4];
};

// Where the movie data and its index are; zero sizes when not found.
struct Layout {
    std::uint64_t moviData = 0, moviEnd = 0;  // after the "movi" type, end of the list
    std::uint64_t index = 0, indexSize = 0;   // idx1 payload
};

Layout findLayout(const BoundedFile& file) {
    Layout l;
    const std::uint64_t n = file.size();
    unsigned char h[12];
    if (!file.readAt(4, h, 4)) return l;
    // A clip continued in further RIFF segments has no single index of it all.
    if (8 + static_cast<std::uint64_t>(le32(h)) + 8 < n) return {};
    std::uint64_t pos = 12;
    for (int i = 0; i < 64 && pos + 12 <= n; ++i) {
        if (!file.readAt(static_cast<std::size_t>(pos), h, 12)) return {};
        const std::uint64_t size = le32(h + 4);
        if (std::memcmp(h, "LIST", 4) == 0 && std::memcmp(h + 8, "movi", 4) == 0) {
            l.moviData = pos + 12;
            l.moviEnd = std::min(n, pos + 8 + size);
        } else if (std::memcmp(h, "idx1", 4) == 0) {
            l.index = pos + 8;
            l.indexSize = std::min(size, n - l.index);
            break;
        }
        pos += 8 + size + (size & 1);
    }
    if (!l.moviData || !l.index) return {};
    return l;
}

// The non-text chunks the index lists, in file order and not overlapping;
// false when the index does not describe the movie data so.
bool readIndex(const BoundedFile& file, const Layout& l, std::vector<Indexed>& out) {
    // Each entry: tag, flags, offset (from the "movi" type, or from the file's
    // start in some writers), size.
    constexpr std::size_t kEntry = 16, kBlock = 4096 * kEntry;
    std::vector<unsigned char> block(kBlock);
    std::uint64_t base = 0, end = l.moviData;
    bool first = true;
    for (std::uint64_t at = 0; at + kEntry <= l.indexSize; at += kBlock) {
        const std::size_t len = static_cast<std::size_t>(std::min<std::uint64_t>(kBlock, l.indexSize - at) / kEntry * kEntry);
        if (!file.readAt(static_cast<std::size_t>(l.index + at), block.data(), len)) return false;
        for (std::size_t e = 0; e < len; e += kEntry) {
            const unsigned char* entry = block.data() + e;
            const std::uint64_t offset = le32(entry + 8);
            if (first) {
                base = offset < l.moviData ? l.moviData - 4 : 0;
                first = false;
            }
            Indexed c{base + offset, le32(entry + 12), {entry[0], entry[1], entry[2], entry[3]}};
            if (isTextChunk(c.tag)) continue;
            // Lists inside the movie data are left to the plain walk.
            if (std::memcmp(c.tag, "LIST", 4) == 0 || std::memcmp(c.tag, "rec ", 4) == 0) return false;
            if (c.pos < end || c.pos + 8 + c.size > l.moviEnd) return false;
            end = c.pos + 8 + c.size + (c.size & 1);
            if (out.size() >= kMaxIndexed) return false;
            out.push_back(c);
        }
    }
    return !out.empty();
}

// The text chunks in [from, to), none of which the index lists; `head`
// holds the first bytes of the range.
bool walkGap(const BoundedFile& file, std::uint64_t from, std::uint64_t to, const unsigned char* head,
             std::size_t headLen, ChunkWalk& walk) {
    WindowReader window(file);
    unsigned char h[8];
    unsigned char small[256];
    auto get = [&](std::uint64_t pos, void* dst, std::size_t n) {
        if (pos - from + n <= headLen) {
            std::memcpy(dst, head + (pos - from), n);
            return true;
        }
        return window.get(pos, dst, n);
    };
    std::uint64_t pos = from;
    while (pos + 8 <= to && !walk.raw.full()) {
        if (!get(pos, h, 8)) return false;
        if (!isChunkTag(h)) return true;
        const std::uint64_t size = le32(h + 4);
        pos += 8;
        if (isTextChunk(h)) {
            const std::size_t len = static_cast<std::size_t>(std::min<std::uint64_t>(size, file.size() - pos));
            if (len <= sizeof small) {
                if (!get(pos, small, len)) return false;
                walk.payload(small, len);
            } else {
                std::vector<unsigned char> big(std::min(len, kMaxLongText));
                if (!file.readAt(static_cast<std::size_t>(pos), big.data(), big.size())) return false;
                walk.payload(big.data(), big.size());
            }
        }
        pos += size + (size & 1);
    }
    return true;
}

// The walk over a clip with an index: only the bytes between the indexed
// pictures and sounds are read, all in one batch. Each read also takes the
// next indexed chunk's header, which must be what the index says; false (and
// nothing learnt) when the index and the file disagree.
bool walkIndexed(const BoundedFile& file, ChunkWalk& walk) {
    const Layout l = findLayout(file);
    if (!l.index) return false;
    std::vector<Indexed> chunks;
    if (!readIndex(file, l, chunks)) return false;

    struct Gap {
        std::uint64_t from, to;
        std::size_t chunk;  // the indexed chunk that ends it; chunks.size() for the list's end
    };
    std::vector<Gap> gaps;
    std::uint64_t pos = l.moviData;
    for (std::size_t i = 0; i <= chunks.size(); ++i) {
        const std::uint64_t to = i < chunks.size() ? chunks[i].pos : l.moviEnd;
        // Every header the gaps end at is checked; the first one always.
        if (to > pos || i == 0) gaps.push_back({pos, to, i});
        if (i < chunks.size()) pos = chunks[i].pos + 8 + chunks[i].size + (chunks[i].size & 1);
    }

    // A gap usually holds a few text chunks, read with the header after them.
    constexpr std::size_t kHead = 248, kSlot = kHead + 8, kBatch = 448;
    std::vector<unsigned char> buf(kBatch * kSlot);
    std::vector<BoundedFile::Piece> pieces;
    for (std::size_t g0 = 0; g0 < gaps.size() && !walk.raw.full(); g0 += kBatch) {
        const std::size_t count = std::min(kBatch, gaps.size() - g0);
        pieces.clear();
        for (std::size_t k = 0; k < count; ++k) {
            const Gap& g = gaps[g0 + k];
            const std::uint64_t want = std::min<std::uint64_t>(g.to - g.from, kHead);
            const std::uint64_t header = g.chunk < chunks.size() ? 8 : 0;
            // The bytes of the gap that are read, then the header.
            const std::uint64_t size = std::min<std::uint64_t>(want, file.size() - g.from);
            std::uint64_t len = size;
            if (size == g.to - g.from) len += header;
            pieces.push_back({static_cast<std::size_t>(g.from), buf.data() + k * kSlot, static_cast<std::size_t>(len)});
        }
        if (!file.readPieces(pieces.data(), pieces.size())) return false;
        for (std::size_t k = 0; k < count && !walk.raw.full(); ++k) {
            const Gap& g = gaps[g0 + k];
            const unsigned char* head = buf.data() + k * kSlot;
            const std::size_t span = static_cast<std::size_t>(g.to - g.from);
            const std::size_t inBuffer = std::min(pieces[k].size, span);
            if (g.chunk < chunks.size()) {
                unsigned char h[8];
                if (pieces[k].size == span + 8) std::memcpy(h, head + span, 8);
                else if (!file.readAt(static_cast<std::size_t>(g.to), h, 8)) return false;
                if (std::memcmp(h, chunks[g.chunk].tag, 4) != 0 || le32(h + 4) != chunks[g.chunk].size) return false;
            }
            if (!walkGap(file, g.from, g.to, head, inBuffer, walk)) return false;
        }
    }
    return true;
}

}  // namespace

int readAviChunks(const BoundedFile& file, AviFamily family, OrvoClipData& out) {
    out.setGpsDataCount(0);
    const std::size_t n = file.size();
    unsigned char head[12];
    if (!file.readAt(0, head, sizeof head) || std::memcmp(head, "RIFF", 4) != 0 ||
        std::memcmp(head + 8, "AVI ", 4) != 0)
        return 0;

    auto walk = std::make_unique<ChunkWalk>(family);
    if (walkIndexed(file, *walk)) {
        if (!walk->raw.full()) walk->second.flushLeftover(walk->held);
        return walk->raw.finish(out);
    }
    if (file.failed()) return 0;
    // No index, or one that does not fit the file: every header is read.
    walk = std::make_unique<ChunkWalk>(family);
    auto window = std::make_unique<WindowReader>(file);
    // Lists are descended into by reading on past their type, so the walk is flat.
    std::uint64_t pos = 12;
    unsigned char h[8];
    unsigned char small[256];
    while (pos + 8 <= n && !walk->raw.full()) {
        // Headers are read, not mapped: touching one page per chunk of a long
        // clip costs more than the read.
        if (!window->get(pos, h, 8) || !isChunkTag(h)) break;
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
