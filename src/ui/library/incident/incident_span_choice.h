#pragma once
// The span an export starts from, as the viewer offers it: the marked in and
// out points, a clip whole (or several following clips), or a whole trip.

#include <optional>
#include <string>
#include <vector>

#include "core/library/incident/incident_span.h"

namespace tarvik {

// From the start of the first clip to the end of the last, which must belong
// to one trip of the card at root; none when they do not, or when a
// clip's length is unknown.
std::optional<IncidentSpan> spanOfClips(const std::string& root, const std::vector<std::string>& clips);
std::optional<IncidentSpan> spanOfTrip(const std::string& root, const Trip& trip);

}  // namespace tarvik
