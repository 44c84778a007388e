#pragma once
// What is wrong with a clip's file before and after the player tried it, so
// the user reads why it cannot be shown: a missing or cut-short file is not
// "encoded in an unsupported format". Paths are the file system's bytes.

#include <string>

namespace tarvik {

enum class ClipFileState { Ok, Missing, Unreadable, Empty, Truncated };

// Missing, Unreadable (not a regular file or no read permission) and Empty
// are found without reading the content; Truncated when the container's own
// sizes (MP4 top-level boxes, the AVI RIFF header) run past the end of the
// file. Reads at most a few hundred bytes of headers.
ClipFileState checkClipFile(const std::string& path);

}  // namespace tarvik
