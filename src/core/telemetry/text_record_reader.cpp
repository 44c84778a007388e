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

constexpr std::size_t kMaxText = 119;

// Finds the next "02tx"/"03tx" tag at or after `from`; n when there is none.
std::size_t nextTag(const unsigned char* d, std::size_t n, std::size_t from) {
    while (from + 4 <= n) {
        const void* hit = std::memchr(d + from, '0', n - from - 3);
        if (!hit) return n;
        const std::size_t p = static_cast<std::size_t>(static_cast<const unsigned char*>(hit) - d);
        if ((d[p + 1] == '2' || d[p + 1] == '3') && d[p + 2] == 't' && d[p + 3] == 'x') return p;
        from = p + 1;
    }
    return n;
}

// The record text of the tag at p: past the tag and the low size byte, past
// any zero bytes, up to the next zero byte, at most 119 bytes. A chunk of 256
// bytes or more thus reads as text starting with its second size byte; the
// cameras never write records that long.
std::string_view recordText(const unsigned char* d, std::size_t n, std::size_t p) {
    std::size_t q = p + 5;
    while (q < n && d[q] == 0) ++q;
    if (q >= n) return {};
    const std::size_t max = std::min(kMaxText, n - q);
    const void* z = std::memchr(d + q, 0, max);
    const std::size_t len = z ? static_cast<std::size_t>(static_cast<const unsigned char*>(z) - (d + q)) : max;
    return {reinterpret_cast<const char*>(d + q), len};
}

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
    TextRecordScan(const MappedFile& file) : file_(file), d_(file.data()), n_(file.size()), second_(raw_) {}

    int run(OrvoClipData& out) {
        GpsFix held;
        bool gpsSeen = false;
        std::size_t secondStart = 0;
        for (std::size_t p = nextTag(d_, n_, 0); p < n_ && !raw_.full(); p = nextTag(d_, n_, p + 1)) {
            GReading g;
            switch (classify(recordText(d_, n_, p), f_, g)) {
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
            file_.releaseBefore(p);
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
        for (std::size_t p = nextTag(d_, n_, from); p < to && got < want; p = nextTag(d_, n_, p + 1)) {
            GReading g;
            if (classify(recordText(d_, n_, p), f_, g) != Kind::Reading) continue;
            while (got < want && idx[got] == k) chosen[got++] = g;
            ++k;
            file_.releaseBefore(p);
        }
        second_.close(fix, chosen);
    }

    const MappedFile& file_;
    const unsigned char* d_;
    std::size_t n_;
    RawSamples raw_;
    SecondResampler second_;
    std::vector<std::string_view> f_;
};

}  // namespace

int readTextRecords(const MappedFile& file, OrvoClipData& out) {
    out.setGpsDataCount(0);
    if (!file.data()) return 0;
    auto scan = std::make_unique<TextRecordScan>(file);
    return scan->run(out);
}

}  // namespace tarvik::readers
