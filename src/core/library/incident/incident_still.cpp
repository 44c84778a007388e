#include "core/library/incident/incident_still.h"

#include <stdlib.h>

#include <algorithm>
#include <filesystem>

#include "core/library/incident/incident_probe.h"
#include "core/util/atomic_file.h"
#include "core/util/process_runner.h"

namespace tarvik {

namespace fs = std::filesystem;

bool writeIncidentStill(const IncidentSpan& span, double at, const IncidentStill& still, const std::string& png,
                        std::string* why) {
    auto fail = [why](std::string text) {
        if (why) *why = std::move(text);
        return false;
    };
    // The moment as a span of its own, one part long: the first picture
    // decoded at its in point is the one shown at that moment.
    IncidentSpan moment;
    moment.root = span.root;
    for (const IncidentPart& p : span.parts) {
        const double from = at - double(p.clip.start);
        if (from < p.from - 1e-6 || from >= p.to) continue;
        moment.parts.push_back({p.clip, std::max(from, p.from), std::min(p.to, from + 0.5)});
        break;
    }
    if (moment.parts.empty()) return fail("the moment lies outside the span");
    IncidentVideoOptions video = still.video;
    char scratch[] = "/tmp/tarvik-still-XXXXXX";
    const bool scratchMade = still.overlay && ::mkdtemp(scratch);
    std::error_code ec;
    if (still.overlay) {
        video.overlayFile = std::string(scratch) + "/overlay.ass";
        OverlayOptions drawn = still.overlayOptions;
        drawn.frameWidth = overlayFrameWidth(moment, video.layout);
        if (!scratchMade || !writeFileAtomically(video.overlayFile, incidentOverlayAss(moment, drawn)))
            return fail("the overlay cannot be written");
    }
    const std::string partial = png + ".partial";
    const ProcessResult r =
        ProcessRunner::run(incidentFfmpeg(), incidentStillArguments(moment, video, partial), std::chrono::minutes(1));
    if (scratchMade) fs::remove_all(scratch, ec);
    if (r.exitCode != 0 || !fs::exists(partial, ec)) {
        fs::remove(partial, ec);
        return fail("ffmpeg could not draw the still" + (r.output.empty() ? std::string() : ": " + r.output));
    }
    fs::rename(partial, png, ec);
    if (ec) {
        fs::remove(partial, ec);
        return fail(png + ": cannot be written");
    }
    return true;
}

}  // namespace tarvik
