#include "core/library/clip_file_check.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>

#include "core/util/regular_file.h"

namespace tarvik {

namespace {

std::uint32_t be32(const unsigned char* p) {
    return (std::uint32_t(p[0]) << 24) | (std::uint32_t(p[1]) << 16) | (std::uint32_t(p[2]) << 8) | p[3];
}
std::uint64_t be64(const unsigned char* p) { return (std::uint64_t(be32(p)) << 32) | be32(p + 4); }
std::uint32_t le32(const unsigned char* p) {
    return std::uint32_t(p[0]) | (std::uint32_t(p[1]) << 8) | (std::uint32_t(p[2]) << 16) | (std::uint32_t(p[3]) << 24);
}

bool readAt(int fd, std::uint64_t offset, unsigned char* out, std::size_t n) {
    return pread(fd, out, n, static_cast<off_t>(offset)) == static_cast<ssize_t>(n);
}

// Walks the top-level boxes; a box reaching past the end means the file was cut.
// Bounded: a card's clip has a handful of top-level boxes.
bool mp4RunsPastEnd(int fd, std::uint64_t size) {
    std::uint64_t at = 0;
    for (int boxes = 0; at + 8 <= size && boxes < 4096; ++boxes) {
        unsigned char h[16];
        if (!readAt(fd, at, h, 8)) return true;
        std::uint64_t length = be32(h);
        if (length == 1) {
            if (at + 16 > size || !readAt(fd, at + 8, h + 8, 8)) return true;
            length = be64(h + 8);
            if (length < 16) return false;
        } else if (length == 0) {
            return false;  // the last box runs to the end by definition
        } else if (length < 8) {
            return false;  // not a box structure at all: a format question, not a cut
        }
        if (length > size - at) return true;
        at += length;
    }
    return false;
}

}  // namespace

ClipFileState checkClipFile(const std::string& path) {
    struct stat st {};
    if (stat(path.c_str(), &st) != 0) return errno == EACCES ? ClipFileState::Unreadable : ClipFileState::Missing;
    if (!S_ISREG(st.st_mode)) return ClipFileState::Unreadable;
    const int fd = openRegularFile(path, &st);
    if (fd < 0) return ClipFileState::Unreadable;
    ClipFileState state = ClipFileState::Ok;
    const auto size = static_cast<std::uint64_t>(st.st_size);
    unsigned char head[12];
    if (size == 0) {
        state = ClipFileState::Empty;
    } else if (pread(fd, head, 1, 0) < 0) {
        state = ClipFileState::Unreadable;  // e.g. a read error on a failing card
    } else if (size >= sizeof head && readAt(fd, 0, head, sizeof head)) {
        const bool avi = std::memcmp(head, "RIFF", 4) == 0 && std::memcmp(head + 8, "AVI ", 4) == 0;
        if ((avi && std::uint64_t(le32(head + 4)) + 8 > size) ||
            (std::memcmp(head + 4, "ftyp", 4) == 0 && mp4RunsPastEnd(fd, size)))
            state = ClipFileState::Truncated;
    }
    close(fd);
    return state;
}

}  // namespace tarvik
