// The playback helpers on their own, with real widgets and telemetry: clip
// stepping, dashboard throttles, zoom, volume, seek slider, saving.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

#include "cardgen/demo_drive.h"
#include "cardgen/telemetry_encoders.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"
#include "ui/library/playback/after_first_pictures.h"
#include "ui/library/playback/telemetry_loader.h"
#include "ui/library/playback/clip_navigation.h"
#include "ui/library/playback/clip_saver.h"
#include "ui/library/playback/dashboard_updater.h"
#include "ui/library/playback/seek_slider_controller.h"
#include "ui/library/playback/volume_controller.h"
#include "ui/library/playback/zoom_controller.h"
#include "ui/telemetry/map_controller.h"
#include "ui/library/player/orvo_av_view.h"
#include "ui/telemetry/speed_meter_view.h"

using namespace tarvik;

namespace {

// Playing time set by the test: the real player cannot be put at 0.299 s.
struct SetClock : PlayClock {
    double t = 0, d = 60;
    double currentTime() const override { return t; }
    double duration() const override { return d; }
};

struct Dashboard {
    QLabel gx, gy, gz, lat, lng, time;
    SpeedMeterView speed;
    QWidget cover, web;
    MapController map{nullptr};
    SetClock clock;
    DashboardUpdater updater{{.gxText = &gx, .gyText = &gy, .gzText = &gz, .latText = &lat, .lngText = &lng,
                              .playTimeText = &time, .speedMeter = &speed, .mapCover = &cover, .mapWebView = &web,
                              .map = &map},
                             clock};
    void at(double seconds) {
        clock.t = seconds;
        updater.playVideoTimerCallback();
    }
    // Without a page the map keeps only the latest move, which is the one to check.
    QString lastMove() const {
        const QStringList moves = map.pendingScripts().filter("MapMoveToAuto");
        return moves.isEmpty() ? QString() : moves.last();
    }
};

// Ten samples a second: G grows with the index, a fix from sample 10 to 39.
OrvoClipData rampClip(int samples) {
    OrvoClipData data;
    data.setClipDataCount(samples);
    for (int i = 0; i < samples; ++i) {
        const bool fix = i >= 10 && i < 40;
        data.storeSample(i, i, -i, 128, fix ? 37.5f + i * 0.001f : 0.0f, fix ? 127.0f : 0.0f, 30 + i);
    }
    data.setGpsDataCount(samples);
    return data;
}

}  // namespace

class PlaybackRulesTest : public QObject {
    Q_OBJECT
private slots:
    void onlyTheLatestTelemetryReadIsDelivered() {
        QTemporaryDir dir;
        // Ten readings a second with a position: every sample's X is `x`.
        auto track = [&dir](const char* name, int x) {
            std::string srt;
            for (int i = 0; i < 10; ++i)
                srt += std::to_string(i + 1) + "\n00:00:00," + std::to_string(i) + "00 --> 00:00:01,000\ngsensori,1,128," +
                       std::to_string(x) + ",0,128" + (i == 9 ? ";GPRMC,083000,A,4807.038,N,01131.000,E,5.4,," : "") + "\n\n";
            const QString path = dir.filePath(name);
            QFile f(path);
            f.open(QIODevice::WriteOnly);
            f.write(srt.data(), static_cast<qint64>(srt.size()));
            return path.toStdString();
        };
        const std::string first = track("a.srt", 11), second = track("b.srt", 22);
        TelemetryLoader loader;
        QSignalSpy delivered(&loader, &TelemetryLoader::loaded);
        loader.load(first);
        loader.load(second);  // the clip changed before the first read was in
        QTRY_COMPARE(delivered.size(), 1);
        auto t = delivered.first().first().value<std::shared_ptr<LoadedTelemetry>>();
        QCOMPARE(t->clip.clipDataCount(), 10);
        QCOMPARE(t->clip.getGx(0), 22);
        QCOMPARE(t->clip.gpsDataCount(), 10);
        QTest::qWait(100);
        QCOMPARE(delivered.size(), 1);
        loader.load(first);
        loader.cancel();  // the clip was refused or another began
        QTest::qWait(200);
        QCOMPARE(delivered.size(), 1);
    }

