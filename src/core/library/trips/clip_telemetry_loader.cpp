#include "core/library/trips/clip_telemetry_loader.h"

#include <stdlib.h>

#include <cctype>
#include <chrono>
#include <cstdlib>
#include <filesystem>

#include "core/telemetry/krt_clip_name.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/util/process_runner.h"

namespace tarvik {

namespace fs = std::filesystem;

namespace {

std::string lowerExtension(const fs::path& p) {
    std::string e = p.extension().string();
    for (char& c : e) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return e;
}

std::string ffmpeg() {
    const char* env = std::getenv("TARVIK_FFMPEG");
    return env && *env ? env : "ffmpeg";
}

// The track goes into a folder of our own, never beside the user's clip.
bool loadFromSubtitleTrack(const fs::path& clip, OrvoClipData& data) {
    char templ[] = "/tmp/tarvik-telemetry-XXXXXX";
    if (!::mkdtemp(templ)) return false;
    const fs::path dir = templ;
    const fs::path srt = dir / "track.srt";
    const ProcessResult r = ProcessRunner::run(
        ffmpeg(), {"-v", "error", "-i", clip.string(), "-vn", "-an", "-c:s", "text", srt.string()},
        std::chrono::minutes(1), 64 * 1024);
    data.loadVideoFileCilpDataFromFilePath(srt.string());
    std::error_code ec;
    fs::remove_all(dir, ec);
    return r.started;
}

}  // namespace

bool loadClipTelemetry(const std::string& path, OrvoClipData& data) {
    const fs::path clip = path;
    const std::string ext = lowerExtension(clip);
    if (ext == ".mp4" || ext == ".mov") {
        fs::path side = clip;
        side.replace_extension(".srt");
        std::error_code ec;
        if (fs::is_regular_file(side, ec)) {
            data.loadVideoFileCilpDataFromFilePath(side.string());
            if (data.clipDataCount() > 0) return true;
        }
        // A MOV may also carry the tail text or records of the AVI cameras.
        data.loadVideoFileCilpDataFromFilePath(path);
        if (data.clipDataCount() > 0) return true;
        return loadFromSubtitleTrack(clip, data);
    }
    if (isKrtClipName(clip.filename().string())) data.loadVideoFileCilpDataFromFilePath_KRT(path);
    else data.loadVideoFileCilpDataFromFilePath(path);
    return true;
}

}  // namespace tarvik
