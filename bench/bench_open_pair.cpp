// Opening a one-minute 1080p front/rear MP4 pair: conversion into the cache
// and both player views loading to Prepared, against the same two ffmpeg
// remuxes alone. Goal: open <= 1.3 x remuxes + 0.3 s.
// Needs a display: xvfb-run -a ./bench_open_pair

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "cardgen/video_maker.h"
#include "core/library/conversion/clip_converter.h"
#include "core/library/conversion/ffmpeg_command_lines.h"
#include "ui/library/player/orvo_av_view.h"

namespace fs = std::filesystem;
using namespace tarvik;

namespace {

const fs::path kRoot = fs::temp_directory_path() / "tarvik-bench-open-pair";
fs::path gFront, gRear;
OrvoAVView* gBig = nullptr;
OrvoAVView* gSmall = nullptr;
double gRemuxSeconds = 0, gOpenSeconds = 0;

bool makePair() {
    gFront = kRoot / "card" / "20261121_083000_F.mp4";
    gRear = kRoot / "card" / "20261121_083000_R.mp4";
    if (fs::exists(gFront) && fs::exists(gRear)) return true;
    fs::create_directories(kRoot / "card");
    const fs::path srt = kRoot / "track.srt";
    {
        std::ofstream out(srt);
        for (int s = 0; s < 60; ++s) {
            char cue[160];
            std::snprintf(cue, sizeof cue, "%d\n00:00:%02d,000 --> 00:00:%02d,999\n37.5665 126.9780 %d 0 0 128\n\n",
                          s + 1, s, s, 40 + s % 20);
            out << cue;
        }
    }
    cardgen::VideoSpec spec;
    spec.width = 1920;
    spec.height = 1080;
    spec.seconds = 60;
    spec.audio = true;
    spec.subtitleSrt = srt;
    if (!cardgen::makeVideo(spec, gFront)) return false;
    spec.audio = false;
    spec.pattern = "smptebars";
    return cardgen::makeVideo(spec, gRear);
}

void waitPrepared() {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!(gBig->status() == OrvoAVViewStatusPrepared && gSmall->status() == OrvoAVViewStatusPrepared) &&
           std::chrono::steady_clock::now() < deadline)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

void BM_TwoRemuxesAlone(benchmark::State& state) {
    const fs::path out = kRoot / "remux";
    for (auto _ : state) {
        fs::remove_all(out);
        fs::create_directories(out);
        Utils::ConvertAviToMovWithArguments(
            FfmpegCommandLines::remux(gFront, CodecTagType::Unknown, (out / "f.mov").string()));
        Utils::ConvertAviToMovWithArguments(
            FfmpegCommandLines::remux(gRear, CodecTagType::Unknown, (out / "r.mov").string()));
    }
}

void BM_OpenPairToPrepared(benchmark::State& state) {
    const fs::path documents = kRoot / "Documents";
    for (auto _ : state) {
        state.PauseTiming();
        gBig->reset();
        gSmall->reset();
        Utils::RemoveDirectory(Utils::GetWorkingDirectoryPath(documents));
        QCoreApplication::processEvents();
        state.ResumeTiming();

        auto files = ClipConverter(documents).checkAndConvertVideo(gFront.string());
        if (!files || files->size() != 2) {
            state.SkipWithError("conversion gave no pair");
            break;
        }
        gBig->setFileName(QString::fromStdString((*files)[0]));
        gSmall->setFileName(QString::fromStdString((*files)[1]));
        waitPrepared();
        if (gBig->status() != OrvoAVViewStatusPrepared || gSmall->status() != OrvoAVViewStatusPrepared) {
            state.SkipWithError("views did not reach Prepared");
            break;
        }
    }
}

BENCHMARK(BM_TwoRemuxesAlone)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);
BENCHMARK(BM_OpenPairToPrepared)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

// Keeps the mean real time of each benchmark to print the ratio afterwards.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& r : runs) {
            const double seconds = r.GetAdjustedRealTime() / 1000.0;  // reported in ms
            if (r.benchmark_name().find("TwoRemuxesAlone") != std::string::npos) gRemuxSeconds = seconds;
            if (r.benchmark_name().find("OpenPairToPrepared") != std::string::npos) gOpenSeconds = seconds;
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (!makePair()) {
        std::fprintf(stderr, "could not generate the clip pair with ffmpeg\n");
        return 1;
    }
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    gBig = new OrvoAVView;
    gSmall = new OrvoAVView;
    layout->addWidget(gBig, 2);
    layout->addWidget(gSmall, 1);
    window.resize(960, 360);
    window.show();

    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    gBig->reset();
    gSmall->reset();
    if (gRemuxSeconds > 0 && gOpenSeconds > 0) {
        const double budget = 1.3 * gRemuxSeconds + 0.3;
        std::printf("open pair %.3f s, two remuxes %.3f s: ratio %.2f; goal <= 1.3 x + 0.3 s = %.3f s: %s\n",
                    gOpenSeconds, gRemuxSeconds, gOpenSeconds / gRemuxSeconds, budget,
                    gOpenSeconds <= budget ? "met" : "NOT met");
    }
    return 0;
}
