// tarvik telemetry CLIP [--format csv|gpx|geojson|kml] [--krt]
// Reads a clip's telemetry the way the player does and prints it.
#include <cctype>
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
#include "core/media/subtitle_track.h"
#include "core/telemetry/krt_clip_name.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/route_exporter.h"

namespace tarvik::cli {

namespace fs = std::filesystem;

namespace {

std::string lower(std::string s) {
    for (char& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

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
    if (lower(clip.extension().string()) == ".mp4") {
        // A damaged clip must not fill the terminal with libav's complaints.
        av_log_set_level(AV_LOG_QUIET);
        // Its telemetry is in a subtitle track, read in-process; a clip
        // that cannot be read has none, like any other clip without telemetry.
        SubtitleTrack::load(clip.string(), *data);
    } else if (krt || isKrtClipName(name)) {
        data->loadVideoFileCilpDataFromFilePath_KRT(clip.string());
    } else {
        data->loadVideoFileCilpDataFromFilePath(clip.string());
    }

    std::string out;
    if (format == "csv") out = RouteExporter::csv(*data);
    else if (format == "gpx") out = RouteExporter::gpx(*data, name);
    else if (format == "kml") out = RouteExporter::kml(*data, name);
    else out = RouteExporter::geoJson(*data, name);
    std::fwrite(out.data(), 1, out.size(), stdout);
    return 0;
}

}  // namespace tarvik::cli
