// Exporting an incident: `tarvik export --layout side --overlay` over two
// front/rear pairs of 1080p30 against a plain ffmpeg that concatenates and
// stacks the same inputs with the same encoder settings, in processor time
// (user + system of the child), runs interleaved. Three minutes of drive by
// default; TARVIK_BENCH_INCIDENT_SECONDS makes it shorter.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench_process.h"
#include "bench_table.h"
#include "cardgen/card_plan.h"

namespace fs = std::filesystem;
using namespace tarvik;

namespace {

constexpr int kRuns = 3;

// Processor seconds of one run with its output thrown away; -1 when it failed.
double cpuOfRun(const std::vector<std::string>& argv) { return bench::timeRun(argv).cpu; }

}  // namespace

int main() {
    const char* env = std::getenv("TARVIK_BENCH_INCIDENT_SECONDS");
    const int seconds = env && std::atoi(env) > 0 ? std::atoi(env) : 180;
    const int half = seconds / 2;
    const fs::path dir = fs::temp_directory_path() / ("tarvik-bench-incident-" + std::to_string(getpid()));
    const fs::path card = dir / "card";
    std::string error;
    cardgen::CardPlan plan = cardgen::tripCardPlan(2, half, 1920, 1080);
    for (auto& c : plan.clips) c.video.fps = 30;
    if (!cardgen::writeCard(plan, card, &error)) {
        bench::tableRow("incident export vs plain hstack", -1, "<= 1.2", false, error);
        return 0;
    }
    const std::string f0 = (card / plan.clips[0].relPath).string(), r0 = (card / plan.clips[1].relPath).string();
    const std::string f1 = (card / plan.clips[2].relPath).string(), r1 = (card / plan.clips[3].relPath).string();
    const std::string tarvik = std::string(TARVIK_BINARY_DIR) + "/tarvik";
    char until[32];
    std::snprintf(until, sizeof until, "2026-11-21 10:%02d:%02d", 2 * half / 60, 2 * half % 60);
    std::vector<double> ratios;
    for (int run = 0; run < kRuns; ++run) {
        fs::remove_all(dir / "out");
        const double ours = cpuOfRun({tarvik, "export", card.string(), "--from", "2026-11-21 10:00:00", "--to", until,
                                      "--layout", "side", "--overlay", "--out", (dir / "out").string()});
        const double plain = cpuOfRun({"ffmpeg", "-nostdin", "-y", "-loglevel", "error", "-i", f0, "-i", f1, "-i", r0,
                                       "-i", r1, "-filter_complex",
                                       "[0:v:0][1:v:0]concat=n=2:v=1:a=0[f];[2:v:0][3:v:0]concat=n=2:v=1:a=0[r];[f][r]hstack[v]",
                                       "-map", "[v]", "-an", "-c:v", "libx264", "-preset", "veryfast", "-crf", "20",
                                       "-pix_fmt", "yuv420p", (dir / "plain.mp4").string()});
        if (ours > 0 && plain > 0) ratios.push_back(ours / plain);
        std::printf("run %d: export %.1f s, plain %.1f s of processor time\n", run, ours, plain);
    }
    fs::remove_all(dir);
    const double r = bench::median(ratios);
    bench::tableRow("incident export, " + std::to_string(seconds) + " s 1080p30 pair, side + overlay, vs plain hstack", r,
                    "<= 1.2", r >= 0 && r <= 1.2, r < 0 ? "an export or the baseline failed" : "");
    return 0;
}
