#include "core/library/trips/clip_container.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "core/library/trips/transport_stream_length.h"
#include "core/util/regular_file.h"
#include "core/util/unrecorded_space.h"
#include "core/telemetry/mp4_boxes.h"
#include "core/util/bounded_file.h"

namespace tarvik {

namespace {

// Reads exactly n bytes at off, or reports false.
bool readAt(int fd, std::uint64_t off, void* buf, std::size_t n) {
    auto* p = static_cast<char*>(buf);
    while (n > 0) {
        const ssize_t r = ::pread(fd, p, n, static_cast<off_t>(off));
        if (r <= 0) return false;
        p += r;
        off += static_cast<std::uint64_t>(r);
        n -= static_cast<std::size_t>(r);
    }
    return true;
}

std::uint32_t be32(const unsigned char* p) {
    return std::uint32_t(p[0]) << 24 | std::uint32_t(p[1]) << 16 | std::uint32_t(p[2]) << 8 | p[3];
}
std::uint64_t be64(const unsigned char* p) { return std::uint64_t(be32(p)) << 32 | be32(p + 4); }
std::uint32_t le32(const unsigned char* p) {
    return std::uint32_t(p[3]) << 24 | std::uint32_t(p[2]) << 16 | std::uint32_t(p[1]) << 8 | p[0];
}

// Duration from the movie header inside moov.
double mvhdSeconds(int fd, std::uint64_t from, std::uint64_t end) {
    unsigned char h[16];
    int boxes = 0;
    for (std::uint64_t off = from; off + 8 <= end && boxes++ < 4096;) {
        if (!readAt(fd, off, h, 8)) return 0;
        std::uint64_t size = be32(h);
        if (size < 8 || off + size > end) return 0;
        if (!std::memcmp(h + 4, "mvhd", 4)) {
            unsigned char b[32];
            if (size < 8 + 32 || !readAt(fd, off + 8, b, 32)) return 0;
            if (b[0] == 1) {  // 64-bit times
                const std::uint32_t scale = be32(b + 20);
                return scale ? double(be64(b + 24)) / scale : 0;
            }
            const std::uint32_t scale = be32(b + 12);
            return scale ? double(be32(b + 16)) / scale : 0;
        }
        off += size;
    }
    return 0;
}

ContainerInfo inspectIsoBmff(int fd, std::uint64_t fileSize) {
    ContainerInfo info;
    bool moov = false;
    unsigned char h[16];
    // A camera's clip has a handful of top-level boxes; anything past this is hostile.
    int boxes = 0;
    for (std::uint64_t off = 0; off < fileSize && boxes < 4096; ++boxes) {
        if (off + 8 > fileSize || !readAt(fd, off, h, 8)) {
            if (moov) break;
            info.state = ContainerState::Truncated;
            return info;
        }
        std::uint64_t size = be32(h), header = 8;
        if (size == 1) {
            if (!readAt(fd, off + 8, h + 8, 8)) {
                info.state = ContainerState::Truncated;
                return info;
            }
            size = be64(h + 8);
            header = 16;
        } else if (size == 0) {
            size = fileSize - off;  // to the end of the file
        }
        if (size < header || off + size > fileSize) {
            // Some cameras append their telemetry text after the last box;
            // players stop at the index and never look there.
            if (moov) break;
            info.state = ContainerState::Truncated;
            return info;
        }
        if (!std::memcmp(h + 4, "moov", 4)) {
            moov = true;
            info.seconds = mvhdSeconds(fd, off + header, off + size);
        }
        off += size;
    }
    info.state = moov ? ContainerState::Playable : ContainerState::NoIndex;
    return info;
}

ContainerInfo inspectAvi(int fd, std::uint64_t fileSize) {
    ContainerInfo info;
    unsigned char h[64];
    if (!readAt(fd, 0, h, 12)) {
        info.state = ContainerState::Truncated;
        return info;
    }
    const std::uint64_t riffEnd = 8 + std::uint64_t(le32(h + 4));
    if (riffEnd > fileSize) {
        info.state = ContainerState::Truncated;
        return info;
    }
    bool index = false;
    int chunks = 0;
    for (std::uint64_t off = 12; off + 8 <= riffEnd && chunks < 100000; ++chunks) {
        if (!readAt(fd, off, h, 12)) break;
        // Not a chunk tag: the recording stopped here (preallocated zeros follow).
        if (!std::all_of(h, h + 4, [](unsigned char c) { return c >= 0x20 && c <= 0x7e; })) break;
        const std::uint64_t size = le32(h + 4);
        if (off + 8 + size > riffEnd) {
            info.state = ContainerState::Truncated;
            return info;
        }
        if (!std::memcmp(h, "idx1", 4)) index = true;
        if (!std::memcmp(h, "LIST", 4) && !std::memcmp(h + 8, "hdrl", 4)) {
            unsigned char a[8 + 20];
            // avih is the first chunk of hdrl.
            if (readAt(fd, off + 12, a, sizeof a) && !std::memcmp(a, "avih", 4)) {
                const double usPerFrame = le32(a + 8);
                const double frames = le32(a + 8 + 16);
                info.seconds = usPerFrame * frames / 1e6;
            }
            // OpenDML files index themselves from inside hdrl.
            unsigned char b[4096];
            const std::size_t n = static_cast<std::size_t>(std::min<std::uint64_t>(size, sizeof b));
            if (readAt(fd, off + 8, b, n))
                for (std::size_t i = 0; i + 4 <= n; ++i)
                    if (!std::memcmp(b + i, "indx", 4)) index = true;
        }
        off += 8 + size + (size & 1);
    }
    info.state = index ? ContainerState::Playable : ContainerState::NoIndex;
    return info;
}

}  // namespace

ContainerInfo inspectClipContainer(const std::string& path) {
    ContainerInfo info;
    struct stat st {};
    const int fd = openRegularFile(path, &st);
    if (fd < 0) return info;
    const auto size = static_cast<std::uint64_t>(st.st_size);
    unsigned char h[12];
    if (size == 0) {
        info.state = ContainerState::ZeroBytes;
    } else if (size < 12 || !readAt(fd, 0, h, 12)) {
        info.state = ContainerState::Truncated;
    } else if (startsUnrecorded(fd)) {
        info.state = ContainerState::Preallocated;
    } else if (!std::memcmp(h, "RIFF", 4) && !std::memcmp(h + 8, "AVI ", 4)) {
        info = inspectAvi(fd, size);
    } else if (!std::memcmp(h + 4, "ftyp", 4) || !std::memcmp(h + 4, "mdat", 4) || !std::memcmp(h + 4, "moov", 4) ||
               !std::memcmp(h + 4, "free", 4) || !std::memcmp(h + 4, "wide", 4)) {
        info = inspectIsoBmff(fd, size);
    } else {
        info = inspectTransportStream(fd, size);
    }
    ::close(fd);
    return info;
}

const char* containerStateText(ContainerState state) {
    switch (state) {
    case ContainerState::Playable: return "playable";
    case ContainerState::ZeroBytes: return "zero bytes";
    case ContainerState::Truncated: return "truncated";
    case ContainerState::NoIndex: return "no index";
    case ContainerState::Preallocated: return "preallocated, never recorded";
    case ContainerState::Unreadable: break;
    }
    return "unreadable";
}

std::optional<std::int64_t> containerCreationTime(const std::string& path) {
    constexpr std::uint64_t kFrom1904 = 2082844800;  // seconds from 1904 to 1970
    BoundedFile file;
    if (!file.open(path, true)) return std::nullopt;
    for (const mp4::Box& moov : mp4::topLevel(file)) {
        mp4::Box mvhd;
        if (!moov.is("moov") || !mp4::findChild(file, moov, "mvhd", mvhd)) continue;
        const std::string p = mp4::payload(file, mvhd, 12);
        const auto* b = reinterpret_cast<const unsigned char*>(p.data());
        std::uint64_t t = 0;
        if (p.size() >= 8 && b[0] == 0) t = mp4::be32(b + 4);
        else if (p.size() >= 12 && b[0] == 1) t = mp4::be64(b + 4);
        if (t > kFrom1904) return static_cast<std::int64_t>(t - kFrom1904);
        return std::nullopt;
    }
    return std::nullopt;
}

}  // namespace tarvik
