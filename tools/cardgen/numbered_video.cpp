#include "cardgen/numbered_video.h"

#include "cardgen/video_maker.h"
#include "core/util/process_runner.h"

namespace tarvik::cardgen {

bool makeNumberedClip(const std::filesystem::path& path, int fps, double seconds, int first, std::string* log) {
    const std::string rate = std::to_string(fps), length = std::to_string(seconds);
    const std::vector<std::string> args{
        "-v", "error", "-y", "-f", "lavfi", "-i", "color=c=black:s=320x180:r=" + rate + ":d=" + length, "-f",
        "lavfi", "-i", "sine=frequency=440:duration=" + length, "-vf",
        "geq=lum='if(mod(floor((N+" + std::to_string(first) + ")/pow(2,floor(X/32))),2),235,96)':cb=128:cr=128",
        "-c:v", "libx264", "-crf", "18", "-g", rate, "-pix_fmt", "yuv420p", "-c:a", "aac", "-shortest",
        path.string()};
    const ProcessResult r = ProcessRunner::run(ffmpegProgram(), args, std::chrono::minutes(2));
    if (log) *log = r.output;
    std::error_code ec;
    return r.exitCode == 0 && std::filesystem::exists(path, ec);
}

int numberInRow(const unsigned char* row, int width) {
    int left = -1, right = -1;
    for (int x = 0; x < width; ++x) {
        if (row[x] <= 40) continue;
        if (left < 0) left = x;
        right = x;
    }
    if (left < 0 || right - left < 2 * kNumberBits) return -1;
    const double bit = (right - left + 1) / double(kNumberBits);
    int number = 0;
    for (int i = 0; i < kNumberBits; ++i) {
        const int g = row[left + int((i + 0.5) * bit)];
        if (g > 170) number |= 1 << i;
        else if (g < 50 || g > 140) return -1;
    }
    return number;
}

}  // namespace tarvik::cardgen