    void heldBackWorkWaitsForEveryPictureOrTheDeadline() {
        OrvoAVView front, rear;
        AfterFirstPictures after;
        int ran = 0, replaced = 0;
        after.run({&front, &rear}, [&] { ++ran; }, 60000);
        emit front.firstFrameShown();
        emit front.firstFrameShown();  // one view twice is still one picture
        QCOMPARE(ran, 0);
        emit rear.firstFrameShown();
        emit rear.firstFrameShown();
        QCOMPARE(ran, 1);
        // Newer work replaces older; cancelled work never runs.
        after.run({&front}, [&] { ++replaced; }, 60000);
        after.run({&front}, [&] { ++ran; }, 60000);
        emit front.firstFrameShown();
        QCOMPARE(replaced, 0);
        QCOMPARE(ran, 2);
        after.run({&front}, [&] { ++ran; }, 60000);
        after.cancel();
        emit front.firstFrameShown();
        QCOMPARE(ran, 2);
        // A picture that never comes: the deadline runs it.
        after.run({&rear}, [&] { ++ran; }, 10);
        QTRY_COMPARE(ran, 3);
    }

    void nextAndPreviousTreatPairsAsOneRecording() {
        const std::vector<std::string> list = {"/c/A_F.mp4", "/c/A_R.mp4", "/c/B_F.mp4", "/c/B_R.mp4", "/c/C.avi"};
        // Next skips a row's own rear file and wraps on the last row; previous
        // lands on the preceding pair's front file (a rear file on its own
        // front) and never wraps.
        for (auto [row, next] : {std::pair{0, 2}, {1, 2}, {2, 4}, {4, 0}, {-1, -1}})
            QCOMPARE(nextClipRow(list, row), next);
        for (auto [row, previous] : {std::pair{2, 0}, {3, 2}, {1, 0}, {0, -1}, {4, 2}, {9, -1}})
            QCOMPARE(previousClipRow(list, row), previous);
        QCOMPARE(nextClipRow({"/c/A_F.mp4", "/c/A_R.mp4"}, 0), 0);  // the pair is all there is
        // Other cameras' A/B letters after the recording time pair as F/R do.
        const std::vector<std::string> lettered = {"/n/20261121100024A.MP4", "/n/20261121100024B.MP4", "/n/x_A.mp4"};
        QCOMPARE(nextClipRow(lettered, 0), 2);
        QCOMPARE(previousClipRow(lettered, 2), 0);
        QCOMPARE(nextClipRow({"/n/x_A.mp4", "/n/x_B.mp4", "/n/y.mp4"}, 0), 1);  // no time: not a camera's letter
        QCOMPARE(nextClipRow({"/n/1_F.TS", "/n/1_R.TS", "/n/2_F.TS"}, 0), 2);      // other cameras' MPEG-TS pairs
        // AVI clips never pair, whatever their names say.
        QCOMPARE(nextClipRow({"/c/D_F.avi", "/c/D_R.avi", "/c/E.avi"}, 0), 1);
        QCOMPARE(previousClipRow({"/c/D_F.avi", "/c/D_R.avi", "/c/E.avi"}, 2), 0);  // but back over them by name
        QVERIFY(isMp4ClipPath("/x/a.MP4"));
        QVERIFY(!isMp4ClipPath("/x.mp4/a"));
        QVERIFY(!isMp4ClipPath("/x/a.mp4.tmp"));
    }

    void timeTextAndSampleIndexTruncate() {
        for (auto [t, index] : {std::pair{12.39, 123}, {0.099, 0}, {std::nan(""), 0}})
            QCOMPARE(DashboardUpdater::sampleIndex(t), index);
        QCOMPARE(DashboardUpdater::playTimeText(0, 0), QString("00:00/00:00"));
        QCOMPARE(DashboardUpdater::playTimeText(59.999, 3725.9), QString("00:59/62:05"));
        QCOMPARE(DashboardUpdater::playTimeText(-1, std::numeric_limits<double>::infinity()), QString("00:00/00:00"));
        QCOMPARE(DashboardUpdater::gValue(128), 1.0f);
        QCOMPARE(DashboardUpdater::gValue(-64), -0.5f);
    }

