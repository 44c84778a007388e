#pragma once
// What a container holds, read from its headers alone (no decoding).

#include <string>

namespace tarvik {

// The number of video pictures streams (cover art does not count); -1 when
// the file cannot be opened as a media file.
int videoStreamCount(const std::string& path);

}  // namespace tarvik
