#include <algorithm>
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

// Walks an SRT text cue by cue the lenient way: white space between the parts
// of a cue is skipped, the body runs up to the next empty line.
class CueScanner {
public:
    explicit CueScanner(std::string_view t, std::size_t pos = 0) : t_(t), pos_(pos) {}

    // The next cue's body (untrimmed) and where the cue began; false at the end.
    bool next(std::string_view& body, std::size_t& cueStart) {
        skipSpace();
        if (pos_ >= t_.size()) return false;
        cueStart = pos_;
        upTo("\n");  // cue number
        skipSpace();
        upTo(" --> ");  // start time
        skipSpace();
        if (t_.substr(pos_, 3) == "-->") pos_ += 3;
        skipSpace();
        upTo("\n");  // end time
        skipSpace();
        body = upTo("\n\n");
        return true;
    }
    std::size_t pos() const { return pos_; }

private:
    void skipSpace() {
        while (pos_ < t_.size() && text::isSpace(static_cast<unsigned char>(t_[pos_]))) ++pos_;
    }
    std::string_view upTo(std::string_view stop) {
        std::size_t e = t_.find(stop, pos_);
        if (e == std::string_view::npos) e = t_.size();
        std::string_view s = t_.substr(pos_, e - pos_);
        pos_ = e;
        return s;
    }
    std::string_view t_;
    std::size_t pos_;
};

// What one cue carries. A body's line breaks count as spaces: every use of the
// fields below skips or compares white space alike, so the body is read in
// place rather than copied.
struct Cue {
    bool reading = false;  // a G reading of its own
    bool car = false;      // "CAR": a reading only for a second that has none yet
    GReading g;
    bool position = false;
    GpsFix fix;
};

void readCue(std::string_view body, std::vector<std::string_view>& f, Cue& cue) {
    cue = Cue{};
    body = text::trim(body);
    f.clear();
    const std::size_t semi = body.find(';');
    if (semi == std::string_view::npos) {
        text::splitBounded(body, ',', f);
    } else {
        text::splitBounded(body.substr(0, semi), ',', f);
        const std::string_view rest = body.substr(semi + 1);
        text::splitBounded(rest.substr(0, rest.find(';')), ',', f, f.size() + 16);
    }
    const std::string_view kind = f[0];
    if (kind == "gsensor") {
        if (auto g = records::gsensor(f)) cue.reading = true, cue.g = *g;
    } else if (kind == "gsensori") {
        if (auto g = records::gsensori(f)) {
            cue.reading = true, cue.g = *g;
            if (f.size() >= 13 && records::isPositionRecord(f[6])) {
                cue.position = true;
                cue.fix = records::gpsFix(f, 6);
            }
        }
    } else if (kind == "CAR") {
        if (auto g = records::gsensor(f)) cue.car = true, cue.g = *g;
    } else if (records::isPositionRecord(kind) && f.size() >= 6) {
        cue.position = true;
        cue.fix = records::gpsFix(f);
    }
}

// The reading a cue adds to a second that already holds `pending` readings.
bool cueReading(const Cue& cue, std::size_t pending, const GReading& last, GReading& g) {
    if (cue.reading) {
        g = cue.g;
        return true;
    }
    if (cue.car) {
        g = pending == 0 ? cue.g : last;
        return true;
    }
    return false;
}

class SrtScan {
public:
    SrtScan(const MappedFile& file, std::string_view text) : file_(file), t_(text), second_(raw_) {}

    int run(OrvoClipData& out) {
        CueScanner cues(t_);
        file_.scannedUpTo(0);
        std::string_view body;
        std::size_t cueStart = 0, secondStart = 0;
        GpsFix held;
        bool gpsSeen = false;
        Cue cue;
        while (!raw_.full() && cues.next(body, cueStart)) {
            readCue(body, f_, cue);
            GReading g;
            if (cueReading(cue, second_.pending(), second_.last(), g)) {
                if (second_.pending() == 0) secondStart = cueStart;
                second_.add(g);
            }
            if (cue.position) {
                held = cue.fix;
                gpsSeen = true;
                closeSecond(held, secondStart, cues.pos());
            }
            file_.scannedUpTo(static_cast<std::size_t>(t_.data() + cueStart -
                                                         reinterpret_cast<const char*>(file_.data())));
        }
        if (raw_.count() == 0 && second_.pending() > 0) {
            if (gpsSeen) {
                out.setGpsDataCount(0);
                return 0;
            }
            for (const GReading& r : second_.kept()) raw_.push(r, GpsFix{});
        } else if (second_.pending() > 0 && !raw_.full()) {
            closeSecond(held, secondStart, t_.size());
        }
        return raw_.finish(out);
    }

private:
    void closeSecond(const GpsFix& fix, std::size_t from, std::size_t to) {
        if (!second_.needsReplay()) {
            second_.close(fix);
            return;
        }
        // Too many readings to keep: read the second's cues again for the chosen ones.
        std::size_t idx[10];
        GReading chosen[10];
        const int want = SecondResampler::pick(second_.pending(), idx);
        CueScanner cues(t_.substr(0, to), from);
        std::string_view body;
        std::size_t cueStart = 0, k = 0;
        int got = 0;
        GReading last;
        Cue cue;
        while (got < want && cues.next(body, cueStart)) {
            readCue(body, f_, cue);
            GReading g;
            if (!cueReading(cue, k, last, g)) continue;
            while (got < want && idx[got] == k) chosen[got++] = g;
            last = g;
            ++k;
        }
        second_.close(fix, chosen);
    }

    const MappedFile& file_;
    std::string_view t_;
    RawSamples raw_;
    SecondResampler second_;
    std::vector<std::string_view> f_;
};

}  // namespace

int readSrtCues(const MappedFile& file, OrvoClipData& out) {
    out.setGpsDataCount(0);
    const unsigned char* d = file.data();
    const std::size_t n = file.size();
    if (n == 0 || !text::isValidUtf8(file, 0)) return 0;
    auto scan = std::make_unique<SrtScan>(file, std::string_view(reinterpret_cast<const char*>(d), n));
    return scan->run(out);
}

}  // namespace tarvik::readers
