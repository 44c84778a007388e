#pragma once
// Turns a camera clip into the files the player can open: remuxed QuickTime
// copies (front first, rear second) in a per-clip cache folder, plus the
// MP4 subtitle track as an SRT side file. Stream copy only, never re-encoding.

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/library/conversion/ffmpeg_command_lines.h"

namespace tarvik {

class ClipConverter {
public:
    // Runs ffmpeg with one argument list and returns what it printed. The
    // default runs the real ffmpeg; tests wrap it to see which lines ran.
    using FfmpegTask = std::function<std::string(const ArgumentList&)>;

    static constexpr const char* kCacheFolderName = "temp_video";

    explicit ClipConverter(std::filesystem::path documentsDirectory, FfmpegTask task = {});

    // The playable files for a clip, front first. Empty when nothing could be
    // made of it; no value when the cache folders cannot be created. Clips
    // that are neither AVI nor MP4 come back unchanged.
    std::optional<std::vector<std::string>> checkAndConvertVideo(const std::string& clipPath) const;

    // The cache folder for a clip: <working dir>/temp_video/<base>_<size>.
    std::filesystem::path clipFolderFor(const std::string& clipPath) const;

    // The other camera's file of an MP4 front/rear pair: the first rule that
    // finds its text in the path replaces every occurrence ("F."->"R.",
    // "R."->"F.", "F_BC."->"R_BC.", "R_BC."->"F_BC."); empty when none does.
    static std::string partnerPathOf(const std::string& clipPath);

private:
    std::string run(const ArgumentList& args) const;
    void convertTwoStreamAvi(const std::string& src, const std::string& info, const std::string& f,
                             const std::string& r) const;

    std::filesystem::path documentsDirectory_;
    FfmpegTask task_;
};

}  // namespace tarvik
