#include "core/library/trips/clip_telemetry_loader.h"

#include <cctype>
#include <filesystem>

#include "core/media/subtitle_track.h"
#include "core/telemetry/krt_clip_name.h"
#include "core/telemetry/orvo_clip_data.h"

namespace tarvik {

namespace fs = std::filesystem;

namespace {

std::string lowerExtension(const fs::path& p) {
    std::string e = p.extension().string();
    for (char& c : e) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return e;
}

}  // namespace

void loadClipTelemetry(const std::string& path, OrvoClipData& data) {
    const fs::path clip = path;
    const std::string ext = lowerExtension(clip);
    if (ext == ".mp4" || ext == ".mov") {
        SubtitleTrack::load(path, data);
        // A MOV may also carry the tail text or records of the AVI cameras.
        if (data.clipDataCount() == 0) data.loadVideoFileCilpDataFromFilePath(path);
        return;
    }
    if (isKrtClipName(clip.filename().string())) data.loadVideoFileCilpDataFromFilePath_KRT(path);
    else data.loadVideoFileCilpDataFromFilePath(path);
}

}  // namespace tarvik
