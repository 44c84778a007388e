#include "core/util/bounded_file.h"

#include "core/util/regular_file.h"

#include <fcntl.h>
#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvik {

BoundedFile::~BoundedFile() { close(); }

void BoundedFile::close() {
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
    bytes_ = nullptr;
    size_ = 0;
    failed_ = false;
}

bool BoundedFile::open(const std::string& path, bool random) {
    close();
    struct stat st {};
    const int fd = openRegularFile(path, &st);
    if (fd < 0) return false;
    posix_fadvise(fd, 0, 0, random ? POSIX_FADV_RANDOM : POSIX_FADV_SEQUENTIAL);
    fd_ = fd;
    size_ = static_cast<std::size_t>(st.st_size);
    return true;
}

std::size_t BoundedFile::readSome(std::size_t offset, void* dst, std::size_t n) const {
    if (offset >= size_) return 0;
    if (n > size_ - offset) n = size_ - offset;
    if (fd_ < 0) {
        if (n) std::memcpy(dst, bytes_ + offset, n);
        return n;
    }
    std::size_t done = 0;
    while (done < n) {
        const ssize_t r = pread(fd_, static_cast<char*>(dst) + done, n - done, static_cast<off_t>(offset + done));
        if (r < 0 && errno == EINTR) continue;
        if (r <= 0) {
            failed_ = true;
            break;
        }
        done += static_cast<std::size_t>(r);
    }
    return done;
}

bool BoundedFile::intact() const {
    if (failed_) return false;
    if (fd_ < 0) return true;
    struct stat st {};
    return fstat(fd_, &st) == 0 && static_cast<std::size_t>(st.st_size) == size_;
}

bool BoundedFile::readAt(std::size_t offset, void* dst, std::size_t n) const {
    if (offset > size_ || n > size_ - offset) return false;
    return n == 0 || readSome(offset, dst, n) == n;
}

}  // namespace tarvik
