#pragma once
// The text records the cameras write beside the picture, shared by the readers:
// "gsensor" / "gsensori" G readings and "GPRMC" / "GNRMC" position records.

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "core/telemetry/raw_samples.h"

namespace tarvik::records {

using Fields = std::vector<std::string_view>;

// ddmm.mmmm text to millionths of a degree (hemisphere not applied).
std::uint32_t nmeaToMicroDegrees(std::string_view text);
// Knots text to whole km/h, rounded half up.
std::uint32_t knotsToKmh(std::string_view knots);

// A position record whose fields start at `base` (its name at base + 0).
// Status "A" gives the position; anything else no fix ('N', 'E', speed 0).
GpsFix gpsFix(const Fields& f, std::size_t base = 0);

// "gsensor" with at least 4 fields, values unscaled.
std::optional<GReading> gsensor(const Fields& f);
// "gsensori" with at least 6 fields, scaled to 1/128 g and clamped to +-512.
std::optional<GReading> gsensori(const Fields& f);

bool isPositionRecord(std::string_view name);  // "GPRMC" or "GNRMC"

}  // namespace tarvik::records
