#include "core/media/libav_input.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/log.h>
}

namespace tarvik {

LibavInput::LibavInput(const std::string& path) {
    // A damaged clip would otherwise print to the terminal of `tarvik` or the viewer.
    av_log_set_level(AV_LOG_QUIET);
    if (avformat_open_input(&ctx_, path.c_str(), nullptr, nullptr) < 0) ctx_ = nullptr;
}

LibavInput::~LibavInput() {
    if (ctx_) avformat_close_input(&ctx_);
}

}  // namespace tarvik
