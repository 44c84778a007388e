#pragma once

#include <cstdint>

namespace tarvik {

// The view sets only Init, Loading, Prepared, Unknown and Error; playing,
// paused and ended are read from the rate and the end callback instead.
enum OrvoAVViewStatus : std::uint32_t {
    OrvoAVViewStatusInit = 0,
    OrvoAVViewStatusLoading = 1,
    OrvoAVViewStatusPrepared = 2,
    OrvoAVViewStatusPlaying = 3,
    OrvoAVViewStatusPaused = 4,
    OrvoAVViewStatusEnded = 5,
    OrvoAVViewStatusUnknown = 6,
    OrvoAVViewStatusError = 7,
};

// Diagnostic name of a status value; "Unknown" for values outside the enumeration.
const char* orvoAVViewStatusName(std::uint32_t status);

}  // namespace tarvik
