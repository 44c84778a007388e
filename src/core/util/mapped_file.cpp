#include "core/util/mapped_file.h"

#include <fcntl.h>
#include <algorithm>
#include <cstring>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvik {

namespace {
constexpr std::size_t kReleaseStep = 8u << 20;
}

MappedFile::~MappedFile() {
    if (map_) munmap(map_, size_);
    if (fd_ >= 0) ::close(fd_);
}

bool MappedFile::readAt(std::size_t offset, void* dst, std::size_t n) const {
    if (offset > size_ || n > size_ - offset) return false;
    if (n == 0) return true;
    if (fd_ < 0) {
        std::memcpy(dst, data_ + offset, n);
        return true;
    }
    std::size_t done = 0;
    while (done < n) {
        const ssize_t r = pread(fd_, static_cast<char*>(dst) + done, n - done, static_cast<off_t>(offset + done));
        if (r <= 0) return false;
        done += static_cast<std::size_t>(r);
    }
    return true;
}

bool MappedFile::open(const std::string& path, Access access) {
    if (map_) munmap(map_, size_);
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
    map_ = nullptr;
    data_ = nullptr;
    size_ = 0;
    released_ = 0;
    populated_ = 0;
    sequential_ = false;
    int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return false;
    struct stat st {};
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        return false;
    }
    if (st.st_size > 0) {
        void* p = mmap(nullptr, static_cast<std::size_t>(st.st_size), PROT_READ, MAP_PRIVATE, fd, 0);
        if (p == MAP_FAILED) {
            ::close(fd);
            return false;
        }
        madvise(p, static_cast<std::size_t>(st.st_size), access == Access::Sparse ? MADV_RANDOM : MADV_SEQUENTIAL);
        map_ = p;
        data_ = static_cast<const unsigned char*>(p);
        size_ = static_cast<std::size_t>(st.st_size);
        sequential_ = access == Access::Sequential;
    }
    fd_ = fd;
    return true;
}

void MappedFile::populate(std::size_t begin, std::size_t end) const {
#ifdef MADV_POPULATE_READ
    end = std::min(end, size_);
    begin = std::max(begin, populated_);
    if (!sequential_ || end <= begin) return;
    const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t from = begin / page * page;
    // Older kernels refuse the advice; the pages then fault in one by one.
    madvise(static_cast<char*>(map_) + from, end - from, MADV_POPULATE_READ);
    populated_ = end;
#else
    (void)begin;
    (void)end;
#endif
}

void MappedFile::scannedUpTo(std::size_t offset) const {
    if (!map_ || offset > size_) return;
    const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    if (offset < released_) {
        // A reader went back (a second replayed): release again from there on.
        released_ = offset / page * page;
        populated_ = std::min(populated_, released_);
        return;
    }
    if (offset + kReleaseStep / 2 > populated_) populate(offset, offset + kReleaseStep);
    if (offset < released_ + kReleaseStep) return;
    std::size_t end = offset / page * page;
    if (end <= released_) return;
    madvise(static_cast<char*>(map_) + released_, end - released_, MADV_DONTNEED);
    released_ = end;
}

}  // namespace tarvik
