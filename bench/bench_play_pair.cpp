// The processor time of playing a 1080p30 front/rear pair for 20 s in the
// real main window (both views, one kept on the other's time), against two
// plain mpv processes playing the same two files for 20 s, in the same run.
// Needs a display: make bench runs it under Xvfb.

#include <sys/resource.h>

#include <QApplication>
#include <QProcess>
#include <QTableView>
#include <QThreadPool>
#include <QWindow>
#include <chrono>
#include <clocale>
#include <cstdio>
#include <filesystem>

#include "bench_table.h"
#include "cardgen/video_maker.h"
#include "core/library/clip_catalogue.h"
#include "ui/shell/catalogue_controller.h"
#include "ui/shell/main_window.h"
#include "ui/shell/main_window_controller.h"
#include "ui/shell/main_window_views.h"
#include "ui/library/playback/dashboard_widgets.h"
#include "ui/library/playback/playback_controller.h"
#include "ui/library/player/orvo_av_view.h"
#include "ui/telemetry/map_controller.h"

namespace fs = std::filesystem;
using namespace tarvik;
using Clock = std::chrono::steady_clock;

namespace {

constexpr double kPlaySeconds = 20.0;
constexpr int kRuns = 3;
const fs::path kRoot = fs::temp_directory_path() / "tarvik-bench-play-pair";

bool makePair(fs::path& front, fs::path& rear) {
    front = kRoot / "card" / "20261121_083000_F.mp4";
    rear = kRoot / "card" / "20261121_083000_R.mp4";
    if (fs::exists(front) && fs::exists(rear)) return true;
    fs::create_directories(kRoot / "card");
    cardgen::VideoSpec spec;
    spec.width = 1920;
    spec.height = 1080;
    spec.seconds = static_cast<int>(kPlaySeconds) + 2;
    spec.audio = true;
    if (!cardgen::makeVideo(spec, front)) return false;
    spec.pattern = "smptebars";
    return cardgen::makeVideo(spec, rear);
}

double cpuSeconds(int who) {
    rusage u{};
    getrusage(who, &u);
    return double(u.ru_utime.tv_sec + u.ru_stime.tv_sec) + (u.ru_utime.tv_usec + u.ru_stime.tv_usec) / 1e6;
}

void pump(double seconds) {
    const auto until = Clock::now() + std::chrono::duration<double>(seconds);
    while (Clock::now() < until) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

// Two mpv processes with the viewer's players' settings, drawing to windows
// of the same display.
double plainMpvSeconds(const fs::path& front, const fs::path& rear) {
    const double before = cpuSeconds(RUSAGE_CHILDREN);
    QProcess p[2];
    const fs::path files[2] = {front, rear};
    for (int i = 0; i < 2; ++i) {
        p[i].setProcessChannelMode(QProcess::ForwardedErrorChannel);
        p[i].setStandardOutputFile(QProcess::nullDevice());
        p[i].start("mpv", {"--no-config", "--really-quiet", "--hwdec=no", "--ao=pipewire,pulse,alsa,null",
                           "--audio-fallback-to-null=yes", "--sid=no", "--geometry=640x360",
                           QString("--length=%1").arg(kPlaySeconds), QString::fromStdString(files[i].string())});
    }
    for (QProcess& x : p)
        if (!x.waitForFinished(int(kPlaySeconds * 4000)) || x.exitCode() != 0) return -1;
    return cpuSeconds(RUSAGE_CHILDREN) - before;
}

double viewerSeconds(MainWindowController& window, int row) {
    PlaybackController& playback = window.playback();
    const double before = cpuSeconds(RUSAGE_SELF);
    window.views().fileListTableView->selectRow(row);
    window.catalogue().videoFileListDoubleClicked();
    const auto deadline = Clock::now() + std::chrono::seconds(int(kPlaySeconds * 4));
    while (playback.bigMovieView()->currentTime() < kPlaySeconds && Clock::now() < deadline)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    const double spent = cpuSeconds(RUSAGE_SELF) - before;
    const bool played = playback.bigMovieView()->currentTime() >= kPlaySeconds;
    playback.stopVideo();
    playback.bigMovieView()->reset();
    playback.smallMovieView()->reset();
    QThreadPool::globalInstance()->waitForDone();
    return played ? spent : -1;
}

}  // namespace

int main(int argc, char** argv) {
    const fs::path home = kRoot / "home";
    fs::create_directories(home);
    setenv("HOME", home.c_str(), 1);
    setenv("XDG_CONFIG_HOME", (home / ".config").c_str(), 1);
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    fs::path front, rear;
    if (!makePair(front, rear)) {
        std::fprintf(stderr, "could not generate the clip pair with ffmpeg\n");
        return 1;
    }
    MainWindowController window;
    window.showMainWindow();
    const auto shownDeadline = Clock::now() + std::chrono::seconds(30);
    while (!(window.mainWindow()->isVisible() && window.mainWindow()->windowHandle() &&
             window.mainWindow()->windowHandle()->isExposed()) &&
           Clock::now() < shownDeadline)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    window.catalogue().chooseFolder((kRoot / "card").string());
    int row = -1;
    const auto& list = window.catalogue().catalogue().filteredVideoFileList();
    for (std::size_t i = 0; i < list.size(); ++i)
        if (ClipCatalogue::fileName(list[i]) == front.filename().string()) row = static_cast<int>(i);
    const auto pageDeadline = Clock::now() + std::chrono::seconds(60);
    while (window.playback().dashboardWidgets().mapController &&
           !window.playback().dashboardWidgets().mapController->isPageReady() && Clock::now() < pageDeadline)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    if (row < 0) {
        std::fprintf(stderr, "the pair is not in the clip list\n");
        return 1;
    }
    pump(1.0);

    std::vector<double> ours, base;
    for (int i = 0; i < kRuns; ++i) {
        const double b = plainMpvSeconds(front, rear);
        const double o = viewerSeconds(window, row);
        pump(1.0);
        if (b < 0 || o < 0) {
            std::fprintf(stderr, "a run did not play its 20 s (plain %.2f, viewer %.2f)\n", b, o);
            continue;
        }
        base.push_back(b), ours.push_back(o);
        std::printf("run %d: viewer %.2f s of processor time, two plain mpv processes %.2f s\n", i + 1, o, b);
    }
    const double o = bench::median(ours), b = bench::median(base);
    const double ratio = o < 0 || b <= 0 ? -1 : o / b;
    bench::tableRow("processor time of a 20 s 1080p30 pair / two plain mpv processes", ratio, "<= 1.1",
                    ratio >= 0 && ratio <= 1.1, ratio < 0 ? "a run did not play" : "");
    return 0;
}
