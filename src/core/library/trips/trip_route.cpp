#include "core/library/trips/trip_route.h"

#include <cmath>
#include <memory>

#include "core/library/trips/clip_telemetry_loader.h"
#include "core/telemetry/orvo_clip_data.h"

namespace tarvik {

double metresBetween(double lat1, double lng1, double lat2, double lng2) {
    constexpr double kR = 6371000.0, kRad = 3.14159265358979323846 / 180.0;
    const double dLat = (lat2 - lat1) * kRad, dLng = (lng2 - lng1) * kRad;
    const double a = std::sin(dLat / 2) * std::sin(dLat / 2) +
                     std::cos(lat1 * kRad) * std::cos(lat2 * kRad) * std::sin(dLng / 2) * std::sin(dLng / 2);
    return 2 * kR * std::asin(std::min(1.0, std::sqrt(a)));
}

TripRoute readTripRoute(const Trip& trip, bool withCsv) {
    TripRoute r;
    r.start = trip.start;
    auto data = std::make_unique<OrvoClipData>();  // 15 KiB: not on the stack
    for (const TripClip& c : trip.clips) {
        r.clipFirstPoint.push_back(r.points.size());
        loadClipTelemetry(c.path, *data);
        if (data->clipDataCount() == 0) continue;
        r.hasTelemetry = true;
        const double offset = double(c.start - trip.start);
        for (int i = 0; i < data->clipDataCount() && i < OrvoClipData::kCapacity; ++i) {
            const unsigned kmh = data->getGpsSpeed(i);
            if (kmh != OrvoClipData::kNoSpeed) r.topSpeedKmh = std::max(r.topSpeedKmh, kmh);
        }
        for (RoutePoint p : RouteExporter::route(*data)) {
            p.seconds += offset;
            if (!r.points.empty())
                r.distanceMetres += metresBetween(r.points.back().lat, r.points.back().lng, p.lat, p.lng);
            r.points.push_back(p);
        }
        if (withCsv) r.csvRows += RouteExporter::csvRows(*data, offset);
    }
    return r;
}

void measureTrip(Trip& trip) {
    const TripRoute r = readTripRoute(trip);
    trip.distanceMetres = r.distanceMetres;
    trip.topSpeedKmh = r.topSpeedKmh;
    trip.hasTelemetry = r.hasTelemetry;
}

std::string exportTripRoute(const TripRoute& route, std::string_view format, std::string_view name) {
    if (format == "gpx") return RouteExporter::gpx(route.points, name, route.start);
    if (format == "kml") return RouteExporter::kml(route.points, name);
    if (format == "geojson") return RouteExporter::geoJson(route.points, name);
    if (format == "csv") return "t,gx,gy,gz,lat,lng,speed\n" + route.csvRows;
    return {};
}

}  // namespace tarvik