    void embeddedTelemetryIsThrottled() {
        Dashboard d;
        const OrvoClipData clip = rampClip(50);
        d.updater.setClipData(&clip);
        d.web.hide();
        d.at(0.0);  // 0 - 0 is not above 0.3: nothing yet
        QCOMPARE(d.gx.text(), QString());
        QCOMPARE(d.time.text(), QString("00:00/01:00"));
        d.at(0.3);
        QCOMPARE(d.gx.text(), QString());  // strictly more than 0.3 s
        d.at(0.35);
        QCOMPARE(d.gx.text(), QString("0.023"));  // sample 3: 3/128 g
        QCOMPARE(d.gy.text(), QString("-0.023"));
        QCOMPARE(d.speed.speed(), 33u);
        QCOMPARE(d.lat.text(), QString("0.0000"));
        d.at(0.6);
        QCOMPARE(d.gx.text(), QString("0.023"));  // only 0.25 s later
        d.at(1.2);  // map due: sample 12 has a fix
        QCOMPARE(d.lastMove(), MapController::moveScript(clip.getGpsLat(12), 127.0f));
        QVERIFY(d.cover.isHidden() && !d.web.isHidden());
        QCOMPARE(d.lat.text(), QString("37.5120"));
        d.at(2.15);  // not above 1.0 s since the last move
        QCOMPARE(d.lastMove(), MapController::moveScript(clip.getGpsLat(12), 127.0f));
        d.at(2.3);
        QCOMPARE(d.lastMove(), MapController::moveScript(clip.getGpsLat(23), 127.0f));
        d.at(4.5);  // the fix is lost: the cover comes back
        QVERIFY(!d.cover.isHidden() && d.web.isHidden());
        // Past the last sample the dashboard keeps what it showed.
        const QString before = d.gx.text();
        d.at(9.0);
        QCOMPARE(d.gx.text(), before);
        QCOMPARE(d.time.text(), QString("00:09/01:00"));
        // Reset shows zeros and 00:00/00:00.
        d.updater.resetVideoInformation();
        QCOMPARE(d.gx.text(), QString("0.000"));
        QCOMPARE(d.lng.text(), QString("0.0000"));
        QCOMPARE(d.time.text(), QString("00:00/00:00"));
        QCOMPARE(d.speed.speed(), 0u);
    }

    void subtitleTelemetryFollowsTheTrack() {
        Dashboard d;
        const auto secs = cardgen::driveSeconds(0, 20, 10);
        SubtitleData subs;
        subs.loadFromText(cardgen::srtTrack(secs));
        OrvoClipData clip = rampClip(200);
        d.updater.setClipData(&clip);
        d.updater.setSubtitleData(&subs);
        d.web.hide();
        d.at(0.0);
        QCOMPARE(d.gx.text(), QString());  // 0 - 0 < 0.3
        d.at(0.3);                         // inclusive here
        int x = 0, y = 0, z = 0;
        QVERIFY(subs.getSensorAt(3, x, y, z));
        QCOMPARE(d.gz.text(), QString::asprintf("%.3f", DashboardUpdater::gValue(z)));
        // Between position records the map comes up once, then only the speed follows.
        float lat = 0, lng = 0;
        unsigned speed = 0;
        QCOMPARE(subs.getGpsAt(3, lat, lng, speed), int(SubtitleData::GpsNearby));
        QVERIFY(!d.web.isHidden() && d.cover.isHidden());
        QCOMPARE(d.lastMove(), MapController::moveScript(lat, lng));
        QCOMPARE(subs.getGpsAt(15, lat, lng, speed), int(SubtitleData::GpsNearby));
        const QString latText = d.lat.text();
        d.at(1.5);
        QCOMPARE(d.speed.speed(), speed);
        QCOMPARE(d.lat.text(), latText);
        // The exact records move the map on the one-second grid.
        int exactIndex = -1;
        for (unsigned i = 20; i < 60 && exactIndex < 0; ++i)
            if (subs.getGpsAt(i, lat, lng, speed) == SubtitleData::GpsExact) exactIndex = static_cast<int>(i);
        QVERIFY(exactIndex > 0);
        d.at(exactIndex / 10.0 + 0.001);
        QCOMPARE(d.lat.text(), QString::asprintf("%.4f", lat));
        QCOMPARE(d.updater.lastUpdatedMapTime(), exactIndex / 10.0 + 0.001);  // a jump restarts the grid
        d.at(exactIndex / 10.0 + 1.0);
        QCOMPARE(d.updater.lastUpdatedMapTime(), exactIndex / 10.0 + 0.001);  // 0.999 s: not yet
        d.at(exactIndex / 10.0 + 1.05);
        QCOMPARE(d.updater.lastUpdatedMapTime(), exactIndex / 10.0 + 0.001 + 1.0);  // steady: on the grid
        // Without any position the cover returns and the gauge drops to 0.
        SubtitleData empty;
        d.updater.setSubtitleData(&empty);
        d.at(3.0);
        QVERIFY(!d.cover.isHidden() && d.web.isHidden());
        QCOMPARE(d.speed.speed(), 0u);
    }

