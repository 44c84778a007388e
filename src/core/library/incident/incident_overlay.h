#pragma once
// The overlay of an incident video as an ASS subtitle file, drawn by ffmpeg's
// libass: for every tenth of a second, the camera's clock, the speed, the
// three G values and the position, worked out as the dashboard does at the
// same moment (sample trunc(t x 10), G as raw x 4 / 512 to three places,
// degrees to four, km/h or rounded mph); and, when asked, the span's route
// in the top left corner with a dot where the car is.

#include <string>

#include "core/library/incident/incident_span.h"

namespace tarvik {

struct OverlayOptions {
    bool mph = false;
    bool routeInset = false;
    // The frame's width at a height of 720, the shape of the picture it is
    // drawn on (libass stretches the frame to the picture).
    int frameWidth = 1280;
};

// Where the route inset lies in the overlay's 1280x720 frame (scaled with the picture).
inline constexpr int kRouteInsetLeft = 24, kRouteInsetTop = 24, kRouteInsetSize = 240;

std::string incidentOverlayAss(const IncidentSpan& span, const OverlayOptions& options);

}  // namespace tarvik
