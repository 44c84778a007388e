#pragma once
// A drive as the camera recorded it: consecutive clips of one recording type
// whose recording times follow each other. A front/rear pair is one recording,
// so it counts once; the front clip stands for it.

#include <cstdint>
#include <string>
#include <vector>

namespace tarvik {

// Clips further apart than this belong to different trips. Cameras close one
// clip and open the next within a second or two.
inline constexpr double kTripMaxGapSeconds = 5.0;

struct TripClip {
    std::string path;     // the front clip, or the only one
    std::string partner;  // the rear clip of the pair, or ""
    std::int64_t start = 0;  // seconds since the epoch, from the name, as the camera's clock read
    double seconds = 0;      // 0 when the container does not tell
};

struct Trip {
    std::string folder;  // the recording folder, "" for clips in the card's root
    std::vector<TripClip> clips;
    std::int64_t start = 0;
    std::int64_t end = 0;
    // Filled from the clips' telemetry when it is read; a trip without a fix has none.
    double distanceMetres = 0;
    unsigned topSpeedKmh = 0;
    bool hasTelemetry = false;

    double seconds() const { return double(end - start); }
    // The clip holding `path` (front or rear), or -1.
    int indexOf(const std::string& path) const;
};

// "2026-11-21 08:30:00" for seconds since the epoch, read as the camera's clock.
std::string tripTimeText(std::int64_t t);

}  // namespace tarvik
