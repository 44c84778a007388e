// The whole playback path in the real main window, on a generated card:
// the card's own files in two libmpv players (a two-camera AVI split by the
// real ffmpeg), the dashboard and the map page.
// Also saving and printing, and clips that must be refused without harm.
#include <QApplication>
#include <QJsonArray>
#include <QMouseEvent>
#include <QLabel>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QScrollArea>
#include <QScrollBar>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>
#include <fstream>

#include "cardgen/card_plan.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"
#include "ui/shell/card_controller.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/library/playback/clip_failure_watch.h"
#include "ui/library/playback/clip_navigation.h"
#include "ui/library/playback/clip_saver.h"
#include "ui/library/playback/volume_controller.h"
#include "ui/library/playback/zoom_controller.h"
#include "ui/library/playback/dashboard_widgets.h"
#include "ui/library/playback/fullscreen_control_bar.h"
#include "ui/library/playback/fullscreen_controller.h"
#include "ui/library/playback/after_first_pictures.h"
#include "ui/library/playback/playback_controller.h"
#include "ui/library/playback/save_dialogs.h"
#include "ui/library/playback/seek_slider_controller.h"
#include "ui/controls/image_button.h"
#include "ui/library/player/orvo_av_view.h"
#include "ui/telemetry/map_controller.h"
#include "ui/telemetry/speed_meter_view.h"
#include "../window_on_card.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {

constexpr int kLoadMs = 30000;

// Answers the save panel with a fixed folder and prints to PDF.
struct ScriptedDialogs : SaveDialogs {
    QString folder;
    QString pdf;
    QStringList proposed;
    QString savePath(QWidget*, const QString& name) override {
        proposed << name;
        return folder + "/" + name;
    }
    bool setUpPrinter(QWidget*, QPrinter& printer) override {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        return true;
    }
};

QByteArray readAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void writeBytes(const fs::path& path, const QByteArray& bytes) {
    std::ofstream(path, std::ios::binary).write(bytes.constData(), bytes.size());
}

}  // namespace

class PlaybackWindowTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    fs::path card_;
    std::unique_ptr<MainWindowController> window_;
    QStringList alerts_;
    ScriptedDialogs* dialogs_ = nullptr;

    PlaybackController& playback() { return window_->playback(); }
    OrvoAVView* big() { return playback().bigMovieView(); }
    OrvoAVView* small() { return playback().smallMovieView(); }
    int rowOf(const std::string& name) { return test::rowOf(*window_, name); }
    void doubleClick(int row) { test::playRow(*window_, row); }
    // Plays the clip by double-click; true once the large view has it running.
    bool start(const std::string& name) {
        doubleClick(rowOf(name));
        return QTest::qWaitFor([&] { return big()->status() == OrvoAVViewStatusPrepared && !playback().isVideoPaused(); },
                               kLoadMs);
    }
    QString text(QLabel* label) { return label->text(); }

