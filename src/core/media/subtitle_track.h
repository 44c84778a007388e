#pragma once
// A clip's telemetry subtitle track, read in-process: only the subtitle
// stream's packets are read, nothing is written anywhere.

#include <optional>
#include <string>

namespace tarvik {

class OrvoClipData;
class SubtitleData;

class SubtitleTrack {
public:
    // More text than any camera writes in a clip; a hostile track stops here.
    static constexpr std::size_t kMaxTextBytes = 8u << 20;

    // The first subtitle stream's cues as SRT text, cue for cue what ffmpeg's
    // "-c:s text" writes to an .srt file. Empty when the clip has no such
    // track; no value when the clip cannot be opened at all.
    static std::optional<std::string> srtText(const std::string& clipPath);

    // Fills `data` (and `cues` when given) from the clip's track exactly as
    // from an .srt side file; without a track both end up empty. False when
    // the clip cannot be opened.
    static bool load(const std::string& clipPath, OrvoClipData& data, SubtitleData* cues = nullptr);
};

}  // namespace tarvik