    void zoomClampsCentresAndNoticesPans() {
        QCOMPARE(ZoomController::scaledUp(4.9), 5.0);
        QCOMPARE(ZoomController::scaledDown(1.1), 1.0);
        QCOMPARE(ZoomController::scaledUp(1.0), 1.0 + static_cast<double>(0.2f));

        QScrollArea scroll;
        scroll.setFrameShape(QFrame::NoFrame);
        auto* doc = new QWidget;
        scroll.setWidget(doc);
        scroll.resize(400, 200);
        scroll.show();
        QVERIFY(QTest::qWaitForWindowExposed(&scroll));
        ZoomController zoom(&scroll, doc, nullptr);
        zoom.resetForNewClip();
        QVERIFY(!zoom.enableBigMovieViewScroll());
        zoom.applyVideoScale(1.0);
        QCOMPARE(doc->size(), QSize(400, 200));

        zoom.enterScrollMode(true);  // the argument does not matter: it flips
        QVERIFY(zoom.enableBigMovieViewScroll());
        for (int i = 0; i < 25; ++i) zoom.videoScaleUpButtonTouched();
        QCOMPARE(zoom.videoScale(), 5.0);
        zoom.applyVideoScale(2.0);
        QCOMPARE(doc->size(), QSize(800, 400));
        QCOMPARE(scroll.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        QCOMPARE(QPoint(scroll.horizontalScrollBar()->value(), scroll.verticalScrollBar()->value()),
                 zoom.centredScrollPoint());
        QVERIFY(!zoom.touchedBigMovieScroll());
        scroll.horizontalScrollBar()->setValue(0);  // the user pans away
        QVERIFY(zoom.touchedBigMovieScroll());
        zoom.applyVideoScale(3.0);  // a pan is kept through zooming
        QCOMPARE(scroll.horizontalScrollBar()->value(), 0);
        zoom.resetVideoScaleButtonTouched();
        QVERIFY(!zoom.touchedBigMovieScroll());
        QTRY_COMPARE(doc->size(), QSize(400, 200));
        QCOMPARE(scroll.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        // Zoom down below 1 stops at 1 and forgets the pan.
        zoom.videoScaleUpButtonTouched();
        zoom.enterScrollMode(false);
        zoom.enterScrollMode(false);
        QTRY_VERIFY(doc->width() > 400);
        scroll.verticalScrollBar()->setValue(0);
        QVERIFY(zoom.touchedBigMovieScroll());
        zoom.videoScaleDownButtonTouched();
        zoom.videoScaleDownButtonTouched();
        QCOMPARE(zoom.videoScale(), 1.0);
        QVERIFY(!zoom.touchedBigMovieScroll());
        QTRY_COMPARE(doc->size(), QSize(400, 200));
        // Full screen leaves the document alone.
        zoom.setFullScreenQuery([] { return true; });
        zoom.applyVideoScale(4.0);
        QCOMPARE(doc->size(), QSize(400, 200));
    }

    void volumeStepsClampAndMuteRestores() {
        QSlider slider(Qt::Horizontal);
        VolumeController volume(&slider, nullptr, nullptr);
        QCOMPARE(volume.volume(), 1.0f);
        volume.volumeUp();
        QCOMPARE(volume.volume(), 1.0f);
        volume.volumeDown();
        volume.volumeDown();
        QCOMPARE(volume.volume(), static_cast<float>(static_cast<double>(static_cast<float>(1.0 - 0.1)) - 0.1));
        QCOMPARE(slider.value(), 80);
        for (int i = 0; i < 20; ++i) volume.volumeDown();
        QCOMPARE(volume.volume(), 0.0f);
        volume.setVolume(0.37f);
        volume.toggleMuteButtonTouched();
        QVERIFY(volume.isMuted());
        QCOMPARE(volume.volume(), 0.0f);
        QVERIFY(!slider.isEnabled());
        volume.toggleMuteButtonTouched();
        QCOMPARE(volume.volume(), 0.37f);
        QVERIFY(slider.isEnabled());
        slider.setValue(55);  // the user drags the gauge
        QCOMPARE(volume.volume(), 0.55f);
        volume.setVolume(std::nanf(""));
        QCOMPARE(volume.volume(), 0.0f);
    }

    void seekSliderValueAndThumb() {
        QCOMPARE(SeekSliderController::valueFromPosition(10, 10, 210, 60), 0.0);
        QCOMPARE(SeekSliderController::valueFromPosition(105, 10, 210, 60), 30.0);
        // The far right end reads a little above the maximum (200 * 60 / 190).
        QCOMPARE(SeekSliderController::valueFromPosition(500, 10, 210, 60), 200.0 * 60 / 190);
        QCOMPARE(SeekSliderController::valueFromPosition(5, 10, 15, 60), 0.0);  // too narrow to seek

        QSlider slider(Qt::Horizontal);
        slider.resize(300, 20);
        slider.show();
        SeekSliderController seek(&slider);
        seek.setCurrentSliderValue(5);
        QCOMPARE(seek.currentSliderValue(), 0.0);  // no clip: maximum 0
        seek.setMaxSliderValue(30);
        seek.setCurrentSliderValue(12.5);
        QCOMPARE(slider.value(), 12500);
        seek.setCurrentSliderValue(99);
        QCOMPARE(seek.currentSliderValue(), 30.0);

        QSignalSpy up(&seek, &SeekSliderController::touchedUp);
        QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(150, 10));
        QVERIFY(seek.isSliderTouching());
        const int held = slider.value();
        seek.setCurrentSliderValue(1);  // playing on must not pull the thumb from the finger
        QCOMPARE(slider.value(), held);
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, QPoint(150, 10));
        QCOMPARE(up.count(), 1);
        QVERIFY(qAbs(up.front().front().toDouble() - 15.0) < 1.5);
        QVERIFY(!seek.isSliderTouching());
    }

