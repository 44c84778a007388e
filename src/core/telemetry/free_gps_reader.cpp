// Layout: ExifTool's QuickTimeStream.pl (ProcessFreeGPS, binary "freeGPS "
// type of Novatek cameras; the "gps " index box; ScanMediaData's scan).
#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#endif

#include "core/telemetry/content_readers.h"
#include "core/telemetry/free_gps_record.h"
#include "core/telemetry/mp4_boxes.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/timed_telemetry.h"

namespace tarvik::readers {

namespace {

using mp4::le32;

constexpr std::size_t kBlockHead = 0x90;  // through the doubles that refine the floats
constexpr std::size_t kMinBlock = 92;
constexpr std::size_t kMaxBlocks = TimedTelemetry::kSlots / 10;  // one a second
constexpr std::uint64_t kFirstBlockWithin = 20u << 20;  // of mdat's start, per the public description
constexpr std::size_t kWindow = 512u << 10;
constexpr char kMagic[] = "freeGPS ";

// The block: a box of type "freeGPS " whose record starts at 0x30, with the
// position again as doubles at 0x70 / 0x80 in the longer ones. Encrypted and
// other variants give no sample at all.
FreeGpsRecord parseBlock(const unsigned char* b, std::size_t n, TimedFix& fix) {
    if (n < kMinBlock || std::memcmp(b + 4, kMagic, 8) != 0) return FreeGpsRecord::Unknown;
    static const unsigned char kEncrypted[] = {0xaa, 0xaa, 0xf2, 0xe1, 0xf0, 0xee, 0x54, 0x54};
    if (std::memcmp(b + 18, kEncrypted, 8) == 0 || std::memcmp(b + 16, "IQS", 3) == 0) return FreeGpsRecord::Unknown;
    return parseFreeGpsRecord(b + 0x30, n >= kBlockHead ? b + 0x70 : nullptr, fix);
}

// Adds the block at `offset` (of `size` bytes, when known) as second `second`.
bool addBlock(const BoundedFile& file, std::uint64_t offset, std::uint64_t size, int second, TimedTelemetry& into) {
    unsigned char b[kBlockHead];
    const std::size_t n = static_cast<std::size_t>(std::min<std::uint64_t>(size, kBlockHead));
    if (n < kMinBlock || !file.readAt(offset, b, n)) return false;
    TimedFix fix;
    if (parseBlock(b, n, fix) == FreeGpsRecord::Unknown) return false;
    into.addFix(second, fix);
    into.extendTo(second + 1.0);
    return true;
}

bool magicAt(const char* d) { return std::memcmp(d, kMagic, 8) == 0; }

// The first "freeGPS " in d[p, len), or len. Many positions at once test 'f'
// at i and 'G' at i + 4; candidates are rare, so a window that was just read
// is searched while it is still in the cache, well faster than read.
#if defined(__x86_64__) || defined(__i386__)
__attribute__((target("avx2"))) std::size_t findMagicAvx2(const char* d, std::size_t p, std::size_t len) {
    const __m256i f = _mm256_set1_epi8('f'), g = _mm256_set1_epi8('G');
    for (; p + 64 + 8 <= len; p += 64) {
        const auto* v = reinterpret_cast<const __m256i*>(d + p);
        const auto* w = reinterpret_cast<const __m256i*>(d + p + 4);
        const __m256i m0 = _mm256_and_si256(_mm256_cmpeq_epi8(_mm256_loadu_si256(v), f),
                                            _mm256_cmpeq_epi8(_mm256_loadu_si256(w), g));
        const __m256i m1 = _mm256_and_si256(_mm256_cmpeq_epi8(_mm256_loadu_si256(v + 1), f),
                                            _mm256_cmpeq_epi8(_mm256_loadu_si256(w + 1), g));
        const __m256i any = _mm256_or_si256(m0, m1);
        if (_mm256_testz_si256(any, any)) continue;
        const std::uint64_t mask = static_cast<std::uint32_t>(_mm256_movemask_epi8(m0)) |
                                   std::uint64_t{static_cast<std::uint32_t>(_mm256_movemask_epi8(m1))} << 32;
        for (std::uint64_t m = mask; m; m &= m - 1) {
            const std::size_t q = p + static_cast<std::size_t>(__builtin_ctzll(m));
            if (magicAt(d + q)) return q;
        }
    }
    return p;
}
#endif

std::size_t findMagic(const char* d, std::size_t p, std::size_t len) {
#if defined(__x86_64__) || defined(__i386__)
    static const bool avx2 = __builtin_cpu_supports("avx2");
    if (avx2) p = findMagicAvx2(d, p, len);
#endif
    for (; p + 8 <= len; ++p) {
        const void* f = std::memchr(d + p, 'f', len - 7 - p);
        if (!f) return len;
        p = static_cast<std::size_t>(static_cast<const char*>(f) - d);
        if (magicAt(d + p)) return p;
    }
    return len;
}

}  // namespace

int readFreeGpsIndexed(const BoundedFile& file, OrvoClipData& out) {
    TimedTelemetry timed;
    mp4::Box moov, index;
    if (mp4::findTopLevel(file, "moov", moov) && mp4::findChild(file, moov, "gps ", index) && index.size() > 8) {
        const std::string head = mp4::payload(file, index, 8 + kMaxBlocks * 8);
        if (head.size() < 8) return timed.finish(out);
        const auto* p = reinterpret_cast<const unsigned char*>(head.data());
        const std::size_t count = std::min<std::size_t>(mp4::be32(p + 4), (head.size() - 8) / 8);
        for (std::size_t i = 0; i < count; ++i)
            addBlock(file, mp4::be32(p + 8 + i * 8), mp4::be32(p + 12 + i * 8), static_cast<int>(i), timed);
    }
    return timed.finish(out);
}

int readFreeGpsScan(const BoundedFile& file, OrvoClipData& out) {
    TimedTelemetry timed;
    std::vector<char> buf;
    int blocks = 0;
    std::uint64_t before = 0;  // bytes of media data scanned before the first block
    for (const mp4::Box& mdat : mp4::topLevel(file)) {
        if (!mdat.is("mdat")) continue;
        if (buf.empty()) buf.resize(kWindow);
        std::uint64_t at = mdat.payload;
        while (at < mdat.end && blocks < static_cast<int>(kMaxBlocks)) {
            if (blocks == 0 && before >= kFirstBlockWithin) return timed.finish(out);
            const std::size_t want = static_cast<std::size_t>(std::min<std::uint64_t>(kWindow, mdat.end - at));
            const std::size_t n = file.readSome(at, buf.data(), want);
            if (n < 8) break;
            std::uint64_t next = at + n - 7;  // a magic cut by the window's end is seen by the next
            for (std::size_t hit = findMagic(buf.data(), 0, n); hit < n; hit = findMagic(buf.data(), hit + 1, n)) {
                const std::uint64_t pos = at + hit;
                unsigned char size[4];
                // The block is a box: its size's outer bytes are zero in every public dump.
                if (pos >= mdat.payload + 4 && file.readAt(pos - 4, size, 4) && size[0] == 0 && size[3] == 0 &&
                    pos - 4 + mp4::be32(size) <= mdat.end && addBlock(file, pos - 4, mp4::be32(size), blocks, timed)) {
                    ++blocks;
                    // The rest of the block holds nothing to look for.
                    next = std::max<std::uint64_t>(at + 1, std::min<std::uint64_t>(pos - 4 + mp4::be32(size), mdat.end));
                    break;
                }
            }
            if (blocks == 0) before += next - at;
            at = next;
        }
    }
    return timed.finish(out);
}

}  // namespace tarvik::readers
