// One dashboard tick against its 1/33 s period, with a full subtitle track
// (65 s of telemetry, 650 cues) and with the clip's own samples. The baseline,
// measured in the same run, is the least a tick must do: one label text.
// "period_pct" is the tick's share of its period in percent.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLabel>
#include <QTemporaryDir>
#include <chrono>
#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "bench_table.h"
#include "cardgen/demo_drive.h"
#include "cardgen/telemetry_encoders.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"
#include "ui/library/playback/dashboard_updater.h"
#include "ui/telemetry/map_controller.h"
#include "ui/telemetry/speed_meter_view.h"

using namespace tarvik;

namespace {

constexpr double kPeriod = 1.0 / 33.0;
constexpr double kClipSeconds = 65.0;

struct Clock : PlayClock {
    double t = 0;
    double currentTime() const override { return t; }
    double duration() const override { return kClipSeconds; }
};

struct Fixture {
    QLabel gx, gy, gz, lat, lng, time;
    SpeedMeterView speed;
    QWidget cover, web;
    MapController map{nullptr};  // no page: the script is queued, as it is sent to a page
    Clock clock;
    OrvoClipData clipData;
    SubtitleData subtitles;
    DashboardUpdater updater;

    Fixture() : updater(targets(), clock) {
        const std::string srt = cardgen::srtTrack(cardgen::driveSeconds(0, static_cast<int>(kClipSeconds), 10));
        subtitles.loadFromText(srt);
        QTemporaryDir dir;
        const std::string path = dir.filePath("clip.srt").toStdString();
        std::ofstream(path) << srt;
        clipData.loadVideoFileCilpDataFromFilePath(path);
        updater.setClipData(&clipData);
    }
    DashboardTargets targets() {
        DashboardTargets d;
        d.gxText = &gx, d.gyText = &gy, d.gzText = &gz, d.latText = &lat, d.lngText = &lng;
        d.playTimeText = &time, d.speedMeter = &speed, d.mapCover = &cover, d.mapWebView = &web, d.map = &map;
        return d;
    }
    // Plays through the clip a tick at a time, starting over at its end.
    void tick() {
        clock.t += kPeriod;
        if (clock.t >= kClipSeconds) {
            clock.t = 0;
            updater.resetUpdateTimes();
        }
        updater.playVideoTimerCallback();
    }
};

using Steady = std::chrono::steady_clock;

void reportShare(benchmark::State& state, Steady::time_point start) {
    const double seconds = std::chrono::duration<double>(Steady::now() - start).count();
    const double perTick = seconds / static_cast<double>(std::max<benchmark::IterationCount>(1, state.iterations()));
    state.counters["period_pct"] = perTick / kPeriod * 100.0;
}

void BM_BaselineLabelText(benchmark::State& state) {
    QLabel label;
    int i = 0;
    const auto start = Steady::now();
    for (auto _ : state) label.setText(DashboardUpdater::playTimeText(++i % 3600, kClipSeconds));
    reportShare(state, start);
}

void BM_TickSubtitleTrack(benchmark::State& state) {
    Fixture f;
    f.updater.setSubtitleData(&f.subtitles);
    const auto start = Steady::now();
    for (auto _ : state) f.tick();
    if (f.subtitles.cueCount() < 650) state.SkipWithError("the subtitle track is not full");
    state.counters["cues"] = static_cast<double>(f.subtitles.cueCount());
    reportShare(state, start);
}

void BM_TickClipSamples(benchmark::State& state) {
    Fixture f;
    const auto start = Steady::now();
    for (auto _ : state) f.tick();
    state.counters["samples"] = f.clipData.clipDataCount();
    reportShare(state, start);
}

BENCHMARK(BM_BaselineLabelText);
BENCHMARK(BM_TickSubtitleTrack);
BENCHMARK(BM_TickClipSamples);

// A tick must fit its period: the share of the period goes to the result table.
class ShareReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& r : runs) {
            const auto c = r.counters.find("period_pct");
            if (c == r.counters.end() || r.benchmark_name().find("Tick") == std::string::npos) continue;
            const double share = c->second.value / 100.0;
            bench::tableRow("dashboard tick / its 1/33 s period (" + r.benchmark_name().substr(7) + ")", share, "< 1",
                            share < 1.0);
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    // Labels and the gauge need an application, not a screen.
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    ShareReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
