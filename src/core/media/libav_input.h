#pragma once
// An opened libavformat input that closes itself. It leaves libav's global
// state (log level and callback) alone: in the viewer, libmpv owns it.
// The file is read with positioned reads of our own: a seek costs nothing
// and a small sample between large pictures costs one read.

#include <cstdint>
#include <string>

struct AVFormatContext;
struct AVIOContext;

namespace tarvik {

class LibavInput {
public:
    explicit LibavInput(const std::string& path);
    ~LibavInput();
    LibavInput(const LibavInput&) = delete;
    LibavInput& operator=(const LibavInput&) = delete;

    AVFormatContext* get() const { return ctx_; }
    explicit operator bool() const { return ctx_ != nullptr; }
    // Whether the file still has the size it had when opened: a clip cut
    // while it is read ends early, or in zeroed bytes, rather than in an error.
    bool stillWhole() const;

private:
    static int readPacket(void* self, std::uint8_t* buf, int size);
    static std::int64_t seek(void* self, std::int64_t offset, int whence);

    AVFormatContext* ctx_ = nullptr;
    AVIOContext* io_ = nullptr;
    int fd_ = -1;
    std::int64_t pos_ = 0;
    std::int64_t size_ = 0;
};

}  // namespace tarvik
