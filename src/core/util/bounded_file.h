#pragma once
// Read-only access to a file on the card through pread into the caller's
// buffers, never through a memory map: a card pulled out (or a file truncated
// by another program) under a map kills the process with SIGBUS, while a read
// merely fails. Once a read comes back short the file counts as failed, and
// the readers give their neutral value for it.

#include <cstddef>
#include <string>

namespace tarvik {

class BoundedFile {
public:
    BoundedFile() = default;
    ~BoundedFile();
    BoundedFile(const BoundedFile&) = delete;
    BoundedFile& operator=(const BoundedFile&) = delete;

    // Wraps bytes owned by the caller (tests, fuzzers).
    BoundedFile(const void* data, std::size_t size)
        : bytes_(static_cast<const unsigned char*>(data)), size_(size) {}

    // False when the file cannot be opened or is not a regular file. `random`
    // tells the kernel not to read ahead (a walk over sparse chunk headers).
    bool open(const std::string& path, bool random = false);

    // The size when opened; the file may shrink after that.
    std::size_t size() const { return size_; }

    // Copies n bytes at offset into dst. False when they lie past size(), or
    // when the file no longer has them (then failed() turns true).
    bool readAt(std::size_t offset, void* dst, std::size_t n) const;
    // Up to n bytes at offset; how many were copied.
    std::size_t readSome(std::size_t offset, void* dst, std::size_t n) const;

    // One of many reads at offsets known in advance.
    struct Piece {
        std::size_t offset;
        void* dst;
        std::size_t size;
    };
    // Fills every piece, handing the whole batch to the kernel at once where
    // it can (one system call instead of one per piece: the cost of a walk
    // over a long clip's small chunks is mostly those calls). False, and
    // failed(), when any piece lies past size() or the file no longer has it.
    bool readPieces(Piece* pieces, std::size_t count) const;

    bool failed() const { return failed_; }
    // No read failed and the file still has the size it had when opened: a
    // reader asks this when it is done. A file cut while it is read can hand
    // out zeroed bytes instead of a short read (the kernel clears the cut page
    // while a read copies it), which only the size tells.
    bool intact() const;

private:
    void close();

    const unsigned char* bytes_ = nullptr;
    std::size_t size_ = 0;
    int fd_ = -1;
    mutable bool failed_ = false;
};

}  // namespace tarvik
