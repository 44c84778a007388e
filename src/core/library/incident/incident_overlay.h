#pragma once
// The overlay of an incident video as an ASS subtitle file, drawn by ffmpeg's
// libass: for every tenth of a second, the camera's clock, the speed, the
// three G values and the position, worked out as the dashboard does at the
// same moment (sample trunc(t x 10), G as raw x 4 / 512 to three places,
// degrees to four, km/h or rounded mph).

#include <string>

#include "core/library/incident/incident_span.h"

namespace tarvik {

struct OverlayOptions {
    bool mph = false;
};

std::string incidentOverlayAss(const IncidentSpan& span, const OverlayOptions& options);

}  // namespace tarvik
