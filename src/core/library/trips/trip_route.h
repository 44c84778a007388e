#pragma once
// A trip's telemetry read clip after clip: the whole route, its length and top
// speed, and the samples for export. Seconds count from the trip's start.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/library/trips/trip.h"
#include "core/telemetry/route_exporter.h"

namespace tarvik {

struct TripRoute {
    std::int64_t start = 0;  // the trip's start as the camera's clock read it
    std::vector<RoutePoint> points;
    std::vector<std::size_t> clipFirstPoint;  // index into points where each clip's part begins
    double distanceMetres = 0;
    unsigned topSpeedKmh = 0;
    bool hasTelemetry = false;
    std::string csvRows;  // RouteExporter's CSV rows, filled when asked for
};

TripRoute readTripRoute(const Trip& trip, bool withCsv = false);
// Fills the trip's distance, top speed and hasTelemetry.
void measureTrip(Trip& trip);

// The route in one of the formats of `tarvik telemetry`: "gpx", "kml",
// "geojson" or "csv"; "" for another format.
std::string exportTripRoute(const TripRoute& route, std::string_view format, std::string_view name);

// Great-circle distance in metres.
double metresBetween(double lat1, double lng1, double lat2, double lng2);

}  // namespace tarvik
