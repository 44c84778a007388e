#include "core/telemetry/route_exporter.h"

#include <cmath>
#include <cstdio>
#include <ctime>

#include "core/telemetry/orvo_clip_data.h"

namespace tarvik {

namespace {

std::string fmt(const char* f, auto... args) {
    char buf[160];
    std::snprintf(buf, sizeof buf, f, args...);
    return buf;
}

std::string xmlEscape(std::string_view s) {
    std::string out;
    for (char c : s) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        case '\'': out += "&apos;"; break;
        default:
            // Control characters are not allowed in XML 1.0.
            if (static_cast<unsigned char>(c) >= 0x20 || c == '\t' || c == '\n') out += c;
        }
    }
    return out;
}

std::string jsonEscape(std::string_view s) {
    std::string out;
    for (char c : s) {
        if (c == '"' || c == '\\') out += '\\', out += c;
        else if (static_cast<unsigned char>(c) < 0x20) out += fmt("\\u%04x", static_cast<unsigned char>(c));
        else out += c;
    }
    return out;
}

}  // namespace

std::vector<RoutePoint> RouteExporter::route(const OrvoClipData& d) {
    std::vector<RoutePoint> out;
    for (int i = 0; i < d.clipDataCount() && i < OrvoClipData::kCapacity; ++i) {
        const float lat = d.getGpsLat(i), lng = d.getGpsLng(i);
        if (lat == 0.0f && lng == 0.0f) continue;
        if (!out.empty() && out.back().lat == lat && out.back().lng == lng) continue;
        out.push_back({i / 10.0, lat, lng, d.getGpsSpeed(i)});
    }
    return out;
}

std::string RouteExporter::csv(const OrvoClipData& d) { return "t,gx,gy,gz,lat,lng,speed\n" + csvRows(d, 0); }

std::string RouteExporter::csvRows(const OrvoClipData& d, double offset) {
    std::string out;
    for (int i = 0; i < d.clipDataCount() && i < OrvoClipData::kCapacity; ++i)
        out += fmt("%.1f,%.3f,%.3f,%.3f,%.6f,%.6f,%u\n", offset + i / 10.0, d.getGx(i) / 128.0, d.getGy(i) / 128.0,
                   d.getGz(i) / 128.0, d.getGpsLat(i), d.getGpsLng(i), d.getGpsSpeed(i));
    return out;
}

std::string RouteExporter::gpx(const OrvoClipData& d, std::string_view name, std::optional<std::int64_t> start) {
    return gpx(route(d), name, start);
}
std::string RouteExporter::kml(const OrvoClipData& d, std::string_view name) { return kml(route(d), name); }
std::string RouteExporter::geoJson(const OrvoClipData& d, std::string_view name) { return geoJson(route(d), name); }

std::string RouteExporter::gpxTime(std::int64_t cameraStart, double seconds) {
    const std::time_t naive = static_cast<std::time_t>(cameraStart);
    std::tm fields{};
    if (!gmtime_r(&naive, &fields)) return {};
    fields.tm_isdst = -1;
    const std::time_t utc = std::mktime(&fields);
    if (utc == static_cast<std::time_t>(-1)) return {};
    const long long tenths = std::llround(seconds * 10);
    const std::time_t at = utc + static_cast<std::time_t>(tenths / 10);
    std::tm out{};
    if (!gmtime_r(&at, &out)) return {};
    return fmt("%04d-%02d-%02dT%02d:%02d:%02d.%01lldZ", out.tm_year + 1900, out.tm_mon + 1, out.tm_mday, out.tm_hour,
               out.tm_min, out.tm_sec, tenths % 10);
}

std::string RouteExporter::gpx(const std::vector<RoutePoint>& r, std::string_view name,
                               std::optional<std::int64_t> start) {
    std::string out =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<gpx version=\"1.1\" creator=\"tarvik\" xmlns=\"http://www.topografix.com/GPX/1/1\">\n"
        "  <trk>\n    <name>" + xmlEscape(name) + "</name>\n    <trkseg>\n";
    for (const RoutePoint& p : r) {
        // GPX wants <time> before <desc>.
        const std::string time = start ? gpxTime(*start, p.seconds) : std::string();
        out += fmt("      <trkpt lat=\"%.6f\" lon=\"%.6f\">", p.lat, p.lng);
        if (!time.empty()) out += "<time>" + time + "</time>";
        out += fmt("<desc>t=%.1f s, %u km/h</desc></trkpt>\n", p.seconds, p.speed);
    }
    out += "    </trkseg>\n  </trk>\n</gpx>\n";
    return out;
}

std::string RouteExporter::kml(const std::vector<RoutePoint>& r, std::string_view name) {
    std::string out =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<kml xmlns=\"http://www.opengis.net/kml/2.2\">\n  <Document>\n    <name>" + xmlEscape(name) + "</name>\n";
    if (!r.empty()) {
        // A line needs two positions; a single fix is a point.
        out += "    <Placemark>\n      <name>" + xmlEscape(name) + "</name>\n";
        out += r.size() == 1 ? "      <Point>\n        <coordinates>" : "      <LineString>\n        <coordinates>";
        for (std::size_t i = 0; i < r.size(); ++i) out += fmt("%s%.6f,%.6f,0", i ? " " : "", r[i].lng, r[i].lat);
        out += r.size() == 1 ? "</coordinates>\n      </Point>\n" : "</coordinates>\n      </LineString>\n";
        out += "    </Placemark>\n";
    }
    out += "  </Document>\n</kml>\n";
    return out;
}

std::string RouteExporter::geoJson(const std::vector<RoutePoint>& r, std::string_view name) {
    std::string out = "{\"type\":\"FeatureCollection\",\"features\":[";
    if (!r.empty()) {
        out += "{\"type\":\"Feature\",\"properties\":{\"name\":\"" + jsonEscape(name) + "\"},\"geometry\":";
        if (r.size() == 1) {
            out += fmt("{\"type\":\"Point\",\"coordinates\":[%.6f,%.6f]}", r[0].lng, r[0].lat);
        } else {
            out += "{\"type\":\"LineString\",\"coordinates\":[";
            for (std::size_t i = 0; i < r.size(); ++i) out += fmt("%s[%.6f,%.6f]", i ? "," : "", r[i].lng, r[i].lat);
            out += "]}";
        }
        out += "}";
    }
    out += "]}\n";
    return out;
}

}  // namespace tarvik
