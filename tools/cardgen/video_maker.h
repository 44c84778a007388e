#pragma once
// Synthetic clips made by the real ffmpeg, the way a camera would write them:
// the container follows the output file's extension (avi, mp4, mov).

#include <filesystem>
#include <string>

namespace tarvik::cardgen {

enum class Codec { H264, Hevc };

struct VideoSpec {
    int width = 320;
    int height = 180;
    int fps = 30;
    double seconds = 2.0;
    Codec codec = Codec::H264;
    bool audio = false;
    // 2 puts front and rear pictures into one file as two video streams (AVI).
    int videoStreams = 1;
    // lavfi source of the (first) picture; rear cameras look different.
    std::string pattern = "testsrc2";
    // When set, muxed as a mov_text subtitle track (mp4/mov), as the cameras
    // that keep their telemetry in a subtitle track do.
    std::filesystem::path subtitleSrt;
};

// Returns false (and the ffmpeg output in *log) when ffmpeg did not produce the file.
bool makeVideo(const VideoSpec& spec, const std::filesystem::path& out, std::string* log = nullptr);

// The ffmpeg to use: $TARVIK_FFMPEG, else "ffmpeg" on PATH.
std::string ffmpegProgram();

}  // namespace tarvik::cardgen
