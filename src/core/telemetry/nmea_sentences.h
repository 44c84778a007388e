#pragma once
// NMEA 0183 position sentences (RMC and GGA, any talker) in text the cameras
// write: a track's samples, a box of a clip, a side file. Sentence layouts
// from the NMEA 0183 standard's published sentence formats.

#include <optional>
#include <string_view>

#include "core/telemetry/timed_telemetry.h"

namespace tarvik::nmea {

struct Sentence {
    bool rmc = false;          // else GGA
    double secondOfDay = -1;   // hhmmss.sss of the fix; -1 when absent
    TimedFix fix;              // GGA carries no speed: kmh 0
};

// One sentence starting at '$'. A sentence whose "*hh" checksum does not
// match, or whose fields are not numbers where numbers belong, is none.
std::optional<Sentence> parse(std::string_view line);

// Sentences in a text, each with what precedes its '$' on the line (a
// "[1573468800000]" time code, say). RMC and GGA of one moment come in
// either order; both are handed over.
template <typename Fn>
void forEachSentence(std::string_view text, Fn&& fn) {
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t end = text.find_first_of("\r\n", at);
        if (end == std::string_view::npos) end = text.size();
        const std::string_view line = text.substr(at, end - at);
        const std::size_t dollar = line.find('$');
        if (dollar != std::string_view::npos)
            if (auto s = parse(line.substr(dollar))) fn(line.substr(0, dollar), *s);
        at = end + 1;
    }
}

// Fixes of one moment merged: position from either sentence, speed from RMC.
// Call add() for each sentence in order; a new moment hands the last one to
// `emit(seconds, fix)`, with seconds from the first moment seen.
class MomentMerger {
public:
    void add(double seconds, const Sentence& s);
    template <typename Emit>
    void flush(Emit&& emit) {
        if (pending_) emit(time_, fix_);
        pending_ = false;
    }
    template <typename Emit>
    void addAndEmit(double seconds, const Sentence& s, Emit&& emit) {
        if (pending_ && seconds != time_) flush(emit);
        add(seconds, s);
    }

private:
    bool pending_ = false;
    double time_ = 0;
    TimedFix fix_;
};

// Seconds of the day from hhmmss.sss made into seconds since a first moment,
// across midnight.
class DayClock {
public:
    double since(double secondOfDay);

private:
    double first_ = -1;
};

}  // namespace tarvik::nmea
