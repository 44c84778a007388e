#include "cardgen/video_maker.h"

#include <chrono>
#include <cstdlib>
#include <vector>

#include "core/util/process_runner.h"

namespace tarvik::cardgen {

std::string ffmpegProgram() {
    const char* env = std::getenv("TARVIK_FFMPEG");
    return env && *env ? env : "ffmpeg";
}

bool makeVideo(const VideoSpec& spec, const std::filesystem::path& out, std::string* log) {
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::create_directories(out.parent_path(), ec);

    const std::string size = std::to_string(spec.width) + "x" + std::to_string(spec.height);
    const std::string rate = std::to_string(spec.fps);
    const std::string dur = std::to_string(spec.seconds);
    std::vector<std::string> a = {"-hide_banner", "-loglevel", "error", "-y"};
    auto addSource = [&](const std::string& pattern) {
        a.insert(a.end(), {"-f", "lavfi", "-i", pattern + "=size=" + size + ":rate=" + rate + ":duration=" + dur});
    };
    addSource(spec.pattern);
    int inputs = 1;
    if (spec.videoStreams > 1) {
        addSource(spec.pattern == "smptebars" ? "testsrc2" : "smptebars");
        ++inputs;
    }
    int audioInput = -1;
    if (spec.audio) {
        a.insert(a.end(), {"-f", "lavfi", "-i", "sine=frequency=440:sample_rate=16000:duration=" + dur});
        audioInput = inputs++;
    }
    int subInput = -1;
    if (!spec.subtitleSrt.empty()) {
        a.insert(a.end(), {"-i", spec.subtitleSrt.string()});
        subInput = inputs++;
    }
    for (int v = 0; v < std::max(1, spec.videoStreams); ++v) a.insert(a.end(), {"-map", std::to_string(v) + ":v"});
    if (audioInput >= 0) a.insert(a.end(), {"-map", std::to_string(audioInput) + ":a"});
    if (subInput >= 0) a.insert(a.end(), {"-map", std::to_string(subInput) + ":s", "-c:s", "mov_text"});

    if (spec.codec == Codec::Hevc) {
        a.insert(a.end(), {"-c:v", "libx265", "-preset", "ultrafast", "-x265-params", "log-level=error"});
        // AVI has no default FourCC for HEVC; without one ffmpeg reads it back as raw video.
        a.insert(a.end(), {"-tag:v", out.extension() == ".avi" ? "HEVC" : "hvc1"});
    } else {
        a.insert(a.end(), {"-c:v", "libx264", "-preset", "ultrafast", "-tune", "zerolatency"});
    }
    a.insert(a.end(), {"-pix_fmt", "yuv420p", "-g", rate});
    if (audioInput >= 0) a.insert(a.end(), {"-c:a", out.extension() == ".avi" ? "pcm_s16le" : "aac"});
    a.push_back(out.string());

    ProcessResult r = ProcessRunner::run(ffmpegProgram(), a, std::chrono::minutes(5));
    if (log) *log = r.output;
    return r.exitCode == 0 && fs::exists(out, ec);
}

}  // namespace tarvik::cardgen
