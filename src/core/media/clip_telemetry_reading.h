#pragma once
// The one choice of reader for a clip's telemetry, made the same way for the
// player, the trips, the card report and `tarvik telemetry`: an MP4/MOV's
// subtitle track, the KRT family's reader for its clips, the general readers
// of the viewer's own cameras, and then the other families' layouts by the
// clip's content.

#include <string>

namespace tarvik {

class OrvoClipData;
class SubtitleData;

// Fills `data`, and `cues` when given and the clip has a subtitle track of
// telemetry cues; both end up empty for a clip without telemetry. `krt`
// reads the clip as a KRT-family clip whatever its name.
void readClipTelemetry(const std::string& path, OrvoClipData& data, SubtitleData* cues = nullptr, bool krt = false);

}  // namespace tarvik
