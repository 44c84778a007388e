// tarvik trips CARD [--json]: the drives on a card, each a run of clips
// recorded one after another.
#include <cmath>
#include <cstdio>
#include <string>

#include "cli/commands.h"
#include <nlohmann/json.hpp>

#include "core/settings/profile/json_value.h"
#include "core/library/trips/trip_scanner.h"

namespace tarvik::cli {

int tripsCommand(const CardFolderOptions& o) {
    setLibraryLogging(o.verbose);
    const std::string& card = o.card;
    const bool json = o.json;
    const std::vector<Trip> trips = scanCardTrips(card, true);
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (std::size_t i = 0; i < trips.size(); ++i) {
        const Trip& t = trips[i];
        if (json) {
            nlohmann::ordered_json clips = nlohmann::ordered_json::array();
            for (const auto& c : t.clips)
                clips.push_back({{"path", c.path},
                                 {"partner", c.partner.empty() ? nlohmann::ordered_json() : nlohmann::ordered_json(c.partner)}});
            list.push_back({{"folder", t.folder},
                            {"start", tripTimeText(t.start)},
                            {"end", tripTimeText(t.end)},
                            {"duration_seconds", std::llround(t.seconds())},
                            {"distance_metres", std::llround(t.distanceMetres)},
                            {"top_speed_kmh", t.topSpeedKmh},
                            {"has_telemetry", t.hasTelemetry},
                            {"clips", std::move(clips)}});
        } else {
            const long s = static_cast<long>(t.seconds());
            std::printf("%s  %s  %ld:%02ld  %.2f km  %u km/h  %zu clips  %s\n", tripTimeText(t.start).c_str(),
                        tripTimeText(t.end).c_str() + 11, s / 60, s % 60, t.distanceMetres / 1000.0, t.topSpeedKmh,
                        t.clips.size(), t.folder.empty() ? "." : t.folder.c_str());
        }
    }
    if (json) std::fputs(jsonDocument(list).c_str(), stdout);
    return 0;
}

}  // namespace tarvik::cli
