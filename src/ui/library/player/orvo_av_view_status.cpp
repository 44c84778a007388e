#include "ui/library/player/orvo_av_view_status.h"

namespace tarvik {

const char* orvoAVViewStatusName(std::uint32_t status) {
    static const char* const names[] = {
        "OrvoAVViewStatusInit",   "OrvoAVViewStatusLoading", "OrvoAVViewStatusPrepared",
        "OrvoAVViewStatusPlaying", "OrvoAVViewStatusPaused", "OrvoAVViewStatusEnded",
        "OrvoAVViewStatusUnknown", "OrvoAVViewStatusError"};
    return status < sizeof names / sizeof names[0] ? names[status] : "Unknown";
}

}  // namespace tarvik
