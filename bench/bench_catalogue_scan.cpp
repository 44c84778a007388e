// Scan + filter + sort of a card of 10,000 clips in nested folders, against a
// raw readdir walk of the same tree in the same run. Reports the ratio.

#include <benchmark/benchmark.h>
#include <dirent.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "bench_table.h"
#include "cardgen/card_plan.h"
#include "core/library/clip_catalogue.h"

namespace fs = std::filesystem;

namespace {

constexpr int kClips = 10000;
constexpr int kDepth = 3;

const std::string& cardRoot() {
    static const std::string root = [] {
        char tmpl[] = "/tmp/bench_catalogueXXXXXX";
        std::string r = mkdtemp(tmpl);
        tarvik::cardgen::writeNamedTree(r, kClips, kDepth);
        std::atexit([] {
            std::error_code ec;
            fs::remove_all(cardRoot(), ec);
        });
        return r;
    }();
    return root;
}

// The least any program listing the card can do: readdir, the entry's type
// as the directory gives it, every regular file's path.
void walk(std::string& dir, std::vector<std::string>& files) {
    DIR* d = opendir(dir.c_str());
    if (!d) return;
    const std::size_t len = dir.size();
    while (const dirent* e = readdir(d)) {
        if (e->d_name[0] == '.' && (!e->d_name[1] || (e->d_name[1] == '.' && !e->d_name[2]))) continue;
        dir += '/';
        dir += e->d_name;
        if (e->d_type == DT_DIR) walk(dir, files);
        else if (e->d_type == DT_REG) files.push_back(dir);
        dir.resize(len);
    }
    closedir(d);
}

void BM_RawReaddirWalk(benchmark::State& state) {
    for (auto _ : state) {
        std::string dir = cardRoot();
        std::vector<std::string> files;
        walk(dir, files);
        benchmark::DoNotOptimize(files.data());
    }
}

void BM_CatalogueScanFilterSort(benchmark::State& state) {
    const std::string& root = cardRoot();
    std::size_t rows = 0;
    for (auto _ : state) {
        tarvik::ClipCatalogue cat;
        cat.refreshVideoFileListWithURL(root);  // scan, filter "all", sort
        rows = cat.filteredVideoFileList().size();
        benchmark::DoNotOptimize(rows);
    }
    state.counters["clips"] = static_cast<double>(rows);
}

BENCHMARK(BM_RawReaddirWalk)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_CatalogueScanFilterSort)->Unit(benchmark::kMillisecond)->MinTime(1.0);

class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& r : runs)
            if (r.run_type == Run::RT_Iteration) {
                real[r.run_name.function_name] = r.GetAdjustedRealTime();
                cpu[r.run_name.function_name] = r.GetAdjustedCPUTime();
            }
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> real, cpu;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    cardRoot();  // generated before timing starts
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    // CPU time is the steadier figure on a shared machine; wall time is shown too.
    auto ratio = [](std::map<std::string, double>& t) {
        const double base = t["BM_RawReaddirWalk"], ours = t["BM_CatalogueScanFilterSort"];
        return base > 0 ? ours / base : 0.0;
    };
    const double cpu = ratio(reporter.cpu), wall = ratio(reporter.real);
    char note[96];
    std::snprintf(note, sizeof note, "CPU time; wall time %.2fx", wall);
    tarvik::bench::tableRow("catalogue scan of 10,000 clips / raw readdir walk", cpu, "<= 1.5", cpu > 0 && cpu <= 1.5,
                            note);
    benchmark::Shutdown();
    return 0;
}
