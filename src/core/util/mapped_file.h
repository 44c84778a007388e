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

    // False when the file cannot be opened or is not a regular file. An empty
    // file opens with size() 0.
    bool open(const std::string& path);
    // Wraps bytes owned by the caller (tests, fuzzers); release is then a no-op.
    MappedFile(const void* data, std::size_t size)
        : data_(static_cast<const unsigned char*>(data)), size_(size) {}

    const unsigned char* data() const { return data_; }
    std::size_t size() const { return size_; }

    // Hints that bytes before `offset` will not be needed soon. Cheap to call
    // often: it only acts once a few megabytes have been passed.
    void releaseBefore(std::size_t offset) const;

private:
    const unsigned char* data_ = nullptr;
    std::size_t size_ = 0;
    void* map_ = nullptr;
    mutable std::size_t released_ = 0;
};

}  // namespace tarvik
