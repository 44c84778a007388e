#include "core/util/mapped_file.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvik {

namespace {
constexpr std::size_t kReleaseStep = 8u << 20;
}

MappedFile::~MappedFile() {
    if (map_) munmap(map_, size_);
}

bool MappedFile::open(const std::string& path) {
    if (map_) munmap(map_, size_);
    map_ = nullptr;
    data_ = nullptr;
    size_ = 0;
    released_ = 0;
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
        madvise(p, static_cast<std::size_t>(st.st_size), MADV_SEQUENTIAL);
        map_ = p;
        data_ = static_cast<const unsigned char*>(p);
        size_ = static_cast<std::size_t>(st.st_size);
    }
    ::close(fd);
    return true;
}

void MappedFile::releaseBefore(std::size_t offset) const {
    if (!map_ || offset > size_) return;
    const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    if (offset < released_) {
        // A reader went back (a second replayed): release again from there on.
        released_ = offset / page * page;
        return;
    }
    if (offset < released_ + kReleaseStep) return;
    std::size_t end = offset / page * page;
    if (end <= released_) return;
    madvise(static_cast<char*>(map_) + released_, end - released_, MADV_DONTNEED);
    released_ = end;
}

}  // namespace tarvik
