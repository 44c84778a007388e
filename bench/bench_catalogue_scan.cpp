// Scan + filter + sort of a card of 10,000 clips in nested folders, against a
// plain recursive walk of the same tree in the same run. Reports the ratio.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

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

// What any program walking the card would do: every regular file's path.
void BM_PlainRecursiveWalk(benchmark::State& state) {
    const std::string& root = cardRoot();
    for (auto _ : state) {
        std::vector<std::string> files;
        for (const auto& e : fs::recursive_directory_iterator(root))
            if (e.is_regular_file()) files.push_back(e.path().string());
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

BENCHMARK(BM_PlainRecursiveWalk)->Unit(benchmark::kMillisecond)->MinTime(1.0);
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
        const double base = t["BM_PlainRecursiveWalk"], ours = t["BM_CatalogueScanFilterSort"];
        return base > 0 ? ours / base : 0.0;
    };
    std::printf("catalogue scan+filter+sort / plain walk: %.2fx CPU time, %.2fx wall time (target <= 1.5x)\n",
                ratio(reporter.cpu), ratio(reporter.real));
    benchmark::Shutdown();
    return 0;
}
