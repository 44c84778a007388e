#include <algorithm>
#include <memory>
#include <string_view>
#include <vector>

#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/second_resampler.h"
#include "core/telemetry/telemetry_readers.h"
#include "core/telemetry/telemetry_records.h"
#include "core/telemetry/text_fields.h"
#include "core/telemetry/text_stream.h"

namespace tarvik::readers {

namespace {

// Walks an SRT text cue by cue the lenient way: white space between the parts
// of a cue is skipped, the body runs up to the next empty line. The text is
// read through a bounded window; a body longer than the window is cut.
class CueScanner {
public:
    explicit CueScanner(text::TextStream& t) : t_(t), pos_(t.begin()) {}

    // The next cue's body (untrimmed, valid until the next call) and where the
    // cue began; false at the end.
    bool next(std::string_view& body, std::size_t& cueStart) {
        skipSpace();
        if (pos_ >= t_.end()) return false;
        cueStart = pos_;
        skipTo("\n");  // cue number
        skipSpace();
        skipTo(" --> ");  // start time
        skipSpace();
        if (t_.at(pos_) == '-' && t_.at(pos_ + 1) == '-' && t_.at(pos_ + 2) == '>') pos_ += 3;
        skipSpace();
        skipTo("\n");  // end time
        skipSpace();
        const std::size_t from = pos_;
        skipTo("\n\n");
        body = t_.view(from, pos_);
        return true;
    }
    std::size_t pos() const { return pos_; }

private:
    void skipSpace() {
        for (int c = t_.at(pos_); c >= 0 && text::isSpace(static_cast<unsigned char>(c)); c = t_.at(++pos_)) {
        }
    }
    void skipTo(std::string_view stop) { pos_ = t_.find(stop, pos_); }
    text::TextStream& t_;
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
    explicit SrtScan(const BoundedFile& file)
        : t_(file, 0, file.size()), replay_(file, 0, file.size(), kReplayWindow), second_(raw_) {}

    int run(OrvoClipData& out) {
        CueScanner cues(t_);
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
        }
        if (raw_.count() == 0 && second_.pending() > 0) {
            if (gpsSeen) {
                out.setGpsDataCount(0);
                return 0;
            }
            for (const GReading& r : second_.kept()) raw_.push(r, GpsFix{});
        } else if (second_.pending() > 0 && !raw_.full()) {
            closeSecond(held, secondStart, t_.end());
        }
        return raw_.finish(out);
    }

private:
    static constexpr std::size_t kReplayWindow = 64u << 10;

    void closeSecond(const GpsFix& fix, std::size_t from, std::size_t to) {
        if (!second_.needsReplay()) {
            second_.close(fix);
            return;
        }
        // Too many readings to keep: read the second's cues again for the chosen ones.
        std::size_t idx[10];
        GReading chosen[10];
        const int want = SecondResampler::pick(second_.pending(), idx);
        replay_.reset(from, to);
        CueScanner cues(replay_);
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

    text::TextStream t_;
    text::TextStream replay_;
    RawSamples raw_;
    SecondResampler second_;
    std::vector<std::string_view> f_;
};

}  // namespace

int readSrtCues(const BoundedFile& file, OrvoClipData& out) {
    out.setGpsDataCount(0);
    if (file.size() == 0 || !text::isValidUtf8(file, 0)) return 0;
    auto scan = std::make_unique<SrtScan>(file);
    return scan->run(out);
}

}  // namespace tarvik::readers
