#include "core/library/incident/incident_overlay.h"

#include <cmath>
#include <cstdio>
#include <memory>

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

}  // namespace

std::string incidentOverlayAss(const IncidentSpan& span, const OverlayOptions& options) {
    std::string out =
        "[Script Info]\nScriptType: v4.00+\nPlayResX: 1280\nPlayResY: 720\nWrapStyle: 2\n\n"
        "[V4+ Styles]\nFormat: Name, Fontname, Fontsize, PrimaryColour, OutlineColour, BackColour, Bold, BorderStyle, "
        "Outline, Shadow, Alignment, MarginL, MarginR, MarginV\n"
        "Style: Telemetry,DejaVu Sans Mono,30,&H00FFFFFF,&H00000000,&H80000000,0,1,2,0,1,24,24,20\n\n"
        "[Events]\nFormat: Layer, Start, End, Style, Text\n";
    auto data = std::make_unique<OrvoClipData>();
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
            const std::string text = textAt(p.clip, *data, p.from + local, options.mph);
            if (text == shown) continue;
            flush(local);
            shown = text;
            shownFrom = local;
        }
        flush(p.to - p.from);
        offset += p.to - p.from;
    }
    return out;
}

}  // namespace tarvik
