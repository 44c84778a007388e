// tarvik telemetry CLIP [--format csv|gpx|geojson|kml] [--krt]
// Reads a clip's telemetry the way the player does and prints it.
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

extern "C" {
#include <libavutil/log.h>
}

#include "cli/commands.h"
#include "core/library/trips/trip_builder.h"
#include "core/media/clip_telemetry_reading.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/route_exporter.h"

namespace tarvik::cli {

namespace fs = std::filesystem;

void setLibraryLogging(bool verbose) { av_log_set_level(verbose ? AV_LOG_WARNING : AV_LOG_QUIET); }

int telemetryCommand(const TelemetryOptions& o) {
    setLibraryLogging(o.verbose);
    const fs::path clip = o.clip;
    std::error_code ec;
    if (!fs::is_regular_file(clip, ec)) {
        std::fprintf(stderr, "tarvik telemetry: %s: no such clip\n", o.clip.c_str());
        return 1;
    }

    auto data = std::make_unique<OrvoClipData>();
    const std::string name = clip.filename().string();
    readClipTelemetry(clip.string(), *data, nullptr, o.krt);

    std::string out;
    if (o.format == "csv") out = RouteExporter::csv(*data);
    else if (o.format == "gpx") out = RouteExporter::gpx(*data, name, clipStartFromName(name));
    else if (o.format == "kml") out = RouteExporter::kml(*data, name);
    else out = RouteExporter::geoJson(*data, name);
    std::fwrite(out.data(), 1, out.size(), stdout);
    return 0;
}

}  // namespace tarvik::cli
