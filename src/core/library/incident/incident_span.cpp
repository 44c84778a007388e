#include "core/library/incident/incident_span.h"

#include <algorithm>
#include <cstdio>

#include "core/library/trips/clip_container.h"
#include "core/library/trips/trip_builder.h"
#include "core/library/trips/trip_scanner.h"

namespace tarvik {

double IncidentSpan::seconds() const {
    double s = 0;
    for (const IncidentPart& p : parts) s += p.to - p.from;
    return s;
}

bool IncidentSpan::holds(double t) const {
    return std::any_of(parts.begin(), parts.end(), [t](const IncidentPart& p) {
        const double at = t - double(p.clip.start);
        return at >= p.from - 1e-6 && at < p.to;
    });
}

std::optional<IncidentSpan> spanWithin(const Trip& trip, double from, double to) {
    if (!(to > from) || trip.clips.empty()) return std::nullopt;
    // Times typed to the second may name the end of the drive a fraction
    // after its last picture: that is the end.
    const TripClip& last = trip.clips.back();
    const double end = double(last.start) + last.seconds;
    if (to > end && to < end + 1.0) to = end;
    IncidentSpan span;
    for (const TripClip& c : trip.clips) {
        const double begin = double(c.start), end = begin + c.seconds;
        if (c.seconds <= 0 || end <= from || begin >= to) continue;
        span.parts.push_back({c, std::max(from, begin) - begin, std::min(to, end) - begin});
    }
    // Both points must fall on recorded pictures of this trip.
    if (span.parts.empty() || from < double(span.parts.front().clip.start) ||
        to > double(span.parts.back().clip.start) + span.parts.back().clip.seconds)
        return std::nullopt;
    return span;
}

std::optional<IncidentSpan> findIncidentSpan(const std::string& root, double from, double to, bool wantRear,
                                             std::string* why) {
    if (!(to > from)) {
        if (why) *why = "the end of the span is not after its start";
        return std::nullopt;
    }
    // A moment can lie in several trips (a clip saved by the viewer keeps its
    // recording time): the one with both cameras wins when both are wanted.
    std::optional<IncidentSpan> found;
    std::string runsPast;
    for (const Trip& trip : scanCardTrips(root, false)) {
        if (from < double(trip.start) || from >= double(trip.end)) continue;
        // A clip of unknown length inside the span (cut short, or never
        // closed) would leave a hole the video could not show.
        const auto hole = std::find_if(trip.clips.begin(), trip.clips.end(), [&](const TripClip& c) {
            return c.seconds <= 0 && double(c.start) + 1 > from && double(c.start) < to;
        });
        if (hole != trip.clips.end()) {
            const ContainerInfo info = inspectClipContainer(hole->path);
            runsPast = hole->path + " lies in the span and is " + containerStateText(info.state) +
                       ": the span cannot be exported whole";
            continue;
        }
        auto span = spanWithin(trip, from, to);
        if (!span) {
            runsPast = "the span runs past the end of the drive it starts in (" + tripTimeText(trip.end) + ")";
            continue;
        }
        span->root = root;
        const bool bothCameras = std::all_of(span->parts.begin(), span->parts.end(),
                                             [](const IncidentPart& p) { return !p.clip.partner.empty(); });
        if (!found || (wantRear && bothCameras)) found = std::move(span);
        if (!wantRear || bothCameras) break;
    }
    if (!found && why)
        *why = runsPast.empty() ? "no clip on the card was recording at the start of the span" : runsPast;
    return found;
}

std::optional<double> parseCameraTime(const std::string& text) {
    int y, mo, d, h, mi, s;
    char tail;
    if (std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%c", &y, &mo, &d, &h, &mi, &s, &tail) != 6) return std::nullopt;
    char name[32];
    std::snprintf(name, sizeof name, "%04d%02d%02d_%02d%02d%02d", y, mo, d, h, mi, s);
    const auto t = clipStartFromName(name);
    if (!t) return std::nullopt;
    return double(*t);
}

}  // namespace tarvik
