#pragma once
// The telemetry subtitle track of an MP4 clip, extracted to an SRT side file,
// and the two look-ups the dashboard makes on every tick.
//
// Cue times wrap every hour, so a track spans at most 100 minutes of cue time
// whatever its length in bytes. The track is kept per tenth of a second, and
// only the cues a look-up can ever answer with are kept: the first at the
// tenth itself and, for positions, the earliest and the two latest inside
// the tenth. Memory is thus bounded (a few MiB at most) and a look-up costs
// the same for 650 cues as for millions. Cues out of time order are taken in
// time order.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/telemetry/subtitle_entry.h"

namespace tarvik {

class SubtitleData {
public:
    // Result codes of getGpsAt().
    enum GpsResult : int { GpsExact = 0, GpsNearby = 1, GpsNone = 2 };

    static std::unique_ptr<SubtitleData> fromPath(const std::string& path);
    // Replaces the track; an unreadable file leaves it empty.
    void loadFromPath(const std::string& path);
    // Same, from text already in memory.
    void loadFromText(std::string_view text);

    // t is a tenth-of-second index. True when a cue starts exactly at t * 100 ms;
    // otherwise false and x, y, z are left alone.
    bool getSensorAt(unsigned t, int& x, int& y, int& z) const;
    // 0: a positioned cue at exactly t * 100 ms; 1: the nearest positioned cue
    // (or two, interpolated) less than 1000 ms away; 2: no position.
    int getGpsAt(unsigned t, float& lat, float& lng, unsigned& speed) const;

    // How many cues the track held.
    std::size_t cueCount() const { return cues_; }
    bool empty() const { return cues_ == 0; }
    // Bytes held for the look-ups.
    std::size_t memoryUse() const { return tenths_.capacity() * sizeof(Tenth); }

    int clipDataCount() const { return clipDataCount_; }
    void setClipDataCount(int c) { clipDataCount_ = c; }
    int gpsDataCount() const { return gpsDataCount_; }
    void setGpsDataCount(int c) { gpsDataCount_ = c; }

private:
    struct Point {
        std::uint32_t cts;
        float lat, lng;
        std::uint32_t speed;
    };
    // The cues of [100 t, 100 t + 100) ms that matter.
    struct Tenth {
        std::int16_t gx, gy, gz;
        bool sensor = false;  // a cue at exactly 100 t (gx..gz are its values)
        bool exact = false, low = false, high = false, high2 = false;
        Point atStart{};  // the first positioned cue at exactly 100 t
        Point lowest{}, highest{}, second{};  // inside the tenth, by time
    };
    template <typename NextLine>
    void parse(NextLine nextLine);
    void clear();
    void add(const SubtitleEntry& e);
    // The positioned cues less than 1000 ms below `target`, nearest first (at most two).
    int below(std::uint64_t target, const Point* out[2]) const;
    const Point* above(std::uint64_t target) const;

    std::vector<Tenth> tenths_;
    std::size_t cues_ = 0;
    int clipDataCount_ = 0;
    int gpsDataCount_ = 0;
};

}  // namespace tarvik
