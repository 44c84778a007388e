#include "core/library/conversion/ffmpeg_command_lines.h"

namespace tarvik {

std::string FfmpegCommandLines::vtag(CodecTagType tag) {
    switch (tag) {
    case CodecTagType::H264: return {};
    case CodecTagType::Hevc: return "hvc1";
    case CodecTagType::Avc1:
    case CodecTagType::Unknown: break;
    }
    return "avc1";
}

ArgumentList FfmpegCommandLines::twoStreamPicture(const std::string& source, int videoStream, bool withAudio,
                                                  CodecTagType tag, const std::string& output) {
    ArgumentList a = {"-i", source, "-map", "0:" + std::to_string(videoStream)};
    if (withAudio) a.insert(a.end(), {"-map", "0:2"});
    a.insert(a.end(), {"-c", "copy", "-y", "-v", "10", "-vcodec", "copy", "-acodec", "copy"});
    if (std::string t = vtag(tag); !t.empty()) a.insert(a.end(), {"-vtag", t});
    a.push_back(output);
    return a;
}

ArgumentList FfmpegCommandLines::remux(const std::string& source, CodecTagType tag, const std::string& output) {
    switch (tag) {
    case CodecTagType::H264:
        return {"-i", source, "-vcodec", "copy", "-acodec", "copy", "-y", output};
    case CodecTagType::Hevc:
        return {"-i", source, "-vcodec", "copy", "-acodec", "copy", "-y", "-vtag", "hvc1", output};
    case CodecTagType::Avc1:
    case CodecTagType::Unknown: break;
    }
    return {"-v", "10", "-i", source, "-vcodec", "copy", "-acodec", "copy", "-vtag", "avc1", "-y", output};
}

ArgumentList FfmpegCommandLines::subtitle(const std::string& source, const std::string& srtOutput) {
    return {"-i", source, "-vn", "-an", "-c:s", "text", srtOutput};
}

}  // namespace tarvik
