#pragma once
// The trips of a whole card: the catalogue's scan, each clip's length from its
// container, then the grouping rules.

#include <string>
#include <vector>

#include "core/library/trips/trip.h"

namespace tarvik {

// With measure, each trip's telemetry is read for its distance and top speed
// (an MP4's subtitle track costs one ffmpeg run per clip).
std::vector<Trip> scanCardTrips(const std::string& root, bool measure);

}  // namespace tarvik
