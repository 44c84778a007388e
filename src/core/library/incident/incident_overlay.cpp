#include "core/library/incident/incident_overlay.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>
#include <vector>

#include "core/library/trips/clip_telemetry_loader.h"
#include "core/telemetry/orvo_clip_data.h"

namespace tarvik {

namespace {

constexpr double kMilesPerKilometre = 0.621371;

std::string assTime(double t) {
    const long centis = std::lround(t * 100);
    char out[32];
    std::snprintf(out, sizeof out, "%ld:%02ld:%02ld.%02ld", centis / 360000, centis / 6000 % 60, centis / 100 % 60,
                  centis % 100);
    return out;
}

double gValue(int raw) { return static_cast<float>(raw * 4) * 0.001953125f; }

// The overlay's text at second t of the clip.
std::string textAt(const TripClip& clip, const OrvoClipData& data, double t, bool mph) {
    std::string text = tripTimeText(clip.start + std::int64_t(std::floor(t)));
    const int index = int(std::floor(t * 10.0 + 1e-9));
    if (index < 0 || index >= data.clipDataCount()) return text;
    int x = 0, y = 0, z = 0;
    float lat = 0, lng = 0;
    unsigned speed = 0;
    data.getClipDataWithIndex(index, x, y, z, lat, lng, speed);
    char line[192];
    if (speed != OrvoClipData::kNoSpeed) {
        const unsigned shown = mph ? unsigned(std::roundf(float(speed * kMilesPerKilometre))) : speed;
        std::snprintf(line, sizeof line, "   %u %s", shown, mph ? "mph" : "km/h");
        text += line;
    }
    std::snprintf(line, sizeof line, "   G %.3f %.3f %.3f", gValue(x), gValue(y), gValue(z));
    text += line;
    if (lat != 0.0f || lng != 0.0f) {
        std::snprintf(line, sizeof line, "   %.4f %.4f", lat, lng);
        text += line;
    }
    return text;
}

// A position of the span, `at` seconds into the video.
struct RoutePoint {
    double at;
    double lat, lng;
};

// Positions onto the inset: north up, east right, one scale for both axes
// (a degree of longitude shrunk by the latitude's cosine), the route centred.
class InsetProjection {
public:
    explicit InsetProjection(const std::vector<RoutePoint>& points) {
        for (const RoutePoint& p : points) {
            minLat_ = std::min(minLat_, p.lat), maxLat_ = std::max(maxLat_, p.lat);
            minLng_ = std::min(minLng_, p.lng), maxLng_ = std::max(maxLng_, p.lng);
        }
        cos_ = std::cos((minLat_ + maxLat_) / 2 * M_PI / 180);
        const double span = std::max({(maxLng_ - minLng_) * cos_, maxLat_ - minLat_, 1e-6});
        scale_ = (kRouteInsetSize - 2 * kMargin) / span;
    }
    long x(double lng) const {
        return std::lround(kRouteInsetLeft + kRouteInsetSize / 2.0 + (lng - (minLng_ + maxLng_) / 2) * cos_ * scale_);
    }
    long y(double lat) const {
        return std::lround(kRouteInsetTop + kRouteInsetSize / 2.0 - (lat - (minLat_ + maxLat_) / 2) * scale_);
    }

private:
    static constexpr int kMargin = 16;
    double minLat_ = 90, maxLat_ = -90, minLng_ = 180, maxLng_ = -180, cos_ = 1, scale_ = 1;
};

// The inset: a dark square, the route as a line (drawn there and back, since
// a drawing closes its shape), and the car's dot moving along it.
std::string routeInsetEvents(const std::vector<RoutePoint>& points, double seconds) {
    if (points.size() < 2) return {};
    const InsetProjection at(points);
    const std::string whole = "Dialogue: 0," + assTime(0) + "," + assTime(seconds) + ",Route,";
    const std::string box = std::to_string(kRouteInsetSize);
    std::string out = whole + "{\\pos(" + std::to_string(kRouteInsetLeft) + "," + std::to_string(kRouteInsetTop) +
                      ")\\1c&H000000&\\1a&H60&\\p1}m 0 0 l " + box + " 0 " + box + " " + box + " 0 " + box + "\n";
    std::string line;
    for (std::size_t i = 0; i < points.size(); ++i)
        line += (i ? " " : "") + std::to_string(at.x(points[i].lng)) + " " + std::to_string(at.y(points[i].lat));
    std::string back;
    for (std::size_t i = points.size() - 1; i-- > 0;)
        back += " " + std::to_string(at.x(points[i].lng)) + " " + std::to_string(at.y(points[i].lat));
    const auto first = line.find(' ', line.find(' ') + 1);
    out += whole + "{\\pos(0,0)\\1a&HFF&\\3c&H00A5FF&\\bord2\\p1}m " + line.substr(0, first) + " l" +
           line.substr(first) + back + "\n";
    // The dot, one event per place it stands.
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double until = i + 1 < points.size() ? points[i + 1].at : seconds;
        if (until <= points[i].at) continue;
        out += "Dialogue: 1," + assTime(points[i].at) + "," + assTime(until) + ",Route,{\\pos(" +
               std::to_string(at.x(points[i].lng) - 5) + "," + std::to_string(at.y(points[i].lat) - 5) +
               ")\\1c&H3030FF&\\bord1\\3c&HFFFFFF&\\p1}m 0 0 l 10 0 10 10 0 10\n";
    }
    return out;
}

}  // namespace

