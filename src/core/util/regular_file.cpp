#include "core/util/regular_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvik {

int openRegularFile(const std::string& path, struct stat* info) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (fd < 0) return -1;
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        return -1;
    }
    // Reads of a regular file never wait on the flag, but later fcntl users
    // should find the descriptor as an ordinary open leaves it.
    const int flags = ::fcntl(fd, F_GETFL);
    if (flags >= 0) ::fcntl(fd, F_SETFL, flags & ~O_NONBLOCK);
    if (info) *info = st;
    return fd;
}

}  // namespace tarvik
