#pragma once
// What goes on a generated memory card: the clips with their telemetry layout,
// and the camera model whose settings files are written under SETTING.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "cardgen/other_camera_layouts.h"
#include "cardgen/video_maker.h"

namespace tarvik::cardgen {

// How a clip carries its telemetry.
enum class TelemetryFormat {
    None,
    TailText,     // text lines after a marker at the end of the file
    TextRecords,  // "02tx"/"03tx" chunks holding gsensor / GPRMC text records
    SrtTrack,     // mov_text subtitle track (mp4/mov)
    AviChunks,    // binary 'M' / NMEA / 'T' chunks of the general family
    AviChunksKrt, // binary chunks of the KRT family
    OtherCamera,  // another family's layout (ClipPlan::other)
};

struct ClipPlan {
    std::string relPath;  // relative to the card root
    VideoSpec video;
    TelemetryFormat telemetry = TelemetryFormat::None;
    // Where in the demo drive this clip starts, so consecutive clips continue the route.
    int driveOffsetSeconds = 0;
    OtherLayout other = OtherLayout::Gpmf;
};

struct ExtraFile {
    std::string relPath;
    std::string content;
};

struct CardPlan {
    std::vector<ClipPlan> clips;
    std::vector<ExtraFile> files;  // non-clip files, hidden files and the like
    int modelType = -1;            // -1 writes no settings files
};

struct CardOptions {
    double seconds = 30.0;
    int width = 640;
    int height = 360;
    int modelType = -1;  // -1: the demo card's own model
};

// The demo card: clips in the root and in every recording folder, nested
// folders, all three containers, front/rear pairs, a two-stream AVI, an HEVC
// clip, and files a scan must ignore.
CardPlan demoCardPlan(const CardOptions& options = {});

// Told before each clip is written: its place in the plan, the plan's size, its path.
using CardProgress = std::function<void(std::size_t index, std::size_t count, const std::string& relPath)>;

// One drive in continuous recording: `pairs` front/rear AVI pairs of
// clipSeconds each, back to back from 10:00:00, telemetry in the front clips.
CardPlan tripCardPlan(int pairs, int clipSeconds, int width = 64, int height = 36);

// Clips of other camera families (one recording each, back to back from
// 10:00:00): their folders, names, front/rear letters and telemetry layouts.
CardPlan otherCameraCardPlan(int clipSeconds, int width = 64, int height = 36);

// Writes the whole card below root. Returns false with a message on failure.
bool writeCard(const CardPlan& plan, const std::filesystem::path& root, std::string* error = nullptr,
               const CardProgress& progress = {});

// Writes one clip with its telemetry (telemetry_writers.cpp).
bool writeClip(const ClipPlan& clip, const std::filesystem::path& out, std::string* log = nullptr);

// Writes SETTING/ for the model type (settings_writers.cpp). The demo model
// type is what demoCardPlan uses when options.modelType is -1.
bool writeSettingsFiles(const std::filesystem::path& root, int modelType, std::string* error = nullptr);
int demoModelType();

// A tree of empty clip files for scan benchmarks and tests: `count` files spread
// over the recording folders, `depth` levels of nested sub-folders.
void writeNamedTree(const std::filesystem::path& root, int count, int depth);

}  // namespace tarvik::cardgen
