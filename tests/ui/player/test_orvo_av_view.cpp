// Player views on the real libmpv, with clips made by the real ffmpeg.
// Needs an X server with OpenGL: xvfb-run -a ./test_orvo_av_view

#include <QLabel>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "core/library/conversion/utils.h"
#include "core/util/process_runner.h"
#include "ui/library/player/mpv_player.h"
#include "ui/library/player/orvo_av_view.h"
#include "ui/library/player/orvo_qt_movie_view.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {

constexpr int kWaitMs = 20000;

// Last value a view reported in a list of (view, value) pairs, or a fallback.
template <typename T>
T last(const QList<QPair<OrvoAVView*, T>>& list, OrvoAVView* v, T none) {
    for (auto it = list.rbegin(); it != list.rend(); ++it)
        if (it->first == v) return it->second;
    return none;
}

struct Recorder : OrvoAVViewDelegate {
    QList<QPair<OrvoAVView*, OrvoAVViewStatus>> statuses;
    QList<QPair<OrvoAVView*, float>> rates;
    QList<QPair<OrvoAVView*, double>> times;
    QList<OrvoAVView*> ends, fullscreens;
    void orvoAVViewDidUpdateStatus(OrvoAVView* v, OrvoAVViewStatus s) override { statuses << qMakePair(v, s); }
    void orvoAVViewDidUpdateRate(OrvoAVView* v, float r) override { rates << qMakePair(v, r); }
    void orvoAVViewDidUpdateTime(OrvoAVView* v, double t) override { times << qMakePair(v, t); }
    void orvoAVViewDidPlayToEndTime(OrvoAVView* v) override { ends << v; }
    void orvoAVViewDidRequestFullscreen(OrvoAVView* v) override { fullscreens << v; }
    double lastTime(OrvoAVView* v) const { return last(times, v, -1.0); }
    float lastRate(OrvoAVView* v) const { return last(rates, v, -100.0f); }
    OrvoAVViewStatus lastStatus(OrvoAVView* v) const { return last(statuses, v, OrvoAVViewStatusUnknown); }
};

struct MovieRecorder : OrvoQTMovieViewDelegate {
    QList<QObject*> fullscreenRequests;
    int shown = 0, hidden = 0;
    void fullscreenButtonTouched(QObject* sender) override { fullscreenRequests << sender; }
    void showFullscreenMovieControlWindow() override { ++shown; }
    void hideFullscreenMovieControlWindow() override { ++hidden; }
};

bool ffmpeg(const std::vector<std::string>& args) {
    std::vector<std::string> a = {"-v", "error", "-y"};
    a.insert(a.end(), args.begin(), args.end());
    return ProcessRunner::run(Utils::GetFFMPEGPath(), a, std::chrono::minutes(2)).exitCode == 0;
}

}  // namespace

class TestOrvoAVView : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString front_, rear_, halves_, audioOnly_, empty_, truncated_, brokenAvi_;
    QWidget* window_ = nullptr;
    OrvoAVView* big_ = nullptr;
    OrvoAVView* small_ = nullptr;
    Recorder rec_;

    QString path(const char* name) const { return dir_.filePath(name); }

    void load(OrvoAVView* v, const QString& file, OrvoAVViewStatus expected = OrvoAVViewStatusPrepared) {
        v->reset();
        rec_.statuses.clear();  // only what this load reports counts
        v->setFileName(file);
        QTRY_COMPARE_WITH_TIMEOUT(rec_.lastStatus(v), expected, kWaitMs);
    }

    bool lastTimeNear(OrvoAVView* v, double t) const { return std::abs(rec_.lastTime(v) - t) < 1e-3; }

    QImage grab(OrvoAVView* v) {
        QTest::qWait(200);  // let the picture reach the widget
        return v->grab().toImage();
    }

