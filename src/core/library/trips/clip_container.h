#pragma once
// What a clip's container says about itself without decoding a frame: whether
// a player can open it at all, and how long it runs. Only box and chunk headers
// are read, so a card of thousands of clips is looked at in moments.

#include <cstdint>
#include <optional>
#include <string>

namespace tarvik {

enum class ContainerState {
    Playable,
    ZeroBytes,  // the camera lost power before writing anything
    Truncated,  // a box or chunk runs past the end of the file
    NoIndex,    // MP4/MOV without "moov", AVI without "idx1" / OpenDML index
    Preallocated,  // all zeros at its start: space the camera set aside, never recorded
    Unreadable, // missing, unreadable, or not a container we know
};

struct ContainerInfo {
    ContainerState state = ContainerState::Unreadable;
    double seconds = 0;  // 0 when the header does not tell
};

ContainerInfo inspectClipContainer(const std::string& path);
// An MP4/MOV's creation time (mvhd) in seconds since 1970, as the camera's
// clock wrote it; none when the file has no such time.
std::optional<std::int64_t> containerCreationTime(const std::string& path);
// "playable", "zero bytes", "truncated", "no index", "preallocated, never
// recorded", "unreadable".
const char* containerStateText(ContainerState state);

}  // namespace tarvik
