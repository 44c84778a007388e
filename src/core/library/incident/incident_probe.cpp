#include "core/library/incident/incident_probe.h"

#include <chrono>
#include <cmath>
#include <cstdio>

#include "core/util/process_runner.h"

namespace tarvik {

std::string probeFirstStream(const std::string& clip, const char* kind, const char* entries) {
    std::string probe = incidentFfmpeg();
    const auto slash = probe.rfind('/');
    probe = (slash == std::string::npos ? std::string() : probe.substr(0, slash + 1)) + "ffprobe";
    const ProcessResult r = ProcessRunner::run(probe,
                                               {"-v", "error", "-select_streams", std::string(kind) + ":0",
                                                "-show_entries", std::string("stream=") + entries, "-of", "csv=p=0", clip},
                                               std::chrono::seconds(30));
    if (r.exitCode != 0) return {};
    std::string out = r.output;
    while (!out.empty() && (out.back() == '\n' || out.back() == '\r' || out.back() == ',')) out.pop_back();
    return out;
}

bool hasSound(const std::string& clip) {
    return probeFirstStream(clip, "a", "index").find_first_of("0123456789") != std::string::npos;
}

namespace {

// Width over height of a clip's picture; 0 when unknown.
double aspectOf(const std::string& clip) {
    int w = 0, h = 0;
    if (clip.empty() || std::sscanf(probeFirstStream(clip, "v", "width,height").c_str(), "%d,%d", &w, &h) != 2 ||
        w <= 0 || h <= 0)
        return 0;
    return double(w) / h;
}

}  // namespace

int overlayFrameWidth(const IncidentSpan& span, IncidentLayout layout) {
    constexpr int kDefault = 1280;
    if (span.parts.empty()) return kDefault;
    const TripClip& clip = span.parts.front().clip;
    const double front = aspectOf(layout == IncidentLayout::Rear ? clip.partner : clip.path);
    if (front <= 0) return kDefault;
    // Side by side, the rear stands at the front's height beside it.
    const double aspect = layout == IncidentLayout::Side ? front + aspectOf(clip.partner) : front;
    return int(std::lround(720 * aspect));
}

}  // namespace tarvik
