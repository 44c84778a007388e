#pragma once
// One picture of an incident: the frame of both cameras at a moment, laid
// out and overlaid as the incident video is, as a PNG. ffmpeg draws it.

#include <string>

#include "core/library/incident/incident_overlay.h"
#include "core/library/incident/incident_span.h"
#include "core/library/incident/incident_video.h"

namespace tarvik {

struct IncidentStill {
    IncidentVideoOptions video;  // its overlay file is the still's own
    bool overlay = false;
    OverlayOptions overlayOptions;
};

// The picture at `at` (camera clock, within the span) written to `png`
// (under a partial name first). False with why when there is none; then no
// file is left.
bool writeIncidentStill(const IncidentSpan& span, double at, const IncidentStill& still, const std::string& png,
                        std::string* why);

}  // namespace tarvik
