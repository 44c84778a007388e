// tarvik trips CARD [--json]: the drives on a card, each a run of clips
// recorded one after another.
#include <cstdio>
#include <string>

#include "cli/commands.h"
#include "core/settings/profile/json_value.h"
#include "core/library/trips/trip_scanner.h"

namespace tarvik::cli {

int tripsCommand(const CardFolderOptions& o) {
    setLibraryLogging(o.verbose);
    const std::string& card = o.card;
    const bool json = o.json;
    const std::vector<Trip> trips = scanCardTrips(card, true);
    if (json) std::printf("[");
    for (std::size_t i = 0; i < trips.size(); ++i) {
        const Trip& t = trips[i];
        if (json) {
            std::printf("%s\n  {\"folder\": %s, \"start\": %s, \"end\": %s, \"duration_seconds\": %.0f, "
                        "\"distance_metres\": %.0f, \"top_speed_kmh\": %u, \"has_telemetry\": %s, \"clips\": [",
                        i ? "," : "", jsonQuote(t.folder).c_str(), jsonQuote(tripTimeText(t.start)).c_str(),
                        jsonQuote(tripTimeText(t.end)).c_str(), t.seconds(), t.distanceMetres, t.topSpeedKmh,
                        t.hasTelemetry ? "true" : "false");
            for (std::size_t c = 0; c < t.clips.size(); ++c)
                std::printf("%s{\"path\": %s, \"partner\": %s}", c ? ", " : "", jsonQuote(t.clips[c].path).c_str(),
                            t.clips[c].partner.empty() ? "null" : jsonQuote(t.clips[c].partner).c_str());
            std::printf("]}");
        } else {
            const long s = static_cast<long>(t.seconds());
            std::printf("%s  %s  %ld:%02ld  %.2f km  %u km/h  %zu clips  %s\n", tripTimeText(t.start).c_str(),
                        tripTimeText(t.end).c_str() + 11, s / 60, s % 60, t.distanceMetres / 1000.0, t.topSpeedKmh,
                        t.clips.size(), t.folder.empty() ? "." : t.folder.c_str());
        }
    }
    if (json) std::printf("%s]\n", trips.empty() ? "" : "\n");
    return 0;
}

}  // namespace tarvik::cli
