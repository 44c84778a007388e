// `tarvik telemetry` as a whole process on a one-minute MP4 with a telemetry
// subtitle track, against `exiftool -ee` on the same file and against the same
// command on a one-minute AVI, all in the same run, runs interleaved.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "bench_process.h"
#include "bench_table.h"
#include "cardgen/card_plan.h"

namespace fs = std::filesystem;
using namespace tarvik;

namespace {

using tarvik::bench::median;

using bench::Timing;
using bench::timeRun;

constexpr int kRuns = 7;

std::string onPath(const std::string& program) {
    const char* path = std::getenv("PATH");
    std::string dirs = path ? path : "/usr/bin:/bin";
    for (std::size_t a = 0; a <= dirs.size();) {
        std::size_t b = dirs.find(':', a);
        if (b == std::string::npos) b = dirs.size();
        const fs::path p = fs::path(dirs.substr(a, b - a)) / program;
        if (access(p.c_str(), X_OK) == 0) return p.string();
        a = b + 1;
    }
    return {};
}


}  // namespace

int main(int, char** argv) {
    const fs::path root = fs::temp_directory_path() / "tarvik-bench-telemetry-command";
    const fs::path mp4 = root / "cont_rec/20261121_083000_F.mp4", avi = root / "cont_rec/20261121_083200.avi";
    if (!fs::exists(mp4) || !fs::exists(avi)) {
        cardgen::CardOptions o;
        o.seconds = 60;
        cardgen::CardPlan plan = cardgen::demoCardPlan(o);
        std::erase_if(plan.clips, [](const cardgen::ClipPlan& c) {
            return c.relPath != "cont_rec/20261121_083000_F.mp4" && c.relPath != "cont_rec/20261121_083200.avi";
        });
        plan.files.clear();
        std::string error;
        if (!cardgen::writeCard(plan, root, &error)) {
            std::fprintf(stderr, "could not generate the clips: %s\n", error.c_str());
            return 1;
        }
    }
    const std::string tarvik = (fs::canonical("/proc/self/exe").parent_path().parent_path() / "tarvik").string();
    const std::string exiftool = onPath("exiftool");
    (void)argv;

    std::vector<double> wallMp4, wallAvi, wallExif, cpuMp4, cpuAvi, cpuExif;
    for (int i = 0; i < kRuns; ++i) {
        const Timing m = timeRun({tarvik, "telemetry", mp4.string()});
        const Timing a = timeRun({tarvik, "telemetry", avi.string()});
        if (m.wall < 0 || a.wall < 0) {
            std::fprintf(stderr, "tarvik telemetry failed\n");
            return 1;
        }
        wallMp4.push_back(m.wall), cpuMp4.push_back(m.cpu);
        wallAvi.push_back(a.wall), cpuAvi.push_back(a.cpu);
        if (!exiftool.empty()) {
            const Timing e = timeRun({exiftool, "-ee", mp4.string()});
            if (e.wall >= 0) wallExif.push_back(e.wall), cpuExif.push_back(e.cpu);
        }
    }
    std::printf("median of %d runs, wall / CPU ms: tarvik mp4 %.1f / %.1f, tarvik avi %.1f / %.1f", kRuns,
                median(wallMp4) * 1e3, median(cpuMp4) * 1e3, median(wallAvi) * 1e3, median(cpuAvi) * 1e3);
    if (!wallExif.empty()) std::printf(", exiftool -ee %.1f / %.1f", median(wallExif) * 1e3, median(cpuExif) * 1e3);
    std::printf("\n");

    char note[96];
    if (wallExif.empty()) {
        bench::tableRow("exiftool -ee / tarvik telemetry, 1 min MP4", -1, ">= 20", false,
                        "exiftool not found (Debian package libimage-exiftool-perl)");
    } else {
        const double ratio = median(wallExif) / median(wallMp4);
        std::snprintf(note, sizeof note, "wall time; CPU time %.1fx", median(cpuExif) / median(cpuMp4));
        bench::tableRow("exiftool -ee / tarvik telemetry, 1 min MP4", ratio, ">= 20", ratio >= 20, note);
    }
    const double ratio = median(wallMp4) / median(wallAvi);
    std::snprintf(note, sizeof note, "wall time; CPU time %.2fx", median(cpuMp4) / median(cpuAvi));
    bench::tableRow("tarvik telemetry 1 min MP4 / 1 min AVI", ratio, "<= 1.5", ratio <= 1.5, note);
    return 0;
}
