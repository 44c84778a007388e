#include "core/media/media_probe.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include "core/media/libav_input.h"

namespace tarvik {

int videoStreamCount(const std::string& path) {
    LibavInput in(path);
    if (!in) return -1;
    int n = 0;
    for (unsigned i = 0; i < in.get()->nb_streams; ++i) {
        const AVStream* s = in.get()->streams[i];
        if (s->codecpar->codec_type == AVMEDIA_TYPE_VIDEO && !(s->disposition & AV_DISPOSITION_ATTACHED_PIC)) ++n;
    }
    return n;
}

}  // namespace tarvik
