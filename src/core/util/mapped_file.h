#pragma once
// Read-only view of a whole file through a memory map, for readers that scan
// clips of a gigabyte or more. Pages already scanned can be dropped again, so
// resident memory stays bounded however large the file is; dropped pages are
// simply read back from the page cache if touched later.

#include <cstddef>
#include <string>

namespace tarvik {

class MappedFile {
public:
    MappedFile() = default;
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    // How the reader will touch the file: Sequential reads ahead; Sparse (a
    // walk over chunk headers) faults in only the pages it touches.
    enum class Access { Sequential, Sparse };

    // False when the file cannot be opened or is not a regular file. An empty
    // file opens with size() 0.
    bool open(const std::string& path, Access access = Access::Sequential);
    // Wraps bytes owned by the caller (tests, fuzzers); release is then a no-op.
    MappedFile(const void* data, std::size_t size)
        : data_(static_cast<const unsigned char*>(data)), size_(size) {}

    const unsigned char* data() const { return data_; }
    std::size_t size() const { return size_; }

    // Copies n bytes at offset into dst without touching the map: a walk over
    // sparse headers costs a read each instead of a page fault each. False
    // when fewer than n bytes are there.
    bool readAt(std::size_t offset, void* dst, std::size_t n) const;

    // Tells the map that a sequential reader has got to `offset`: pages behind
    // it are dropped (and read back from the page cache if touched again), the
    // next stretch is mapped in ahead in one go rather than page fault by page
    // fault. Cheap to call often: it acts once every few megabytes.
    void scannedUpTo(std::size_t offset) const;

private:
    void populate(std::size_t begin, std::size_t end) const;

    const unsigned char* data_ = nullptr;
    std::size_t size_ = 0;
    void* map_ = nullptr;
    int fd_ = -1;
    bool sequential_ = false;
    mutable std::size_t released_ = 0;
    mutable std::size_t populated_ = 0;
};

}  // namespace tarvik
