#pragma once
// The telemetry subtitle track of an MP4 clip, extracted to an SRT side file:
// one entry per cue, and the two look-ups the dashboard makes on every tick.

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
    // Replaces entries(); an unreadable file leaves the list empty.
    void loadFromPath(const std::string& path);
    // Same, from text already in memory.
    void loadFromText(std::string_view text);

    // t is a tenth-of-second index. True when a cue starts exactly at t * 100 ms;
    // otherwise false and x, y, z are left alone.
    bool getSensorAt(unsigned t, int& x, int& y, int& z) const;
    // 0: a positioned cue at exactly t * 100 ms; 1: the nearest positioned cue
    // (or two, interpolated) less than 1000 ms away; 2: no position.
    int getGpsAt(unsigned t, float& lat, float& lng, unsigned& speed) const;

    const std::vector<SubtitleEntry>& entries() const { return entries_; }
    int clipDataCount() const { return clipDataCount_; }
    void setClipDataCount(int c) { clipDataCount_ = c; }
    int gpsDataCount() const { return gpsDataCount_; }
    void setGpsDataCount(int c) { gpsDataCount_ = c; }

private:
    std::vector<SubtitleEntry> entries_;
    int clipDataCount_ = 0;
    int gpsDataCount_ = 0;
};

}  // namespace tarvik
