// tarvik telemetry CLIP [--format csv|gpx|geojson|kml] [--krt]
// Reads a clip's telemetry the way the player does and prints it.
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

extern "C" {
#include <libavutil/log.h>
}

#include "cli/commands.h"
#include "core/library/trips/trip_builder.h"
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

}  // namespace

void setLibraryLogging(bool verbose) { av_log_set_level(verbose ? AV_LOG_WARNING : AV_LOG_QUIET); }

int telemetryCommand(const TelemetryOptions& o) {
    setLibraryLogging(o.verbose);
    const std::string& clipArg = o.clip;
    const std::string& format = o.format;
    const fs::path clip = clipArg;
    std::error_code ec;
    if (!fs::is_regular_file(clip, ec)) {
        std::fprintf(stderr, "tarvik telemetry: %s: no such clip\n", clipArg.c_str());
        return 1;
    }

    auto data = std::make_unique<OrvoClipData>();
    const std::string name = clip.filename().string();
    if (lower(clip.extension().string()) == ".mp4") {
        // Its telemetry is in a subtitle track, read in-process; a clip
        // that cannot be read has none, like any other clip without telemetry.
        SubtitleTrack::load(clip.string(), *data);
    } else if (o.krt || isKrtClipName(name)) {
        data->loadVideoFileCilpDataFromFilePath_KRT(clip.string());
    } else {
        data->loadVideoFileCilpDataFromFilePath(clip.string());
    }

    std::string out;
    if (format == "csv") out = RouteExporter::csv(*data);
    else if (format == "gpx") out = RouteExporter::gpx(*data, name, clipStartFromName(name));
    else if (format == "kml") out = RouteExporter::kml(*data, name);
    else out = RouteExporter::geoJson(*data, name);
    std::fwrite(out.data(), 1, out.size(), stdout);
    return 0;
}

}  // namespace tarvik::cli
