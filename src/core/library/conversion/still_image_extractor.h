#pragma once
// One picture of a video as a PNG file, decoded by ffmpeg in a child process
// so that taking a still never disturbs the players.

#include <string>

namespace tarvik {

class StillImageExtractor {
public:
    // False when ffmpeg wrote no picture (no video, unreadable file, timeout).
    static bool extractPng(const std::string& videoPath, double seconds, const std::string& pngPath);
};

}  // namespace tarvik
