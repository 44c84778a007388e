// tarvik telemetry CLIP [--format csv|gpx|geojson|kml] [--krt]
// Reads a clip's telemetry the way the player does and prints it.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>

extern "C" {
#include <libavutil/log.h>
}

#include "cli/commands.h"
#include "core/media/clip_telemetry_reading.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/route_exporter.h"

namespace tarvik::cli {

namespace fs = std::filesystem;

namespace {

int usage() {
    std::fprintf(stderr, "usage: tarvik telemetry CLIP [--format csv|gpx|geojson|kml] [--krt]\n");
    return 2;
}

}  // namespace

int telemetryCommand(int argc, char** argv) {
    std::string clipArg, format = "csv";
    bool krt = false;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--format") && i + 1 < argc) format = argv[++i];
        else if (!std::strncmp(argv[i], "--format=", 9)) format = argv[i] + 9;
        else if (!std::strcmp(argv[i], "--krt")) krt = true;
        else if (argv[i][0] == '-' || !clipArg.empty()) return usage();
        else clipArg = argv[i];
    }
    if (clipArg.empty() || (format != "csv" && format != "gpx" && format != "geojson" && format != "kml"))
        return usage();
    const fs::path clip = clipArg;
    std::error_code ec;
    if (!fs::is_regular_file(clip, ec)) {
        std::fprintf(stderr, "tarvik telemetry: %s: no such clip\n", clipArg.c_str());
        return 1;
    }

    auto data = std::make_unique<OrvoClipData>();
    const std::string name = clip.filename().string();
    // A damaged clip must not fill the terminal with libav's complaints.
    av_log_set_level(AV_LOG_QUIET);
    readClipTelemetry(clip.string(), *data, nullptr, krt);

    std::string out;
    if (format == "csv") out = RouteExporter::csv(*data);
    else if (format == "gpx") out = RouteExporter::gpx(*data, name);
    else if (format == "kml") out = RouteExporter::kml(*data, name);
    else out = RouteExporter::geoJson(*data, name);
    std::fwrite(out.data(), 1, out.size(), stdout);
    return 0;
}

}  // namespace tarvik::cli
