#pragma once
// A clip's telemetry as text for other tools: the samples as CSV, the route as
// GPX 1.1, KML 2.2 or GeoJSON (RFC 7946, longitude first). A clip without a
// fix gives an empty route, never an error.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

class OrvoClipData;

struct RoutePoint {
    double seconds = 0;  // from the clip's start
    float lat = 0, lng = 0;
    unsigned speed = 0;  // km/h
};

class RouteExporter {
public:
    // Samples with a fix, a repeated position (ten samples a second share one)
    // kept only once.
    static std::vector<RoutePoint> route(const OrvoClipData& data);

    // "t,gx,gy,gz,lat,lng,speed": seconds, G in g, degrees, km/h; one line per sample.
    static std::string csv(const OrvoClipData& data);
    // With the moment recording began (seconds since the epoch as the camera's
    // clock read it), every point gets its <time>.
    static std::string gpx(const OrvoClipData& data, std::string_view name,
                           std::optional<std::int64_t> cameraStart = std::nullopt);
    static std::string kml(const OrvoClipData& data, std::string_view name);
    static std::string geoJson(const OrvoClipData& data, std::string_view name);
    // The same for a route already gathered, such as a whole trip's.
    static std::string gpx(const std::vector<RoutePoint>& route, std::string_view name,
                           std::optional<std::int64_t> cameraStart = std::nullopt);
    // GPX time (UTC, ISO 8601, tenths of a second) of a point `seconds` after
    // `cameraStart`. The camera's clock is taken as the computer's local time:
    // cameras are set to the zone they drive in, as their owners' computers are.
    static std::string gpxTime(std::int64_t cameraStart, double seconds);
    static std::string kml(const std::vector<RoutePoint>& route, std::string_view name);
    static std::string geoJson(const std::vector<RoutePoint>& route, std::string_view name);
    // CSV rows (no header) with t shifted by offsetSeconds, for clips that follow one another.
    static std::string csvRows(const OrvoClipData& data, double offsetSeconds);
};

}  // namespace tarvik
