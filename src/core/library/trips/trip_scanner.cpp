#include "core/library/trips/trip_scanner.h"

#include "core/library/clip_catalogue.h"
#include "core/library/trips/clip_container.h"
#include "core/library/trips/trip_builder.h"
#include "core/library/trips/trip_route.h"

namespace tarvik {

std::vector<Trip> scanCardTrips(const std::string& root, bool measure) {
    ClipCatalogue catalogue;
    catalogue.refreshVideoFileListWithURL(root);
    std::vector<Trip> trips = TripBuilder::build(root, catalogue.allVideoFileList(), [](const std::string& p) {
        const ContainerInfo info = inspectClipContainer(p);
        return info.state == ContainerState::Playable ? info.seconds : 0.0;
    });
    if (measure)
        for (Trip& t : trips) measureTrip(t);
    return trips;
}

}  // namespace tarvik
