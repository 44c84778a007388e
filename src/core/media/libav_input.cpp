#include "core/media/libav_input.h"

#include "core/util/regular_file.h"
#include "core/util/unrecorded_space.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/mem.h>
}

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace tarvik {

namespace {
// Small: a subtitle sample is a few hundred bytes; larger reads go around the buffer.
constexpr int kBufferSize = 4096;
}  // namespace

LibavInput::LibavInput(const std::string& path) {
    struct stat st {};
    fd_ = openRegularFile(path, &st);
    // libav would probe megabytes of a preallocated clip's zeros with every demuxer.
    if (fd_ < 0 || startsUnrecorded(fd_)) return;
    size_ = st.st_size;
    auto* buffer = static_cast<unsigned char*>(av_malloc(kBufferSize));
    if (!buffer) return;
    io_ = avio_alloc_context(buffer, kBufferSize, 0, this, &LibavInput::readPacket, nullptr, &LibavInput::seek);
    if (!io_) {
        av_free(buffer);
        return;
    }
    // Seeks always go to seek() instead of reading through the gap.
    io_->direct = 1;
    ctx_ = avformat_alloc_context();
    if (!ctx_) return;
    ctx_->pb = io_;
    ctx_->flags |= AVFMT_FLAG_CUSTOM_IO;
    if (avformat_open_input(&ctx_, path.c_str(), nullptr, nullptr) < 0) ctx_ = nullptr;  // freed by libav
}

LibavInput::~LibavInput() {
    if (ctx_) avformat_close_input(&ctx_);
    if (io_) {
        av_freep(&io_->buffer);
        avio_context_free(&io_);
    }
    if (fd_ >= 0) ::close(fd_);
}

int LibavInput::readPacket(void* self, std::uint8_t* buf, int size) {
    auto* in = static_cast<LibavInput*>(self);
    ssize_t n;
    do n = ::pread(in->fd_, buf, static_cast<std::size_t>(size), in->pos_);
    while (n < 0 && errno == EINTR);
    if (n < 0) return AVERROR(EIO);
    if (n == 0) return AVERROR_EOF;
    in->pos_ += n;
    return static_cast<int>(n);
}

std::int64_t LibavInput::seek(void* self, std::int64_t offset, int whence) {
    auto* in = static_cast<LibavInput*>(self);
    std::int64_t to;
    switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE: return in->size_;
    case SEEK_SET: to = offset; break;
    case SEEK_CUR: to = in->pos_ + offset; break;
    case SEEK_END: to = in->size_ + offset; break;
    default: return AVERROR(EINVAL);
    }
    if (to < 0) return AVERROR(EINVAL);
    in->pos_ = to;
    return to;
}

bool LibavInput::stillWhole() const {
    struct stat st {};
    return fd_ >= 0 && ::fstat(fd_, &st) == 0 && st.st_size == size_;
}

}  // namespace tarvik
