#include "core/telemetry/mp4_clip_path.h"

#include <cctype>

namespace tarvik {

namespace {

// The file name's extension is `ext` (lower case, without the dot), in any case.
bool hasExtension(std::string_view path, std::string_view ext) {
    const std::size_t dot = path.rfind('.');
    if (dot == std::string_view::npos || path.size() - dot - 1 != ext.size()) return false;
    const std::size_t slash = path.rfind('/');
    if (slash != std::string_view::npos && slash > dot) return false;
    for (std::size_t i = 0; i < ext.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(path[dot + 1 + i])) != ext[i]) return false;
    return true;
}

}  // namespace

bool isMp4ClipPath(std::string_view path) { return hasExtension(path, "mp4"); }

bool isPairedClipPath(std::string_view path) { return hasExtension(path, "mp4") || hasExtension(path, "ts"); }

}  // namespace tarvik