private slots:
    void initTestCase() {
        QVERIFY(dir_.isValid());
        auto make = [this](const char* name, std::vector<std::string> args) {
            args.push_back(path(name).toStdString());
            return ffmpeg(args) ? path(name) : QString();
        };
        const std::vector<std::string> h264 = {"-c:v", "libx264", "-pix_fmt", "yuv420p", "-g", "25"};
        auto with = [&h264](std::vector<std::string> a) { a.insert(a.end(), h264.begin(), h264.end()); return a; };
        front_ = make("front.mp4", with({"-f", "lavfi", "-i", "testsrc2=s=352x208:r=25:d=4", "-f", "lavfi", "-i",
                                         "sine=d=4", "-c:a", "aac"}));
        rear_ = make("rear.mp4", with({"-f", "lavfi", "-i", "smptebars=s=352x208:r=25:d=4"}));
        // Green top left, red top right, blue below: shows which way up and
        // which way round the picture is drawn.
        // It carries a subtitle track, as the cameras' telemetry comes.
        std::ofstream(path("halves.srt").toStdString()) << "1\n00:00:00,000 --> 00:00:02,000\nWWWWWWWWWWWWWWWWWWWW\n\n";
        halves_ = make("halves.mp4", with({"-f", "lavfi", "-i", "color=c=red:s=320x180:r=25:d=2,"
                                                                  "drawbox=y=90:h=90:c=blue:t=fill,"
                                                                  "drawbox=w=160:h=90:c=green:t=fill",
                                           "-i", path("halves.srt").toStdString(), "-c:s", "mov_text"}));
        audioOnly_ = make("sound.mp4", {"-f", "lavfi", "-i", "sine=d=2", "-c:a", "aac"});
        brokenAvi_ = make("broken.avi", with({"-f", "lavfi", "-i", "testsrc2=s=352x208:r=25:d=2"}));
        QVERIFY(!front_.isEmpty() && !rear_.isEmpty() && !halves_.isEmpty() && !audioOnly_.isEmpty());
        // The AVI's index is cut off in the middle of its entries.
        std::ifstream in(brokenAvi_.toStdString(), std::ios::binary);
        const std::string bytes((std::istreambuf_iterator<char>(in)), {});
        QVERIFY(bytes.rfind("idx1") != std::string::npos);
        fs::resize_file(brokenAvi_.toStdString(), bytes.rfind("idx1") + 8 + 24);
        empty_ = path("empty.mp4");
        std::ofstream(empty_.toStdString());
        truncated_ = path("truncated.mp4");
        fs::copy_file(front_.toStdString(), truncated_.toStdString());
        fs::resize_file(truncated_.toStdString(), fs::file_size(truncated_.toStdString()) / 3);

        window_ = new QWidget;
        auto* layout = new QVBoxLayout(window_);
        big_ = new OrvoAVView;
        small_ = new OrvoAVView;
        layout->addWidget(big_, 2);
        layout->addWidget(small_, 1);
        big_->setDelegate(&rec_);
        small_->setDelegate(&rec_);
        window_->resize(480, 480);
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_));
    }

    void cleanupTestCase() { delete window_; }

    void emptyView() {
        OrvoAVView view;
        QVERIFY(!view.hasMovie());
        QCOMPARE(view.duration(), 0.0);
        QVERIFY(view.snapshot().isNull());
        view.play();  // nothing loaded: nothing happens, nothing crashes
        view.stepBackward();
    }

    void opensIntoAPlayerMadeBeforehand() {
        // A shown view keeps a player ready: a clip opens into it instead of
        // waiting for mpv to start, and the next is made once a picture is up.
        QTRY_COMPARE_WITH_TIMEOUT(big_->findChildren<MpvPlayer*>().size(), 1, kWaitMs);
        MpvPlayer* spare = big_->findChild<MpvPlayer*>();
        load(big_, front_);
        QCOMPARE(big_->player(), spare);
        QTRY_COMPARE_WITH_TIMEOUT(big_->findChildren<MpvPlayer*>().size(), 2, kWaitMs);
        big_->reset();
        QTRY_COMPARE_WITH_TIMEOUT(rec_.lastStatus(big_), OrvoAVViewStatusInit, kWaitMs);
    }

    void loadsPlaysAndTicks() {
        rec_.statuses.clear();
        big_->setFileName(front_);
        // Status changes arrive later, in order, never inside the call.
        QVERIFY(rec_.statuses.isEmpty());
        QCOMPARE(big_->status(), OrvoAVViewStatusLoading);
        QTRY_COMPARE_WITH_TIMEOUT(rec_.lastStatus(big_), OrvoAVViewStatusPrepared, kWaitMs);
        QCOMPARE(rec_.statuses.first().second, OrvoAVViewStatusInit);
        QCOMPARE(rec_.statuses.at(1).second, OrvoAVViewStatusLoading);
        QVERIFY(big_->hasMovie());
        QVERIFY(std::abs(big_->duration() - 4.0) < 0.05);
        QCOMPARE(big_->naturalSize(), QSize(352, 208));

        rec_.times.clear();
        big_->play();
        QTRY_COMPARE_WITH_TIMEOUT(rec_.lastRate(big_), 1.0f, kWaitMs);
        QTRY_VERIFY_WITH_TIMEOUT(rec_.lastTime(big_) > 1.0, kWaitMs);
        const auto playing = rec_.times;
        big_->pause();
        QTRY_COMPARE_WITH_TIMEOUT(rec_.lastRate(big_), 0.0f, kWaitMs);
        // While playing, at most one tick per tenth of a second of playing time.
        QList<long long> ticks;
        for (const auto& t : playing) ticks << static_cast<long long>(std::floor(t.second * 10 + 1e-6));
        for (int i = 1; i < ticks.size(); ++i) QVERIFY2(ticks[i] != ticks[i - 1], "two ticks in one tenth");
        QVERIFY(ticks.size() >= 8);
    }

    void rateArithmetic() {
        load(big_, front_);
        rec_.rates.clear();
        big_->setCurrentTime(3.0);
        big_->play();
        big_->fastForward();
        QCOMPARE(big_->player()->rate(), 2.0f);
        big_->fastForward();
        QCOMPARE(big_->player()->rate(), 4.0f);
        QTRY_COMPARE_WITH_TIMEOUT(rec_.lastRate(big_), 4.0f, kWaitMs);
        QCOMPARE(big_->rate(), 4.0f);
        big_->playPauseToggle();  // fast: back to normal play, not a pause
        QTRY_COMPARE_WITH_TIMEOUT(rec_.lastRate(big_), 1.0f, kWaitMs);
        big_->setCurrentTime(3.0);
        big_->rewind();
        QCOMPARE(big_->player()->rate(), -2.0f);
        big_->rewind();
        QCOMPARE(big_->player()->rate(), -4.0f);
        // Backwards it soon reaches the start and stops there, so look at the history.
        QTRY_VERIFY_WITH_TIMEOUT(rec_.rates.contains(qMakePair(big_, -4.0f)), kWaitMs);
        big_->playPauseToggle();
        QTRY_COMPARE_WITH_TIMEOUT(rec_.lastRate(big_), 1.0f, kWaitMs);
        big_->playPauseToggle();
        QTRY_COMPARE_WITH_TIMEOUT(rec_.lastRate(big_), 0.0f, kWaitMs);
    }

    void seeksAndFrameSteps() {
        load(big_, front_);
        const double frame = 1.0 / 25;
        big_->setCurrentTime(2.4);  // whole seconds only
        QTRY_VERIFY_WITH_TIMEOUT(lastTimeNear(big_, 2.0), kWaitMs);
        big_->setCurrentTime(0.6);
        QTRY_VERIFY_WITH_TIMEOUT(lastTimeNear(big_, 1.0), kWaitMs);
        int at = 0;  // frames from 1.0 s: three forward, then back past the start point
        for (int n : {1, 2, 3, 2, 1, 0, -1}) {
            n > at ? big_->stepForward() : big_->stepBackward();
            at = n;
            QTRY_VERIFY2_WITH_TIMEOUT(lastTimeNear(big_, 1.0 + n * frame),
                                      qPrintable(QString::number(rec_.lastTime(big_), 'f', 4)), kWaitMs);
        }
        QCOMPARE(big_->currentTime(), rec_.lastTime(big_));
        QCOMPARE(rec_.lastRate(big_), 0.0f);  // steps leave the player paused
    }

    void endOfItemAndReplay() {
        load(big_, front_);
        rec_.ends.clear();
        big_->setCurrentTime(3.0);
        big_->play();
        QTRY_COMPARE_WITH_TIMEOUT(rec_.ends.size(), 1, kWaitMs);
        QCOMPARE(rec_.ends.first(), big_);
        QTRY_COMPARE_WITH_TIMEOUT(rec_.lastRate(big_), 0.0f, kWaitMs);
        rec_.times.clear();
        big_->play();  // at the end: starts over
        QTRY_VERIFY_WITH_TIMEOUT(!rec_.times.isEmpty() && rec_.lastTime(big_) < 1.0, kWaitMs);
        big_->pause();
    }

    // The window's test swaps by file name; what it cannot see is which view
    // the moved players report as, and that the rotation stays with the view.
    void swappedPlayersReportAsTheirNewView() {
        load(big_, front_);
        load(small_, rear_);
        MpvPlayer* smallPlayer = small_->player();
        big_->setUpsideDown(true);
        big_->swapPlayerItemWith(small_);
        QCOMPARE(big_->player(), smallPlayer);
        QVERIFY(big_->upsideDown() && !small_->upsideDown());
        QCOMPARE(big_->status(), OrvoAVViewStatusPrepared);
        rec_.times.clear();
        big_->setCurrentTime(2.0);
        QTRY_VERIFY_WITH_TIMEOUT(lastTimeNear(big_, 2.0), kWaitMs);
        // A late tick of the other player may still arrive, but never with this seek.
        QVERIFY(std::abs(rec_.lastTime(small_) - 2.0) > 0.5);
        QVERIFY(grab(big_).pixelColor(big_->width() / 2, 4) != grab(small_).pixelColor(small_->width() / 2, 4));
        big_->swapPlayerItemWith(small_);
        big_->setUpsideDown(false);
    }

    void pictureOrientationAndUpsideDown() {
        load(big_, halves_);
        const int cx = big_->width() / 2, cy = big_->height() / 2;
        QTRY_VERIFY_WITH_TIMEOUT(grab(big_).pixelColor(cx + 40, cy - 20).red() > 150, kWaitMs);
        QVERIFY(grab(big_).pixelColor(cx - 40, cy - 20).green() > 100);
        QVERIFY(grab(big_).pixelColor(cx, cy + 20).blue() > 150);
        // The telemetry track is the dashboard's, never text over the picture.
        const QImage shown = grab(big_);
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x) {
                const QColor c = shown.pixelColor(x, y);
                QVERIFY2(c.red() < 200 || c.green() < 200, qPrintable(QString("light pixel at %1,%2").arg(x).arg(y)));
            }
        // Upside down is half a turn (a camera mounted the other way up), not a mirror.
        big_->setUpsideDown(true);
        const QImage turned = grab(big_);
        QVERIFY(turned.pixelColor(cx, cy - 20).blue() > 150);
        QVERIFY(turned.pixelColor(cx - 40, cy + 20).red() > 150);
        QVERIFY(turned.pixelColor(cx + 40, cy + 20).green() > 100);
        big_->setUpsideDown(false);
    }

    void badInputEndsInErrorAndNextClipPlays() {
        struct Bad { QString file; bool mayPlay; };
        for (const Bad& bad : {Bad{audioOnly_, false}, Bad{empty_, false}, Bad{truncated_, false},
                               Bad{path("missing.mp4"), false}, Bad{brokenAvi_, true}}) {
            big_->reset();
            big_->setFileName(bad.file);
            QTRY_VERIFY2_WITH_TIMEOUT(rec_.lastStatus(big_) == OrvoAVViewStatusError ||
                                          (bad.mayPlay && rec_.lastStatus(big_) == OrvoAVViewStatusPrepared),
                                      qPrintable(bad.file), kWaitMs);
            if (!bad.mayPlay) QVERIFY(!big_->hasMovie());
            QVERIFY(big_->snapshot().isNull() || bad.mayPlay);
            load(big_, front_);
            big_->play();
            QTRY_VERIFY_WITH_TIMEOUT(rec_.lastTime(big_) > 0.3, kWaitMs);
            big_->pause();
        }
        load(big_, audioOnly_, OrvoAVViewStatusError);
        auto* noVideo = big_->findChild<QLabel*>();
        QVERIFY(noVideo && noVideo->isVisible());
    }

    // On a software renderer drawing a picture larger than it is shown costs
    // more than decoding it: the player draws at the largest size any view
    // shows it at, never above the clip's own.
    void picturesAreDrawnAtTheSizeShown() {
        OrvoAVView view;
        view.resize(176, 104);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.setFileName(front_);
        QTRY_VERIFY_WITH_TIMEOUT(view.showsPicture(), kWaitMs);
        MpvPlayer* player = view.player();
        QTRY_COMPARE(player->pictureSize(), QSize(176, 104));
        {
            OrvoQTMovieView mirror;  // full screen shows the same player larger
            mirror.setMovieSource(&view);
            mirror.resize(800, 600);
            mirror.show();
            QVERIFY(QTest::qWaitForWindowExposed(&mirror));
            QTRY_COMPARE(player->pictureSize(), QSize(352, 208));
            QTRY_VERIFY(mirror.grab().toImage().pixelColor(400, 300).value() > 0);
        }
        QTRY_COMPARE(player->pictureSize(), QSize(176, 104));
        view.resize(88, 52);
        QTRY_COMPARE(player->pictureSize(), QSize(88, 52));
        // A wider view: the picture keeps its shape.
        view.resize(300, 52);
        QTRY_COMPARE(player->pictureSize(), QSize(88, 52));
        view.close();
    }

    void mouseRequests() {
        rec_.fullscreens.clear();
        QTest::mouseClick(big_, Qt::RightButton);
        QCOMPARE(rec_.fullscreens, QList<OrvoAVView*>{big_});

        load(big_, halves_);
        OrvoQTMovieView movie;
        MovieRecorder mr;
        movie.setDelegate(&mr);
        movie.setMovieSource(big_);
        movie.resize(320, 180);
        movie.show();
        QVERIFY(QTest::qWaitForWindowExposed(&movie));
        QTRY_VERIFY_WITH_TIMEOUT(movie.grab().toImage().pixelColor(160, 40).red() > 150, kWaitMs);
        QTest::mouseClick(&movie, Qt::RightButton);
        QCOMPARE(mr.fullscreenRequests, QList<QObject*>{&movie});
        QTest::mouseMove(&movie, QPoint(160, 10));   // high up: more than 3/4 above the bottom
        QTRY_COMPARE(mr.shown, 1);
        QTest::mouseMove(&movie, QPoint(160, 170));
        QTRY_COMPARE(mr.hidden, 1);
        big_->reset();  // the mirror follows the view and goes black
        QTRY_VERIFY(movie.grab().toImage().pixelColor(160, 40).red() < 40);
    }
};

QTEST_MAIN(TestOrvoAVView)
#include "test_orvo_av_view.moc"
