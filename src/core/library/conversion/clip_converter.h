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
#include "core/util/process_runner.h"

namespace tarvik {

class ClipConverter {
public:
    // Runs ffmpeg with one argument list. The default runs the real ffmpeg;
    // tests wrap it to see which lines ran or to stop ffmpeg halfway.
    using FfmpegTask = std::function<ProcessResult(const ArgumentList&)>;

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

    // Where ffmpeg writes an output until it has finished it: beside it,
    // "name.partial.ext", so that ffmpeg still picks the format by extension.
    static std::string partialPathOf(const std::string& output);

private:
    ProcessResult run(const ArgumentList& args) const;
    // Runs a line whose last argument is its output: written under the
    // partial name, renamed only when ffmpeg exits with 0, removed otherwise,
    // so a killed or failed run never leaves a file that looks finished.
    bool produce(ArgumentList args) const;
    void convertTwoStreamAvi(const std::string& src, const std::string& info, const std::string& f,
                             const std::string& r) const;

    std::filesystem::path documentsDirectory_;
    FfmpegTask task_;
};

}  // namespace tarvik
