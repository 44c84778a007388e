#include <algorithm>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#endif

#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/second_resampler.h"
#include "core/telemetry/telemetry_readers.h"
#include "core/telemetry/telemetry_records.h"
#include "core/telemetry/text_fields.h"
#include "core/util/bounded_file.h"
#include "core/util/unrecorded_space.h"

namespace tarvik::readers {

namespace {

constexpr std::size_t kMaxText = 119;

bool tagAt(const unsigned char* d, std::size_t p) {
    return d[p] == '0' && (d[p + 1] == '2' || d[p + 1] == '3') && d[p + 2] == 't' && d[p + 3] == 'x';
}

// Vector scans over d[p, len): they return the first tag start they find, or
// the first position they did not look at (the caller finishes byte by byte).
// Each tests '0' at i and 'x' at i + 3 for many i at once; candidates are rare.
#if defined(__x86_64__) || defined(__i386__)
__attribute__((target("avx2"))) std::size_t scanAvx2(const unsigned char* d, std::size_t p, std::size_t len) {
    const __m256i zero = _mm256_set1_epi8('0'), ex = _mm256_set1_epi8('x');
    for (; p + 67 <= len; p += 64) {
        const __m256i m0 = _mm256_and_si256(
            _mm256_cmpeq_epi8(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(d + p)), zero),
            _mm256_cmpeq_epi8(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(d + p + 3)), ex));
        const __m256i m1 = _mm256_and_si256(
            _mm256_cmpeq_epi8(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(d + p + 32)), zero),
            _mm256_cmpeq_epi8(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(d + p + 35)), ex));
        if (_mm256_testz_si256(_mm256_or_si256(m0, m1), _mm256_or_si256(m0, m1))) continue;
        const std::uint64_t mask = static_cast<std::uint32_t>(_mm256_movemask_epi8(m0)) |
                                   static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm256_movemask_epi8(m1))) << 32;
        for (std::uint64_t m = mask; m; m &= m - 1) {
            const std::size_t q = p + static_cast<std::size_t>(__builtin_ctzll(m));
            if (tagAt(d, q)) return q;
        }
    }
    return p;
}
#endif

#ifdef __SSE2__
std::size_t scanSse2(const unsigned char* d, std::size_t p, std::size_t len) {
    const __m128i zero = _mm_set1_epi8('0'), ex = _mm_set1_epi8('x');
    for (; p + 19 <= len; p += 16) {
        const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + p));
        const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + p + 3));
        for (unsigned m = static_cast<unsigned>(
                 _mm_movemask_epi8(_mm_and_si128(_mm_cmpeq_epi8(a, zero), _mm_cmpeq_epi8(b, ex))));
             m; m &= m - 1) {
            const std::size_t q = p + static_cast<std::size_t>(__builtin_ctz(m));
            if (tagAt(d, q)) return q;
        }
    }
    return p;
}
#endif

std::size_t scanWindow(const unsigned char* d, std::size_t p, std::size_t len) {
#if defined(__x86_64__) || defined(__i386__)
    // Not AVX-512: measured right after each read, as here, a 64-byte version
    // cost half as much again as this one.
    static const bool avx2 = __builtin_cpu_supports("avx2");
    if (avx2) {
        p = scanAvx2(d, p, len);
        if (p + 4 <= len && tagAt(d, p)) return p;
    }
#endif
#ifdef __SSE2__
    p = scanSse2(d, p, len);
#endif
    return p;
}

// Finds "02tx"/"03tx" tags anywhere in the file, reading it through a 512 KiB
// window: measured, the search after reads of this size cost a third less
// than after 1 MiB reads, and reads this large still keep the kernel's
// read-ahead streaming; memory stays bounded whatever the clip. Picture data holds a '0'
// every few hundred bytes, so the search tests the first and the last byte of
// the tag together, many positions at a time.
class TagScanner {
public:
    static constexpr std::size_t kWindow = 512 * 1024;

    explicit TagScanner(const BoundedFile& file) : file_(file), buf_(std::min(kWindow, file.size())) {}

    // The next tag at or after `from`; size() when there is none.
    std::size_t next(std::size_t from) {
        const std::size_t n = file_.size();
        while (from + 4 <= n) {
            if (!holds(from, 4)) {
                start_ = from;
                len_ = std::min(kWindow, n - from);
                d_ = file_.readAt(start_, buf_.data(), len_) ? buf_.data() : nullptr;
                // A window of nothing but zeros is space the camera has not
                // recorded yet (cheap to tell: recorded data differs from its
                // neighbour within a few bytes).
                if (!d_ || allZero(d_, len_)) return n;
            }
            const std::size_t last = len_ - 4;  // the last tag start inside the window
            std::size_t p = scanWindow(d_, from - start_, len_);
            for (; p <= last; ++p)
                if (tagAt(d_, p)) return start_ + p;
            if (start_ + len_ >= n) return n;
            // Go on from the first start not yet tried: a tag may straddle two windows.
            from = start_ + last + 1;
        }
        return n;
    }

