#pragma once
// An incident handed over as evidence: a folder that is never on the card,
// holding the span as one video of both cameras (incident.mp4), every clip it
// touches copied byte for byte (originals/), a still of both cameras
// (still.png), its route with times
// (route.gpx), its samples (telemetry.csv), the overlay as drawn (overlay.ass,
// when asked for), what it is (incident.json) and
// the SHA-256 of every file in the form `sha256sum -c` checks (SHA256SUMS).
// The card is only read.

#include <functional>
#include <optional>
#include <string>

#include "core/library/incident/incident_overlay.h"
#include "core/library/incident/incident_span.h"
#include "core/library/incident/incident_video.h"

namespace tarvik {

struct IncidentExport {
    IncidentVideoOptions video;
    bool overlay = false;  // the clock, speed, G and position drawn over the picture
    OverlayOptions overlayOptions;
    std::string folder;          // created when missing; must not hold an incident yet
    std::string programVersion;  // written into incident.json
    // The moment of still.png (camera clock); the in point when none.
    std::optional<double> stillAt;
};

class IncidentExporter {
public:
    // What is being done and how much of the whole is done (0 to 1), for a
    // progress line; returning false cancels the export.
    using Progress = std::function<bool(const std::string& step, double done)>;

    // True when the whole folder was written. Otherwise (failed or cancelled)
    // false with why, and nothing of the export left in the folder.
    static bool write(const IncidentSpan& span, const IncidentExport& to, const Progress& progress, std::string* why);

    // Why `folder` cannot take an incident of the card at root ("" when it can):
    // the card itself, or a folder on it.
    static std::string destinationRefusal(const std::string& root, const std::string& folder);
};

}  // namespace tarvik