private slots:
    void initTestCase() {
        QVERIFY(dir_.isValid());
        card_ = fs::path(dir_.path().toStdString()) / "card";
        cardgen::CardOptions options;
        options.seconds = 6;
        options.width = 320;
        options.height = 180;
        cardgen::CardPlan plan = cardgen::demoCardPlan(options);
        std::erase_if(plan.clips, [](const cardgen::ClipPlan& c) {
            return c.relPath != "cont_rec/20261121_083000_F.mp4" && c.relPath != "cont_rec/20261121_083000_R.mp4" &&
                   c.relPath != "cont_rec/20261121_083200.avi" && c.relPath != "20261121_080100.MP4";
        });
        plan.files.clear();
        std::string error;
        QVERIFY2(cardgen::writeCard(plan, card_, &error), error.c_str());
        const fs::path rec = card_ / "cont_rec";

        // A clip with sound only, an empty clip, an MP4 cut short, an AVI whose
        // index is overwritten, and after them a good clip again.
        const QString audioOnly = QString::fromStdString((rec / "20261121_090000.mp4").string());
        QCOMPARE(QProcess::execute(QString::fromStdString(cardgen::ffmpegProgram()),
                                   {"-v", "error", "-y", "-f", "lavfi", "-i", "sine=duration=2", "-c:a", "aac",
                                    audioOnly}),
                 0);
        writeBytes(rec / "20261121_090100.mp4", {});
        const QByteArray mp4 = readAll(QString::fromStdString((rec / "20261121_083000_F.mp4").string()));
        writeBytes(rec / "20261121_090200.mp4", mp4.left(mp4.size() * 2 / 5));
        QByteArray avi = readAll(QString::fromStdString((rec / "20261121_083200.avi").string()));
        const qsizetype idx = avi.lastIndexOf("idx1");
        QVERIFY(idx > 0);
        for (qsizetype i = idx + 8; i < avi.size(); ++i) avi[i] = static_cast<char>(0xA5 ^ (i * 31));
        writeBytes(rec / "20261121_090300.avi", avi);
        fs::copy_file(rec / "20261121_083200.avi", rec / "20261121_090400.avi");
        // Names that are not UTF-8: one a good clip, one garbage. Random bytes
        // with a clip's extension, and a clip that goes missing once listed.
        fs::copy_file(rec / "20261121_083200.avi", rec / "20261121_090500_\xe9.avi");
        QByteArray noise(200000, '\0');
        for (qsizetype i = 0; i < noise.size(); ++i) noise[i] = static_cast<char>((i * 7919) ^ (i >> 5));
        writeBytes(rec / "20261121_090600_\xff.avi", noise);
        writeBytes(rec / "20261121_090700.mp4", noise);
        fs::copy_file(rec / "20261121_083200.avi", rec / "20261121_090800.avi");

        window_ = test::openWindowOn(card_);
        QVERIFY(window_);
        QCOMPARE(window_->catalogue().catalogue().rowCount(), 13);
        playback().setAlertPresenter([this](const QString& m, const QString& i) {
            alerts_ << m + "|" + i;
            qInfo("alert: %s, status %s", qPrintable(alerts_.last()), orvoAVViewStatusName(big()->status()));
        });
        auto dialogs = std::make_unique<ScriptedDialogs>();
        dialogs_ = dialogs.get();
        dialogs_->folder = dir_.filePath("saved");
        dialogs_->pdf = dir_.filePath("print.pdf");
        QDir().mkpath(dialogs_->folder);
        playback().saver().setDialogs(std::move(dialogs));
        // The map page loads once with the window; a clip lasts only six seconds.
        QVERIFY(playback().dashboardWidgets().mapController);
        QTRY_VERIFY_WITH_TIMEOUT(playback().dashboardWidgets().mapController->isPageReady(), 30000);
    }

    void cleanupTestCase() { window_.reset(); }

    void frontRearPairPlaysWithTheDashboard() {
        const MainWindowViews& v = window_->views();
        doubleClick(rowOf("20261121_083000_F.mp4"));
        QTRY_COMPARE_WITH_TIMEOUT(big()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        QTRY_COMPARE_WITH_TIMEOUT(small()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        QTRY_VERIFY_WITH_TIMEOUT(!playback().isVideoPaused(), 5000);
        QVERIFY(alerts_.isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(playback().subtitleData() && !playback().subtitleData()->empty(), 5000);
        // Work held back for the first pictures (the route) runs at once when
        // they are already up, as they may be when the telemetry comes in.
        QTRY_VERIFY_WITH_TIMEOUT(big()->showsPicture() && small()->showsPicture(), 5000);
        AfterFirstPictures after;
        bool ran = false;
        after.run({big(), small()}, [&] { ran = true; }, 60000);
        QVERIFY(ran);
        // The players read the card's files; nothing was copied to open them.
        QCOMPARE(big()->fileName(), QString::fromStdString((card_ / "cont_rec/20261121_083000_F.mp4").string()));
        QCOMPARE(small()->fileName(), QString::fromStdString((card_ / "cont_rec/20261121_083000_R.mp4").string()));
        QVERIFY(v.bigMovieCoverImageView->isHidden() && v.smallMovieCoverImageView->isHidden());
        QVERIFY(v.playPauseButton->isEnabled() && v.switchVideoButton->isEnabled());

        // The time text advances with the large player; the first ticks bring
        // up the map page. Paused there for a steady dashboard.
        QWebEngineView* map = playback().dashboardWidgets().mapWebView;
        QVERIFY(map);
        QTRY_VERIFY_WITH_TIMEOUT(!map->isHidden() && v.mapCoverView->isHidden(), 3000);
        QTRY_VERIFY_WITH_TIMEOUT(text(v.playTimeTextField).startsWith("00:01/00:0"), 5000);
        playback().pauseVideo();

        // The G texts and the gauge show the clip's own track.
        QVERIFY(text(v.gzTextField) != "0.000");
        const SubtitleData& track = *playback().subtitleData();
        int x = 0, y = 0, z = 0;
        const auto shownIndex = static_cast<unsigned>(playback().seekSlider().currentSliderValue() * 10);
        bool anyG = false;
        for (unsigned i = 0; i <= shownIndex && !anyG; ++i)
            anyG = track.getSensorAt(i, x, y, z) && text(v.gzTextField) == QString::asprintf("%.3f", z / 128.0);
        QVERIFY2(anyG, qPrintable(text(v.gzTextField)));
        SpeedMeterView* gauge = playback().dashboardWidgets().speedMeterView;
        QVERIFY2(gauge->speed() > 0 && gauge->speed() < 1024, qPrintable(QString::number(gauge->speed())));

        // The page has the clip's route and the car has moved along it.
        QTRY_VERIFY_WITH_TIMEOUT(test::mapState(map).value("route").toArray().size() > 1, 5000);
        QTRY_VERIFY_WITH_TIMEOUT(test::mapState(map).value("moves").toInt() > 0, 5000);
        QVERIFY(!map->isHidden());

        playback().playVideo();

        // At the end the list moves on, past the rear file, to the two-stream AVI.
        const int avi = rowOf("20261121_083200.avi");
        QTRY_COMPARE_WITH_TIMEOUT(window_->catalogue().selectedRow(), avi, 20000);
        QTRY_COMPARE_WITH_TIMEOUT(big()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        QTRY_COMPARE_WITH_TIMEOUT(small()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        QVERIFY(!playback().smallVideoFilePath().empty());
        QTRY_VERIFY_WITH_TIMEOUT(!playback().isVideoPaused(), 5000);
        QTRY_VERIFY_WITH_TIMEOUT(text(v.playTimeTextField).startsWith("00:01"), 5000);
        QVERIFY(text(v.gzTextField) != "0.000");  // text records of the AVI itself
    }

    void switchRotateAndFullScreen() {
        QVERIFY(start("20261121_083200.avi"));
        QTRY_COMPARE_WITH_TIMEOUT(small()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        playback().pauseVideo();
        // The second player's ready report may still be on its way: it must
        // not start the clip again.
        QTest::qWait(200);
        QVERIFY(playback().isVideoPaused());
        // Frame steps while paused are the keys test's (Right and Left).

        const QString front = big()->fileName(), rear = small()->fileName();
        playback().toggleVideoSwithButtonTouched();
        QVERIFY(playback().isVideoSwitched());
        QCOMPARE(big()->fileName(), rear);
        QVERIFY(!playback().isVideoPaused());
        playback().toggleVideoSwithButtonTouched();
        QCOMPARE(big()->fileName(), front);
        QCOMPARE(small()->fileName(), rear);

        playback().videoRotateButtonTouched();
        QVERIFY(big()->upsideDown() && small()->upsideDown());
        playback().videoRotateButtonTouched();
        QVERIFY(!big()->upsideDown());

        // Full screen from the small view's request, then out by the key table's Escape.
        FullScreenController& fs = playback().fullScreen();
        playback().orvoAVViewDidRequestFullscreen(small());
        QVERIFY(fs.isFullScreenMode());
        QCOMPARE(fs.fullScreenMovieView(), small());
        QTRY_VERIFY(fs.fullScreenWindow()->isVisible());
        QVERIFY(fs.controlBar()->isVisible());
        QTest::keyClick(fs.fullScreenWindow(), Qt::Key_Escape);
        QVERIFY(!fs.isFullScreenMode());
        QVERIFY(!fs.fullScreenWindow()->isVisible());
        QVERIFY(!fs.controlBar()->isVisible());
        window_->fullscreenButtonTouched(window_->mainWindow());  // the Return key: the large view
        QCOMPARE(fs.fullScreenMovieView(), big());
        window_->fullscreenButtonTouched(window_->mainWindow());
        QVERIFY(!fs.isFullScreenMode());
    }

    void snapshotCopyAndPrint() {
        QVERIFY(start("20261121_083200.avi"));
        playback().pauseVideo();
        playback().setCurrentVideoTime(2.0);
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(big()->currentTime() - 2.0) < 1e-3, 5000);
        playback().saver().snapshotButtonTouched();
        QVERIFY(playback().isVideoPaused());
        QCOMPARE(dialogs_->proposed.last(), QString("20261121_083200_2000.png"));
        const QImage png(dialogs_->folder + "/20261121_083200_2000.png");
        QCOMPARE(png.size(), QSize(320, 180));

        playback().saver().saveFileButtonTouched();
        QCOMPARE(dialogs_->proposed.last(), QString("20261121_083200.avi"));
        QCOMPARE(readAll(dialogs_->folder + "/20261121_083200.avi"),
                 readAll(QString::fromStdString((card_ / "cont_rec/20261121_083200.avi").string())));

        playback().saver().printButtonTouched();
        const QByteArray pdf = readAll(dialogs_->pdf);
        QVERIFY(pdf.startsWith("%PDF"));
        QCOMPARE(pdf.count("/Type /Page\n") + pdf.count("/Type /Page "), 1);
        const QRegularExpressionMatch box = QRegularExpression(R"(/MediaBox \[0 0 ([\d.]+) ([\d.]+)\])").match(pdf);
        QVERIFY(box.hasMatch());
        QVERIFY(box.captured(1).toDouble() > box.captured(2).toDouble());
    }

    void keysWinOverTheFocusedListAndActOnThePlayingClip() {
        const MainWindowViews& v = window_->views();
        QTableView* list = v.fileListTableView;
        QSignalSpy loads(&playback(), &PlaybackController::playingClipChanged);
        const int avi = rowOf("20261121_083200.avi");
        // A real double-click: the view reports it as doubleClicked and activated.
        list->scrollTo(list->model()->index(avi, 0));
        const QPoint at = list->visualRect(list->model()->index(avi, 0)).center();
        // What the window system delivers for a double-click: a click, then a
        // second press as a double-click event, then its release.
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
        QMouseEvent second(QEvent::MouseButtonDblClick, at, list->viewport()->mapToGlobal(at), Qt::LeftButton,
                           Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(list->viewport(), &second);
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, at);
        QTRY_COMPARE_WITH_TIMEOUT(big()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        QTRY_VERIFY_WITH_TIMEOUT(!playback().isVideoPaused(), 5000);
        QTest::qWait(300);
        QCOMPARE(loads.size(), 1);
        list->setFocus();
        QVERIFY(list->hasFocus());
        QCOMPARE(window_->catalogue().selectedRow(), avi);
        QVERIFY(list->model()->data(list->model()->index(avi, 0), Qt::FontRole).value<QFont>().bold());

        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY(playback().isVideoPaused());
        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY(!playback().isVideoPaused());
        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY(playback().isVideoPaused());

        playback().volume().setVolume(0.5f);
        QTest::keyClick(list, Qt::Key_Up);
        QVERIFY2(playback().volume().volume() > 0.5f, qPrintable(QString::number(playback().volume().volume())));
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Down);
        QVERIFY(playback().volume().volume() < 0.5f);
        QCOMPARE(window_->catalogue().selectedRow(), avi);  // the arrows did not move the selection

        playback().setCurrentVideoTime(1.0);
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(big()->currentTime() - 1.0) < 1e-3, 5000);
        QTest::keyClick(list, Qt::Key_Right);
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(big()->currentTime() - 1.0 - 1.0 / 30) < 2e-3, 5000);
        QTest::keyClick(list, Qt::Key_Left);
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(big()->currentTime() - 1.0) < 2e-3, 5000);
        QVERIFY(playback().isVideoPaused());
        QCOMPARE(loads.size(), 1);

        // The selection moves away (a refresh, a click): Save and Next still
        // go by the clip that plays.
        const int other = rowOf("20261121_090400.avi");
        window_->catalogue().refreshVideoFileList();
        QCOMPARE(window_->catalogue().selectedRow(), avi);
        list->selectRow(other);
        playback().saver().saveFileButtonTouched();
        QCOMPARE(dialogs_->proposed.last(), QString("20261121_083200.avi"));
        QCOMPARE(playback().playingRow(), avi);

        // Enter on the list plays the selected clip, once, and nothing more.
        QTest::keyClick(list, Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(loads.size(), 2, 5000);
        QVERIFY(!playback().fullScreen().isFullScreenMode());
        QCOMPARE(playback().playingRow(), other);
        QTRY_COMPARE_WITH_TIMEOUT(big()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        playback().playNextFileButtonTouched();
        QCOMPARE(playback().playingRow(), nextClipRow(window_->catalogue().catalogue().filteredVideoFileList(), other));
        QTest::qWait(300);
        QCOMPARE(loads.size(), 3);
    }

    void settingsPauseAndAZoomedPicturePansWithADrag() {
        QVERIFY(start("20261121_083200.avi"));
        // The settings button asks for a pause before any pane opens.
        QVERIFY(QMetaObject::invokeMethod(&window_->card(), "pauseVideoRequested"));
        QVERIFY(playback().isVideoPaused());

        QScrollArea* scroll = window_->views().bigMovieViewScrollView;
        // The pointer moves over the screen, not with the picture it pans.
        const QPoint middle = scroll->viewport()->rect().center();
        auto on = [&](QPoint p) { return big()->mapFrom(scroll->viewport(), p); };
        auto drag = [&](QPoint by) {
            QTest::mousePress(big(), Qt::LeftButton, {}, on(middle));
            QTest::mouseMove(big(), on(middle + by / 2));
            QTest::mouseMove(big(), on(middle + by));
            QTest::mouseRelease(big(), Qt::LeftButton, {}, on(middle + by));
        };
        drag({-40, -30});  // not zoomed: nothing to pan
        QCOMPARE(scroll->horizontalScrollBar()->value(), 0);
        playback().zoom().videoScaleUpButtonTouched();
        playback().zoom().videoScaleUpButtonTouched();
        QTRY_VERIFY(scroll->horizontalScrollBar()->maximum() > 0);
        const QPoint windowAt = window_->mainWindow()->pos();
        const int x0 = scroll->horizontalScrollBar()->value(), y0 = scroll->verticalScrollBar()->value();
        drag({-40, -30});
        QCOMPARE(scroll->horizontalScrollBar()->value(), x0 + 40);
        QCOMPARE(scroll->verticalScrollBar()->value(), y0 + 30);
        QCOMPARE(window_->mainWindow()->pos(), windowAt);
        playback().zoom().resetVideoScaleButtonTouched();
    }

    void releasingTheCardLeavesNoFileOfItOpen() {
        // Formatting unmounts the card, which fails while a file on it is open.
        const std::string card = fs::canonical(card_).string() + "/";
        auto openOnCard = [&card] {
            QStringList open;
            for (const auto& fd : fs::directory_iterator("/proc/self/fd")) {
                std::error_code ec;
                const std::string target = fs::read_symlink(fd.path(), ec).string();
                if (!ec && target.rfind(card, 0) == 0) open << QString::fromStdString(target);
            }
            return open;
        };
        doubleClick(rowOf("20261121_083000_F.mp4"));
        QTRY_COMPARE_WITH_TIMEOUT(big()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        QVERIFY(!openOnCard().isEmpty());  // the players read the card's own files
        playback().releaseCard();
        QCOMPARE(openOnCard(), QStringList());
        QVERIFY(playback().currentVideoUrl().empty() && !big()->hasMovie());
        QVERIFY(alerts_.isEmpty());
    }

    void everyUnplayableClipEndsInOneAlert() {
        // Each clip that cannot be shown ends in exactly one alert within five
        // seconds, with wording that fits; a non-UTF-8 name is no reason to fail.
        fs::remove(card_ / "cont_rec/20261121_090800.avi");  // listed, then gone
        const QString unsupported = tr_k("지원하지 않는 형식으로 인코딩된 동영상입니다.");
        const struct { std::string name; QString reason; } bad[] = {
            {"20261121_090700.mp4", unsupported},                           // random bytes
            {"20261121_090600_\xff.avi", unsupported},                      // and a name that is not UTF-8
            {"20261121_090100.mp4", tr_k("동영상 파일이 비어 있습니다.")},
            {"20261121_090200.mp4", tr_k("동영상 파일이 중간에 잘려 있습니다.")},
            {"20261121_090800.avi", tr_k("동영상 파일을 찾을 수 없습니다.")},
            {"20261121_090000.mp4", unsupported},                           // sound only: nothing to see
        };
        for (const auto& clip : bad) {
            const int row = rowOf(clip.name);
            QVERIFY2(row >= 0, clip.name.c_str());
            const qsizetype before = alerts_.size();
            QElapsedTimer clock;
            clock.start();
            doubleClick(row);
            QTRY_VERIFY2_WITH_TIMEOUT(alerts_.size() > before, clip.name.c_str(), 5000);
            QVERIFY(clock.elapsed() < 5000);
            QTest::qWait(ClipFailureWatch::kFirstPictureMs + 300);  // nothing left to fail a second time
            QCOMPARE(alerts_.size(), before + 1);
            QVERIFY2(alerts_.last().endsWith("|" + clip.reason), qPrintable(alerts_.last()));
            QVERIFY(playback().currentVideoUrl().empty() && playback().playingRow() < 0);
            QVERIFY(!big()->hasMovie());
            QVERIFY(window_->views().bigMovieCoverImageView->isVisible());
        }

        // The card's HEVC clip shows a picture, or says it cannot, within five seconds.
        QSignalSpy pictures(big(), &OrvoAVView::firstFrameShown);
        const qsizetype before = alerts_.size();
        doubleClick(rowOf("20261121_080100.MP4"));
        QTRY_VERIFY_WITH_TIMEOUT(alerts_.size() > before || pictures.size() > 0, 5000);
        qInfo("HEVC clip: %s", pictures.isEmpty() ? "refused" : "shown");

        // A good clip under a name that is not UTF-8, then the next good clip, play.
        for (const std::string name : {"20261121_090500_\xe9.avi", "20261121_090400.avi"}) {
            QSignalSpy shown(big(), &OrvoAVView::firstFrameShown);
            const qsizetype alertsBefore = alerts_.size();
            doubleClick(rowOf(name));
            QTRY_COMPARE_WITH_TIMEOUT(big()->status(), OrvoAVViewStatusPrepared, kLoadMs);
            QTRY_VERIFY_WITH_TIMEOUT(!shown.isEmpty(), 5000);
            QTRY_VERIFY_WITH_TIMEOUT(big()->currentTime() > 0.3, 5000);
            QCOMPARE(alerts_.size(), alertsBefore);
            QVERIFY(!big()->snapshot().isNull());  // the still, too, is read by the name's bytes
        }
    }
};

QTEST_MAIN(PlaybackWindowTest)
#include "test_playback_window.moc"
