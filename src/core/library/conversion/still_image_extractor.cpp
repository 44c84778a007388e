#include "core/library/conversion/still_image_extractor.h"

#include <chrono>
#include <cstdio>
#include <filesystem>

#include "core/library/conversion/utils.h"

namespace tarvik {

bool StillImageExtractor::extractPng(const std::string& videoPath, double seconds, const std::string& pngPath) {
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::remove(pngPath, ec);
    char at[32];
    std::snprintf(at, sizeof at, "%.6f", seconds < 0 ? 0.0 : seconds);
    Utils::DoTaskWithLaunchPath(Utils::GetFFMPEGPath(),
                                {"-nostdin", "-v", "error", "-ss", at, "-i", videoPath, "-map", "0:v:0",
                                 "-frames:v", "1", "-f", "image2", "-c:v", "png", "-y", pngPath},
                                std::chrono::seconds(30));
    return fs::is_regular_file(pngPath, ec) && fs::file_size(pngPath, ec) > 0;
}

}  // namespace tarvik