std::string incidentOverlayAss(const IncidentSpan& span, const OverlayOptions& options) {
    std::string out =
        "[Script Info]\nScriptType: v4.00+\nPlayResX: " + std::to_string(options.frameWidth) +
        "\nPlayResY: 720\nWrapStyle: 2\n\n"
        "[V4+ Styles]\nFormat: Name, Fontname, Fontsize, PrimaryColour, OutlineColour, BackColour, Bold, BorderStyle, "
        "Outline, Shadow, Alignment, MarginL, MarginR, MarginV\n"
        "Style: Telemetry,DejaVu Sans Mono,30,&H00FFFFFF,&H00000000,&H80000000,0,1,2,0,1,24,24,20\n"
        "Style: Route,DejaVu Sans,20,&H00FFFFFF,&H00000000,&H00000000,0,1,0,0,7,0,0,0\n\n"
        "[Events]\nFormat: Layer, Start, End, Style, Text\n";
    auto data = std::make_unique<OrvoClipData>();
    std::vector<RoutePoint> route;
    double offset = 0;  // where the part begins in the video
    for (const IncidentPart& p : span.parts) {
        loadClipTelemetry(p.clip.path, *data);
        // One event a tenth, merged while the text stays the same.
        const int tenths = int(std::ceil((p.to - p.from) * 10 - 1e-9));
        std::string shown;
        double shownFrom = 0;
        auto flush = [&](double until) {
            if (!shown.empty())
                out += "Dialogue: 0," + assTime(offset + shownFrom) + "," + assTime(offset + until) + ",Telemetry," +
                       shown + "\n";
        };
        for (int k = 0; k < tenths; ++k) {
            const double local = k / 10.0;
            int x, y, z;
            float lat = 0, lng = 0;
            unsigned speed;
            const int index = int(std::floor((p.from + local) * 10.0 + 1e-9));
            if (options.routeInset && index < data->clipDataCount()) {
                data->getClipDataWithIndex(index, x, y, z, lat, lng, speed);
                if ((lat != 0.0f || lng != 0.0f) &&
                    (route.empty() || route.back().lat != lat || route.back().lng != lng))
                    route.push_back({offset + local, lat, lng});
            }
            const std::string text = textAt(p.clip, *data, p.from + local, options.mph);
            if (text == shown) continue;
            flush(local);
            shown = text;
            shownFrom = local;
        }
        flush(p.to - p.from);
        offset += p.to - p.from;
    }
    return out + routeInsetEvents(route, offset);
}

}  // namespace tarvik
