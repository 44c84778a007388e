#include <cmath>
#include <fstream>

#include "cardgen/avi_text_chunks.h"
#include "cardgen/card_plan.h"
#include "cardgen/telemetry_encoders.h"

namespace tarvik::cardgen {

namespace fs = std::filesystem;

namespace {

int wholeSeconds(const VideoSpec& v) { return std::max(1, static_cast<int>(std::lround(v.seconds))); }

// Which of the two text-chunk tags a clip uses: cameras differ, and the demo
// card should hold both.
std::string chunkTag(const ClipPlan& clip) {
    const int n = wholeSeconds(clip.video);
    return (clip.driveOffsetSeconds / n) % 2 ? "03tx" : "02tx";
}

bool appendTo(const fs::path& out, const std::string& bytes, std::string* log) {
    std::ofstream f(out, std::ios::binary | std::ios::app);
    f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!f && log) *log = "could not append telemetry to " + out.string();
    return static_cast<bool>(f);
}

}  // namespace

bool writeClip(const ClipPlan& clip, const fs::path& out, std::string* log) {
    using T = TelemetryFormat;
    const int n = wholeSeconds(clip.video);
    const int from = clip.driveOffsetSeconds;
    switch (clip.telemetry) {
    case T::None:
        return makeVideo(clip.video, out, log);
    case T::TailText: {
        if (!makeVideo(clip.video, out, log)) return false;
        // The marker is only looked for in the last 33006 bytes of a file of at
        // least that size; a tiny test clip gets padding in front of the text.
        const std::string text = tailText(driveSeconds(from, std::min(n, 65), 10));
        std::error_code ec;
        const auto size = fs::file_size(out, ec);
        const std::size_t pad = size + text.size() < 33006 ? 33006 - size - text.size() : 0;
        return appendTo(out, std::string(pad, '\0') + text, log);
    }
    case T::TextRecords: {
        const std::string tag = chunkTag(clip);
        auto chunks = textRecordChunks(driveSeconds(from, n, 10, quantizeText), tag, tag == "03tx");
        return makeVideo(clip.video, out, log) && addTextChunksToAvi(out, chunks, clip.video.fps, log);
    }
    case T::AviChunks: {
        // The general family samples its G-sensor faster than the clip's ten samples a second.
        auto chunks = binaryChunks(driveSeconds(from, n, 30, quantizeGeneralBinary), chunkTag(clip), false);
        return makeVideo(clip.video, out, log) && addTextChunksToAvi(out, chunks, clip.video.fps, log);
    }
    case T::AviChunksKrt: {
        auto chunks = binaryChunks(driveSeconds(from, n, 20, quantizeKrtBinary), chunkTag(clip), true);
        return makeVideo(clip.video, out, log) && addTextChunksToAvi(out, chunks, clip.video.fps, log);
    }
    case T::OtherCamera:
        return writeOtherCameraClip(clip.other, clip.video, from, out, nullptr, log);
    case T::SrtTrack: {
        std::error_code ec;
        fs::create_directories(out.parent_path(), ec);
        const fs::path srt = out.string() + ".telemetry.srt";
        {
            std::ofstream f(srt, std::ios::binary | std::ios::trunc);
            f << srtTrack(driveSeconds(from, n, 10, quantizeText));
        }
        VideoSpec v = clip.video;
        v.subtitleSrt = srt;
        const bool ok = makeVideo(v, out, log);
        fs::remove(srt, ec);
        return ok;
    }
    }
    return false;
}

}  // namespace tarvik::cardgen
