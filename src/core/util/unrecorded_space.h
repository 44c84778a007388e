#pragma once
// Many cameras preallocate their loop-recording files and fill them as they
// record: space not yet recorded reads as zeros, gigabytes of them. A clip
// whose first bytes are all zero was never recorded; readers meeting a long
// run of zeros have reached the end of what was recorded.

#include <cstddef>

namespace tarvik {

class BoundedFile;

// What is looked at from the start: a container's header is never zero for
// this long.
inline constexpr std::size_t kUnrecordedProbe = 4096;

bool allZero(const void* data, std::size_t size);
// A file of some size whose first kUnrecordedProbe bytes (or all, when
// shorter) are zero, read from an open descriptor or file.
bool startsUnrecorded(int fd);
bool startsUnrecorded(const BoundedFile& file);

}  // namespace tarvik
