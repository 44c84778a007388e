// Preallocated clips (sparse files of 5 GiB zeros, costing no disk): the
// telemetry of one AVI and one MP4 read in-process, in seconds, and
// `tarvik trips` over a card of twenty of them against a stat walk of the
// same card (`find -printf %s`), both as whole processes, runs interleaved.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "bench_process.h"
#include "bench_table.h"
#include "core/library/trips/clip_telemetry_loader.h"
#include "core/telemetry/orvo_clip_data.h"

namespace fs = std::filesystem;
using namespace tarvik;
using bench::median;

namespace {

constexpr int kRuns = 15;
constexpr std::uintmax_t kClipBytes = 5ull << 30;

// Wall seconds of one run with its output thrown away; -1 when it failed.
double runOnce(const std::vector<std::string>& argv) { return bench::timeRun(argv).wall; }

void sparse(const fs::path& p) {
    fs::create_directories(p.parent_path());
    std::ofstream(p, std::ios::binary).close();
    fs::resize_file(p, kClipBytes);
}

double telemetrySeconds(const fs::path& clip) {
    auto data = std::make_unique<OrvoClipData>();
    std::vector<double> t;
    for (int i = 0; i < kRuns; ++i) {
        const auto t0 = std::chrono::steady_clock::now();
        loadClipTelemetry(clip.string(), *data);
        t.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count());
        if (data->clipDataCount() != 0) return -1;
    }
    return median(t);
}

}  // namespace

int main() {
    const fs::path root = fs::temp_directory_path() / ("tarvik-bench-unrecorded-" + std::to_string(::getpid()));
    for (int i = 0; i < 10; ++i) {
        sparse(root / "cont_rec" / ("20261121_0830" + std::to_string(10 + i) + "_F.avi"));
        sparse(root / "cont_rec" / ("20261121_0830" + std::to_string(10 + i) + "_R.mp4"));
    }
    const fs::path avi = root / "cont_rec/20261121_083010_F.avi", mp4 = root / "cont_rec/20261121_083010_R.mp4";
    const double aviSeconds = telemetrySeconds(avi), mp4Seconds = telemetrySeconds(mp4);

    const std::string tarvik = (fs::canonical("/proc/self/exe").parent_path().parent_path() / "tarvik").string();
    std::vector<double> trips, walk;
    for (int i = 0; i < kRuns; ++i) {
        trips.push_back(runOnce({tarvik, "trips", root.string()}));
        walk.push_back(runOnce({"/usr/bin/find", root.string(), "-printf", "%s\n"}));
    }
    std::error_code ec;
    fs::remove_all(root, ec);
    std::printf("median of %d runs: telemetry AVI %.3f ms, MP4 %.3f ms; tarvik trips %.2f ms, stat walk %.2f ms\n",
                kRuns, aviSeconds * 1e3, mp4Seconds * 1e3, median(trips) * 1e3, median(walk) * 1e3);

    char note[96];
    std::snprintf(note, sizeof note, "seconds, not a ratio: in-process, median of %d", kRuns);
    bench::tableRow("telemetry of a sparse 5 GiB zero-filled AVI", aviSeconds, "<= 0.01", aviSeconds >= 0 && aviSeconds <= 0.01,
                    aviSeconds < 0 ? "samples found in zeros" : note);
    bench::tableRow("telemetry of a sparse 5 GiB zero-filled MP4", mp4Seconds, "<= 0.01", mp4Seconds >= 0 && mp4Seconds <= 0.01,
                    mp4Seconds < 0 ? "samples found in zeros" : note);
    const bool ran = std::find(trips.begin(), trips.end(), -1.0) == trips.end() &&
                     std::find(walk.begin(), walk.end(), -1.0) == walk.end();
    const double ratio = ran ? median(trips) / median(walk) : -1;
    bench::tableRow("tarvik trips / stat walk, 20 sparse 5 GiB zero clips", ratio, "<= 2", ratio >= 0 && ratio <= 2,
                    ran ? "wall time, whole processes" : "a run failed");
    return 0;
}
