#include "ui/library/incident/incident_span_choice.h"

#include "core/library/trips/trip_scanner.h"

namespace tarvik {

std::optional<IncidentSpan> spanOfTrip(const std::string& root, const Trip& trip) {
    if (trip.clips.empty()) return std::nullopt;
    const TripClip& last = trip.clips.back();
    auto span = spanWithin(trip, double(trip.clips.front().start), double(last.start) + last.seconds);
    if (span) span->root = root;
    return span;
}

std::optional<IncidentSpan> spanOfClips(const std::string& root, const std::vector<std::string>& clips) {
    if (clips.empty() || root.empty()) return std::nullopt;
    for (const Trip& trip : scanCardTrips(root, false)) {
        const int first = trip.indexOf(clips.front()), last = trip.indexOf(clips.back());
        if (first < 0) continue;
        if (last < first) return std::nullopt;
        Trip part = trip;
        part.clips.assign(trip.clips.begin() + first, trip.clips.begin() + last + 1);
        return spanOfTrip(root, part);
    }
    return std::nullopt;
}

}  // namespace tarvik
