#pragma once
// The ffmpeg argument lists used to make a camera clip playable. The order of
// the options differs between the lines; it is kept exactly, because these
// lines are what the viewer has always run and what its users' caches hold.

#include <string>
#include <vector>

#include "core/library/conversion/utils.h"

namespace tarvik {

using ArgumentList = std::vector<std::string>;

class FfmpegCommandLines {
public:
    // Front (stream 0) or rear (stream 1) picture of a two-stream AVI, with
    // the shared audio of stream 2 when the clip has audio.
    static ArgumentList twoStreamPicture(const std::string& source, int videoStream, bool withAudio,
                                         CodecTagType tag, const std::string& output);
    // Remux of a one-picture clip into QuickTime.
    static ArgumentList remux(const std::string& source, CodecTagType tag, const std::string& output);
    // The subtitle (telemetry) track as an SRT file.
    static ArgumentList subtitle(const std::string& source, const std::string& srtOutput);
    // The tag written for a type, empty for none.
    static std::string vtag(CodecTagType tag);
};

}  // namespace tarvik
