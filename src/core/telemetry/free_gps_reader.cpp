// Layout: ExifTool's QuickTimeStream.pl (ProcessFreeGPS, binary "freeGPS "
// type of Novatek cameras; the "gps " index box; ScanMediaData's scan).
#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#endif

#include "core/telemetry/content_readers.h"
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

float leFloat(const unsigned char* p) {
    const std::uint32_t u = le32(p);
    float f;
    std::memcpy(&f, &u, 4);
    return f;
}
double leDouble(const unsigned char* p) {
    std::uint64_t u = le32(p) | std::uint64_t{le32(p + 4)} << 32;
    double d;
    std::memcpy(&d, &u, 8);
    return d;
}

double fromDegreesMinutes(double v) {
    const double d = std::floor(v / 100.0);
    return d + (v - d * 100.0) / 60.0;
}

enum class Block { Unknown, NoFix, Fix };

// The binary layout: time of day at 0x30, status and hemispheres at 0x48,
// float ddmm.mmmm latitude and longitude at 0x4c / 0x50, knots at 0x54.
// Encrypted and other variants are Unknown: they give no sample at all.
Block parseBlock(const unsigned char* b, std::size_t n, TimedFix& fix) {
    if (n < kMinBlock || std::memcmp(b + 4, kMagic, 8) != 0) return Block::Unknown;
    static const unsigned char kEncrypted[] = {0xaa, 0xaa, 0xf2, 0xe1, 0xf0, 0xee, 0x54, 0x54};
    if (std::memcmp(b + 18, kEncrypted, 8) == 0 || std::memcmp(b + 16, "IQS", 3) == 0) return Block::Unknown;
    if (le32(b + 0x30) > 23 || le32(b + 0x34) > 59 || le32(b + 0x38) > 59) return Block::Unknown;
    const char status = static_cast<char>(b[0x48]), ns = static_cast<char>(b[0x49]), ew = static_cast<char>(b[0x4a]);
    if (status == 'V') return Block::NoFix;
    if (status != 'A' || (ns != 'N' && ns != 'S') || (ew != 'E' && ew != 'W')) return Block::Unknown;
    double lat = leFloat(b + 0x4c), lng = leFloat(b + 0x50);
    // Some cameras add the same position as doubles; they win when they agree.
    if (n >= kBlockHead) {
        const double lat2 = leDouble(b + 0x70), lng2 = leDouble(b + 0x80);
        if (std::fabs(lat2 - lat) < 0.001 && std::fabs(lng2 - lng) < 0.001) lat = lat2, lng = lng2;
    }
    if (!(lat > 0) || !(lng > 0)) return Block::Unknown;
    fix.valid = true;
    fix.lat = fromDegreesMinutes(lat) * (ns == 'S' ? -1 : 1);
    fix.lng = fromDegreesMinutes(lng) * (ew == 'W' ? -1 : 1);
    fix.kmh = leFloat(b + 0x54) * 1.852;
    return Block::Fix;
}

// Adds the block at `offset` (of `size` bytes, when known) as second `second`.
bool addBlock(const BoundedFile& file, std::uint64_t offset, std::uint64_t size, int second, TimedTelemetry& into) {
    unsigned char b[kBlockHead];
    const std::size_t n = static_cast<std::size_t>(std::min<std::uint64_t>(size, kBlockHead));
    if (n < kMinBlock || !file.readAt(offset, b, n)) return false;
    TimedFix fix;
    const Block kind = parseBlock(b, n, fix);
    if (kind == Block::Unknown) return false;
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
