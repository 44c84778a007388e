#include "cardgen/numbered_frames.h"

#include <chrono>
#include <string>
#include <vector>

#include "core/util/process_runner.h"
#include "cardgen/video_maker.h"

namespace tarvik::cardgen {

bool makeNumberedClip(const std::filesystem::path& path, int fps, double seconds, int first, int width,
                      int height) {
    // Stripe i is bit i of the number: X / (width / bits) picks the stripe.
    const std::string stripe = std::to_string(width / kNumberBits);
    const std::string code = "geq=lum='if(mod(floor((N+" + std::to_string(first) + ")/pow(2,floor(X/" + stripe +
                             "))),2),235,96)':cb=128:cr=128";
    const std::string dur = std::to_string(seconds);
    const std::vector<std::string> args{
        "-v", "error", "-y", "-f", "lavfi", "-i",
        "color=c=black:s=" + std::to_string(width) + "x" + std::to_string(height) + ":r=" + std::to_string(fps) +
            ":d=" + dur,
        "-f", "lavfi", "-i", "sine=frequency=440:duration=" + dur, "-vf", code, "-c:v", "libx264", "-crf", "18", "-g",
        std::to_string(fps), "-pix_fmt", "yuv420p", "-c:a", "aac", "-shortest", path.string()};
    return ProcessRunner::run(ffmpegProgram(), args, std::chrono::minutes(5)).exitCode == 0;
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
