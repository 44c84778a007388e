// Double-click on a one-minute 1080p front/rear MP4 pair in the real main
// window until both views have drawn their first frame, against two plain
// libmpv opens of the same two files to their first frame, in the same run.
// Needs a display: make bench runs it under Xvfb.

#include <mpv/client.h>
#include <mpv/render_gl.h>

#include <QApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QThreadPool>
#include <QTimer>
#include <QTableView>
#include <QWindow>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <clocale>
#include <condition_variable>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <vector>

#include "bench_table.h"
#include "event_wait.h"
#include "viewer_on_card.h"
#include "cardgen/video_maker.h"
#include "core/library/clip_catalogue.h"
#include "ui/shell/catalogue_controller.h"
#include "ui/shell/main_window.h"
#include "ui/shell/main_window_controller.h"
#include "ui/shell/main_window_views.h"
#include "ui/base/graphics/software_pictures.h"
#include "ui/library/playback/dashboard_widgets.h"
#include "ui/library/playback/playback_controller.h"
#include "ui/library/player/mpv_player.h"
#include "ui/library/player/orvo_av_view.h"
#include "ui/telemetry/map_controller.h"

namespace fs = std::filesystem;
using namespace tarvik;
using Clock = std::chrono::steady_clock;

namespace {

using tarvik::bench::median;

constexpr int kRuns = 15;
// What opening this pair took before the players read the card's files directly.
constexpr double kEarlierOpenSeconds = 1.24;
const fs::path kRoot = fs::temp_directory_path() / "tarvik-bench-open-pair";

bool makePair(fs::path& front, fs::path& rear) {
    front = kRoot / "card" / "20261121_083000_F.mp4";
    rear = kRoot / "card" / "20261121_083000_R.mp4";
    if (fs::exists(front) && fs::exists(rear)) return true;
    fs::create_directories(kRoot / "card");
    const fs::path srt = kRoot / "track.srt";
    {
        std::ofstream out(srt);
        for (int s = 0; s < 600; ++s) {
            char cue[200];
            std::snprintf(cue, sizeof cue,
                          "%d\n00:00:%02d,%03d --> 00:00:%02d,%03d\ngsensori,%d,%d,%d,0,0;\nGPRMC,0830%02d.000,A,3733.99%02d,N,"
                          "12658.68%02d,E,%d\n\n",
                          s + 1, s / 10, s % 10 * 100, s / 10, s % 10 * 100 + 99, s % 40, -s % 30, 128, s / 10,
                          s % 100, s % 100, 20 + s % 20);
            out << cue;
        }
    }
    cardgen::VideoSpec spec;
    spec.width = 1920;
    spec.height = 1080;
    spec.seconds = 60;
    spec.audio = true;
    spec.subtitleSrt = srt;
    if (!cardgen::makeVideo(spec, front)) return false;
    spec.audio = false;
    spec.pattern = "smptebars";
    return cardgen::makeVideo(spec, rear);
}

// Both players gone, their handles destroyed: nothing left over runs during the next timing.
void settle() {
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

// The baseline: mpv's own client and render API, the same options and sound
// output as the viewer's players, one handle per file, both opened at once;
// done when each has rendered a frame. It draws the way the viewer draws on
// this machine: through OpenGL, or by the processor where the only OpenGL is
// a software one.
class PlainMpvPair {
public:
    double openSeconds(const fs::path& a, const fs::path& b) {
        const auto t0 = Clock::now();
        Player p[2];
        bool ok = start(p[0], a) && start(p[1], b);
        if (!ok) std::fprintf(stderr, "plain libmpv: could not start a player\n");
        int framed = 0;
        while (ok && framed < 2 && Clock::now() - t0 < std::chrono::seconds(60)) {
            {
                std::unique_lock lock(mutex_);
                cv_.wait_for(lock, std::chrono::milliseconds(5), [&] { return signalled_; });
                signalled_ = false;
            }
            for (Player& x : p) {
                while (mpv_wait_event(x.mpv, 0)->event_id != MPV_EVENT_NONE) {
                }
                if (x.framed || !(mpv_render_context_update(x.render) & MPV_RENDER_UPDATE_FRAME)) continue;
                x.framed = true;
                ++framed;
                if (!x.gl) {
                    renderInMemory(x);
                    continue;
                }
                x.gl->makeCurrent(x.surface.get());
                mpv_opengl_fbo fbo{static_cast<int>(x.fbo->handle()), x.fbo->width(), x.fbo->height(), 0};
                int flip = 1;
                mpv_render_param params[] = {{MPV_RENDER_PARAM_OPENGL_FBO, &fbo},
                                             {MPV_RENDER_PARAM_FLIP_Y, &flip},
                                             {MPV_RENDER_PARAM_INVALID, nullptr}};
                mpv_render_context_render(x.render, params);
                x.gl->functions()->glFinish();
                x.gl->doneCurrent();
            }
        }
        const double s = std::chrono::duration<double>(Clock::now() - t0).count();
        for (Player& x : p) stop(x);
        return framed == 2 ? s : -1;
    }

private:
    struct Player {
        mpv_handle* mpv = nullptr;
        mpv_render_context* render = nullptr;
        std::unique_ptr<QOpenGLContext> gl;
        std::unique_ptr<QOffscreenSurface> surface;
        std::unique_ptr<QOpenGLFramebufferObject> fbo;
        std::vector<unsigned char> pixels;
        bool framed = false;
    };

    static constexpr int kWidth = 640, kHeight = 360;

    static void renderInMemory(Player& x) {
        int size[2] = {kWidth, kHeight};
        char format[] = "bgr0";
        std::size_t stride = kWidth * 4;
        mpv_render_param params[] = {{MPV_RENDER_PARAM_SW_SIZE, size},
                                     {MPV_RENDER_PARAM_SW_FORMAT, format},
                                     {MPV_RENDER_PARAM_SW_STRIDE, &stride},
                                     {MPV_RENDER_PARAM_SW_POINTER, x.pixels.data()},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
        mpv_render_context_render(x.render, params);
    }

    static void* procAddress(void*, const char* name) {
        return reinterpret_cast<void*>(QOpenGLContext::currentContext()->getProcAddress(name));
    }
    static void wake(void* self) {
        auto* me = static_cast<PlainMpvPair*>(self);
        std::lock_guard lock(me->mutex_);
        me->signalled_ = true;
        me->cv_.notify_one();
    }

    bool start(Player& p, const fs::path& file) {
        p.mpv = mpv_create();
        for (const auto& [k, v] : {std::pair{"vo", "libmpv"}, {"pause", "yes"}, {"hwdec", "no"}, {"idle", "yes"},
                                   {"ao", "pipewire,pulse,alsa,null"}, {"audio-fallback-to-null", "yes"},
                                   {"load-scripts", "no"}, {"ytdl", "no"}, {"terminal", "no"}, {"sid", "no"}})
            mpv_set_option_string(p.mpv, k, v);
        if (mpv_initialize(p.mpv) < 0) return false;
        if (softwarePictures()) {
            p.pixels.resize(std::size_t(kWidth) * kHeight * 4);
            mpv_render_param sw[] = {{MPV_RENDER_PARAM_API_TYPE, const_cast<char*>(MPV_RENDER_API_TYPE_SW)},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
            if (mpv_render_context_create(&p.render, p.mpv, sw) < 0) return false;
            return load(p, file);
        }
        p.gl = std::make_unique<QOpenGLContext>();
        p.gl->setShareContext(QOpenGLContext::globalShareContext());
        p.gl->create();
        p.surface = std::make_unique<QOffscreenSurface>();
        p.surface->setFormat(p.gl->format());
        p.surface->create();
        p.gl->makeCurrent(p.surface.get());
        // About the size of one of the viewer's views: the viewer's players
        // draw at the size they are shown, and so would any plain player.
        p.fbo = std::make_unique<QOpenGLFramebufferObject>(kWidth, kHeight);
        mpv_opengl_init_params init{&PlainMpvPair::procAddress, nullptr};
        mpv_render_param params[] = {{MPV_RENDER_PARAM_API_TYPE, const_cast<char*>(MPV_RENDER_API_TYPE_OPENGL)},
                                     {MPV_RENDER_PARAM_OPENGL_INIT_PARAMS, &init},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
        const bool ok = mpv_render_context_create(&p.render, p.mpv, params) >= 0;
        p.gl->doneCurrent();
        if (!ok) return false;
        return load(p, file);
    }

    bool load(Player& p, const fs::path& file) {
        mpv_render_context_set_update_callback(p.render, &PlainMpvPair::wake, this);
        mpv_set_wakeup_callback(p.mpv, &PlainMpvPair::wake, this);
        const std::string path = file.string();
        const char* cmd[] = {"loadfile", path.c_str(), nullptr};
        return mpv_command_async(p.mpv, 0, cmd) >= 0;
    }

    void stop(Player& p) {
        if (!p.mpv) return;
        mpv_set_wakeup_callback(p.mpv, nullptr, nullptr);
        if (p.render && !p.gl) {
            mpv_render_context_free(p.render);
        } else if (p.render) {
            p.gl->makeCurrent(p.surface.get());
            mpv_render_context_free(p.render);
            p.fbo.reset();
            p.gl->doneCurrent();
        }
        mpv_terminate_destroy(p.mpv);
    }

    std::mutex mutex_;
    std::condition_variable cv_;
    bool signalled_ = false;
};

// What the double-click itself took before returning to the event loop.
double gSyncSeconds = 0;

// Double-click to both first frames in the viewer's own window.
double doubleClickSeconds(MainWindowController& window, int row) {
    PlaybackController& playback = window.playback();
    std::atomic<int> framed = 0;
    const auto t0 = Clock::now();
    window.views().fileListTableView->selectRow(row);
    window.catalogue().videoFileListDoubleClicked();
    gSyncSeconds = std::chrono::duration<double>(Clock::now() - t0).count();
    // The players were created by the double-click; loading has only begun.
    // Asleep until the second first frame, as the application's own loop is.
    QEventLoop loop;
    for (OrvoAVView* v : {playback.bigMovieView(), playback.smallMovieView()})
        if (v->player())
            QObject::connect(v->player(), &MpvPlayer::firstFrameRendered, &loop, [&] {
                if (++framed == 2) loop.quit();
            });
    QTimer::singleShot(60000, &loop, &QEventLoop::quit);
    if (framed < 2) loop.exec();
    const double s = std::chrono::duration<double>(Clock::now() - t0).count();
    if (framed < 2)
        for (OrvoAVView* v : {playback.bigMovieView(), playback.smallMovieView()})
            std::fprintf(stderr, "view %s: %s, player %s\n", qPrintable(v->fileName()), orvoAVViewStatusName(v->status()),
                         v->player() ? "yes" : "no");
    playback.stopVideo();
    playback.bigMovieView()->reset();
    playback.smallMovieView()->reset();
    return framed == 2 ? s : -1;
}

}  // namespace

int main(int argc, char** argv) {
    bench::useOwnHome(kRoot / "home");
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    fs::path front, rear;
    if (!makePair(front, rear)) {
        std::fprintf(stderr, "could not generate the clip pair with ffmpeg\n");
        return 1;
    }
    MainWindowController window;
    const int row = bench::showViewerOn(window, kRoot / "card", front.filename().string());
    if (row < 0) {
        std::fprintf(stderr, "the pair is not in the clip list\n");
        return 1;
    }

    PlainMpvPair plain;
    std::vector<double> ours, base;
    int failures = 0;
    for (int i = 0; i < kRuns;) {
        const double b = plain.openSeconds(front, rear);
        settle();
        const double o = doubleClickSeconds(window, row);
        settle();
        if (b < 0 || o < 0) {
            // A loaded machine can starve a player now and then: try again, but not forever.
            std::fprintf(stderr, "no first frame within a minute (plain %.3f, viewer %.3f)\n", b, o);
            if (++failures > 3) return 1;
            continue;
        }
        base.push_back(b), ours.push_back(o);
        std::printf("run %d: double-click %.3f s (%.3f s before the event loop), two plain libmpv opens %.3f s\n",
                    ++i, o, gSyncSeconds, b);
    }
    const double o = median(ours), b = median(base);
    std::printf("median: double-click to both first frames %.3f s, two plain libmpv opens %.3f s\n", o, b);
    bench::tableRow("double-click to both first frames / two plain libmpv opens", o / b, "<= 1.0", o / b <= 1.0);
    char note[64];
    std::snprintf(note, sizeof note, "%.3f s against %.2f s before", o, kEarlierOpenSeconds);
    bench::tableRow("double-click to both first frames / earlier open", o / kEarlierOpenSeconds, "<= 0.5",
                    o / kEarlierOpenSeconds <= 0.5, note);
    return 0;
}
