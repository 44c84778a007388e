#include "core/media/libav_input.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/log.h>
}

namespace tarvik {

LibavInput::LibavInput(const std::string& path) {
    // A damaged clip would otherwise print to the terminal of `tarvik` or the viewer.
    av_log_set_level(AV_LOG_QUIET);
    // A subtitle sample is a few hundred bytes between large pictures: small
    // reads, and seeks that jump rather than read through the pictures.
    ctx_ = avformat_alloc_context();
    if (!ctx_) return;
    ctx_->avio_flags = AVIO_FLAG_DIRECT;
    AVDictionary* options = nullptr;
    av_dict_set(&options, "blocksize", "4096", 0);
    if (avformat_open_input(&ctx_, path.c_str(), nullptr, &options) < 0) ctx_ = nullptr;
    av_dict_free(&options);
}

LibavInput::~LibavInput() {
    if (ctx_) avformat_close_input(&ctx_);
}

}  // namespace tarvik
