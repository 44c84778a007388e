#include "core/telemetry/mp4_clip_path.h"

#include <cctype>

namespace tarvik {

bool isMp4ClipPath(std::string_view path) {
    const std::size_t dot = path.rfind('.');
    if (dot == std::string_view::npos || path.size() - dot != 4) return false;
    const std::size_t slash = path.rfind('/');
    if (slash != std::string_view::npos && slash > dot) return false;
    for (std::size_t i = 0; i < 3; ++i)
        if (std::tolower(static_cast<unsigned char>(path[dot + 1 + i])) != "mp4"[i]) return false;
    return true;
}

}  // namespace tarvik
