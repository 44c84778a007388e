#pragma once
// An opened libavformat input that closes itself; libav's log stays quiet.

#include <string>

struct AVFormatContext;

namespace tarvik {

class LibavInput {
public:
    explicit LibavInput(const std::string& path);
    ~LibavInput();
    LibavInput(const LibavInput&) = delete;
    LibavInput& operator=(const LibavInput&) = delete;

    AVFormatContext* get() const { return ctx_; }
    explicit operator bool() const { return ctx_ != nullptr; }

private:
    AVFormatContext* ctx_ = nullptr;
};

}  // namespace tarvik
