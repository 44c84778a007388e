#pragma once
// Whether a path names an MP4 clip (".mp4" in any case, on the file's own
// name): front and rear MP4 files pair up, and their telemetry is the MP4
// family's. One rule for the player, the trips and the command, beside the
// KRT family's name rule.

#include <string_view>

namespace tarvik {

bool isMp4ClipPath(std::string_view path);

// Whether front and rear of such a clip are two files that pair by name: MP4,
// and the MPEG-TS (".ts") some other cameras write. An AVI holds both cameras
// in one file, whatever its name says.
bool isPairedClipPath(std::string_view path);

}  // namespace tarvik
