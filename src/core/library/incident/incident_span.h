#pragma once
// The stretch of a drive an incident covers: from an in point to an out point
// of one trip, possibly across several clips (each a front/rear pair).

#include <optional>
#include <string>
#include <vector>

#include "core/library/trips/trip.h"

namespace tarvik {

struct IncidentPart {
    TripClip clip;     // the front clip (or the only one) and its rear partner
    double from = 0;   // seconds into the clip
    double to = 0;
};

struct IncidentSpan {
    std::string root;  // the card
    std::vector<IncidentPart> parts;
    // The in point, in seconds since the epoch as the camera's clock read it.
    double start() const { return parts.empty() ? 0 : double(parts.front().clip.start) + parts.front().from; }
    double seconds() const;
    // Whether the moment t (camera clock) lies in one of the parts.
    bool holds(double t) const;
};

// The parts of `trip` between the moments from and to (camera clock, seconds
// since the epoch); none when the two do not lie in the trip in that order.
std::optional<IncidentSpan> spanWithin(const Trip& trip, double from, double to);

// The same on the card at root, for the trip the in point lies in (with both
// cameras, when wantRear and such a trip is there); why it cannot be when it cannot.
std::optional<IncidentSpan> findIncidentSpan(const std::string& root, double from, double to, bool wantRear,
                                             std::string* why);

// "YYYY-MM-DD HH:MM:SS" as the camera's clock; none for anything else.
std::optional<double> parseCameraTime(const std::string& text);

}  // namespace tarvik