    // The record text of the tag at p: past the tag and the low size byte,
    // past any zero bytes, up to the next zero byte, at most 119 bytes. A
    // chunk of 256 bytes or more thus reads as text starting with its second
    // size byte; the cameras never write records that long.
    std::string_view record(std::size_t p) {
        const std::size_t n = file_.size();
        std::size_t q = p + 5;
        for (;;) {  // skip the zero run, a piece at a time
            if (q >= n) return {};
            const std::size_t len = std::min(sizeof piece_, n - q);
            const unsigned char* piece = bytes(q, len, piece_);
            if (!piece) return {};
            std::size_t k = 0;
            while (k < len && piece[k] == 0) ++k;
            q += k;
            if (k < len) break;
        }
        const std::size_t max = std::min(kMaxText, n - q);
        const char* text = reinterpret_cast<const char*>(bytes(q, max, text_));
        if (!text) return {};
        const void* z = std::memchr(text, 0, max);
        const std::size_t len = z ? static_cast<std::size_t>(static_cast<const char*>(z) - text) : max;
        return {text, len};
    }

private:
    bool holds(std::size_t at, std::size_t n) const { return d_ && at >= start_ && at + n <= start_ + len_; }

    // The n bytes at `at`: in the window when it has them, else read into `spare`.
    template <typename Byte>
    const unsigned char* bytes(std::size_t at, std::size_t n, Byte* spare) {
        if (holds(at, n)) return d_ + (at - start_);
        return file_.readAt(at, spare, n) ? reinterpret_cast<const unsigned char*>(spare) : nullptr;
    }

    const BoundedFile& file_;
    std::vector<unsigned char> buf_;
    const unsigned char* d_ = nullptr;
    std::size_t start_ = 0, len_ = 0;
    unsigned char piece_[512];
    char text_[kMaxText];
};

enum class Kind { Other, Reading, Position };

Kind classify(std::string_view rec, std::vector<std::string_view>& f, GReading& g) {
    f.clear();
    text::splitBounded(rec, ',', f);
    if (f[0] == "gsensor" || f[0] == "gsensori") {
        auto r = f[0] == "gsensor" ? records::gsensor(f) : records::gsensori(f);
        if (!r) return Kind::Other;
        g = *r;
        return Kind::Reading;
    }
    if (records::isPositionRecord(f[0]) && f.size() >= 6) return Kind::Position;
    return Kind::Other;
}

class TextRecordScan {
public:
    TextRecordScan(const BoundedFile& file) : n_(file.size()), tags_(file), second_(raw_) {}

    int run(OrvoClipData& out) {
        GpsFix held;
        bool gpsSeen = false;
        std::size_t secondStart = 0;
        for (std::size_t p = tags_.next(0); p < n_ && !raw_.full(); p = tags_.next(p + 1)) {
            GReading g;
            switch (classify(tags_.record(p), f_, g)) {
            case Kind::Reading:
                if (second_.pending() == 0) secondStart = p;
                second_.add(g);
                break;
            case Kind::Position:
                held = records::gpsFix(f_);
                gpsSeen = true;
                closeSecond(held, secondStart, p);
                break;
            case Kind::Other:
                break;
            }
        }
        if (raw_.count() == 0 && second_.pending() > 0) {
            if (gpsSeen) {
                out.setGpsDataCount(0);
                return 0;
            }
            // A clip without any position record: every reading is a sample of its own.
            for (const GReading& g : second_.kept()) raw_.push(g, GpsFix{});
        } else if (second_.pending() > 0 && !raw_.full()) {
            closeSecond(held, secondStart, n_);
        }
        return raw_.finish(out);
    }

private:
    void closeSecond(const GpsFix& fix, std::size_t from, std::size_t to) {
        if (!second_.needsReplay()) {
            second_.close(fix);
            return;
        }
        // Too many readings to keep: walk the second again and take only the chosen ones.
        std::size_t idx[10];
        GReading chosen[10];
        const int want = SecondResampler::pick(second_.pending(), idx);
        std::size_t k = 0;
        int got = 0;
        for (std::size_t p = tags_.next(from); p < to && got < want; p = tags_.next(p + 1)) {
            GReading g;
            if (classify(tags_.record(p), f_, g) != Kind::Reading) continue;
            while (got < want && idx[got] == k) chosen[got++] = g;
            ++k;
        }
        second_.close(fix, chosen);
    }

    std::size_t n_;
    TagScanner tags_;
    RawSamples raw_;
    SecondResampler second_;
    std::vector<std::string_view> f_;
};

}  // namespace

int readTextRecords(const BoundedFile& file, OrvoClipData& out) {
    out.setGpsDataCount(0);
    auto scan = std::make_unique<TextRecordScan>(file);
    return scan->run(out);
}

}  // namespace tarvik::readers
