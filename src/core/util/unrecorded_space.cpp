#include "core/util/unrecorded_space.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstring>

#include "core/util/bounded_file.h"

namespace tarvik {

bool allZero(const void* data, std::size_t size) {
    const auto* p = static_cast<const unsigned char*>(data);
    // Compared with itself shifted by one, the block is constant exactly when
    // it is all its first byte.
    return size == 0 || (p[0] == 0 && std::memcmp(p, p + 1, size - 1) == 0);
}

bool startsUnrecorded(int fd) {
    struct stat st {};
    if (fd < 0 || ::fstat(fd, &st) != 0 || st.st_size <= 0) return false;
    unsigned char head[kUnrecordedProbe];
    const std::size_t want = static_cast<std::size_t>(st.st_size) < sizeof head ? static_cast<std::size_t>(st.st_size) : sizeof head;
    return ::pread(fd, head, want, 0) == static_cast<ssize_t>(want) && allZero(head, want);
}

bool startsUnrecorded(const BoundedFile& file) {
    unsigned char head[kUnrecordedProbe];
    const std::size_t want = file.size() < sizeof head ? file.size() : sizeof head;
    return want > 0 && file.readAt(0, head, want) && allZero(head, want);
}

}  // namespace tarvik
