#pragma once
// Telemetry of the camera families whose layouts the viewer's own five
// readers do not know, found by the clip's content: GPMF tracks, "freeGPS "
// blocks, the "free" box logs, "GPS " record boxes, NMEA text tracks, and
// last NMEA / G-table side files beside the clip.

#include <string>

namespace tarvik {

class OrvoClipData;

// Sets the clip data count (0 when nothing was found) and returns it.
int readTelemetryByContent(const std::string& clipPath, OrvoClipData& out);

}  // namespace tarvik