    void snapshotNamesTruncateMilliseconds() {
        for (auto [t, name] : {std::pair{12.345, "A_12345.png"}, {0.0005, "A_0.png"}, {3725.9876, "A_3725987.png"},
                               {std::nan(""), "A_0.png"}})
            QCOMPARE(ClipSaver::snapshotFileName("A", t), QString(name));
        QCOMPARE(ClipSaver::baseNameOf("/card/cont_rec/20261121_083000_F.mp4"), QString("20261121_083000_F"));
        QCOMPARE(ClipSaver::baseNameOf("/card/a.b.avi"), QString("a.b"));
        QCOMPARE(ClipSaver::baseNameOf(""), QString());
    }

    void pngWritesAndCopiesAreWholeOrNothing() {
        QTemporaryDir dir;
        QImage image(320, 180, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        const QString png = dir.filePath("shot.png");
        QVERIFY(ClipSaver::writePng(image, png));
        QCOMPARE(QImage(png).size(), QSize(320, 180));
        QVERIFY(!ClipSaver::writePng(QImage(), dir.filePath("null.png")));
        QVERIFY(!QFile::exists(dir.filePath("null.png")));
        // A read-only folder refuses the write and keeps no temporary behind.
        const QString locked = dir.filePath("locked");
        QVERIFY(QDir().mkdir(locked));
        ::chmod(QFile::encodeName(locked).constData(), 0555);
        if (::access(QFile::encodeName(locked).constData(), W_OK) != 0) {
            QVERIFY(!ClipSaver::writePng(image, locked + "/shot.png"));
            QCOMPARE(QDir(locked).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size(), 0);
        }
        ::chmod(QFile::encodeName(locked).constData(), 0755);
        // A confirmed replace replaces; a failed copy leaves the old file whole.
        const QString copy = dir.filePath("copy.png"), other = dir.filePath("other.bin");
        QVERIFY(ClipSaver::copyClip(QFile::encodeName(png).toStdString(), copy));
        { QFile f(other); QVERIFY(f.open(QIODevice::WriteOnly)); f.write(QByteArray(3 << 20, 'x')); }
        QVERIFY(ClipSaver::copyClip(QFile::encodeName(other).toStdString(), copy));
        QCOMPARE(QFileInfo(copy).size(), qint64(3 << 20));
        QVERIFY(!ClipSaver::copyClip("/nonexistent/clip.mp4", copy));
        QCOMPARE(QFileInfo(copy).size(), qint64(3 << 20));
        QVERIFY(!ClipSaver::copyClip("/nonexistent/clip.mp4", dir.filePath("nothing.mp4")));
        QVERIFY(!QFile::exists(dir.filePath("nothing.mp4")));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files).size(), 3);  // no temporary left behind
    }
};

QTEST_MAIN(PlaybackRulesTest)
#include "test_playback_rules.moc"
