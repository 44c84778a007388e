// The whole playback path in the real main window, on a generated card:
// real ffmpeg conversion, two libmpv players, the dashboard and the map page.
// Also saving and printing, and clips that must be refused without harm.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QWebEngineView>
#include <filesystem>
#include <fstream>

#include "cardgen/card_plan.h"
#include "core/library/clip_catalogue.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"
#include "ui/app/catalogue_controller.h"
#include "ui/app/main_window.h"
#include "ui/app/main_window_controller.h"
#include "ui/controls/image_button.h"
#include "ui/library/playback/clip_saver.h"
#include "ui/library/playback/dashboard_widgets.h"
#include "ui/library/playback/fullscreen_control_bar.h"
#include "ui/library/playback/fullscreen_controller.h"
#include "ui/library/playback/playback_controller.h"
#include "ui/library/playback/save_dialogs.h"
#include "ui/library/playback/seek_slider_controller.h"
#include "ui/library/player/orvo_av_view.h"
#include "ui/telemetry/map_controller.h"
#include "ui/telemetry/speed_meter_view.h"

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

QJsonObject mapState(QWebEngineView* view) {
    QJsonObject state;
    bool done = false;
    view->page()->runJavaScript("JSON.stringify(window.mapState ? mapState() : {})", [&](const QVariant& v) {
        state = QJsonDocument::fromJson(v.toString().toUtf8()).object();
        done = true;
    });
    if (!QTest::qWaitFor([&] { return done; }, 5000)) qWarning("the map page did not answer");
    return state;
}

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
    int rowOf(const std::string& name) {
        const auto& list = window_->catalogue().catalogue().filteredVideoFileList();
        for (size_t i = 0; i < list.size(); ++i)
            if (ClipCatalogue::fileName(list[i]) == name) return static_cast<int>(i);
        return -1;
    }
    void doubleClick(int row) {
        window_->views().fileListTableView->selectRow(row);
        window_->catalogue().videoFileListDoubleClicked();
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
                   c.relPath != "cont_rec/20261121_083200.avi";
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

        window_ = std::make_unique<MainWindowController>();
        window_->showMainWindow();
        QVERIFY(QTest::qWaitForWindowExposed(window_->mainWindow()));
        window_->catalogue().chooseFolder(card_.string());
        QCOMPARE(window_->catalogue().catalogue().rowCount(), 8);
        playback().setAlertPresenter([this](const QString& m, const QString& i) { alerts_ << m + "|" + i; });
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
        QVERIFY(playback().subtitleData() && !playback().subtitleData()->empty());
        QVERIFY(v.bigMovieCoverImageView->isHidden() && v.smallMovieCoverImageView->isHidden());
        QVERIFY(v.playPauseButton->isEnabled() && v.switchVideoButton->isEnabled());

        // The time text advances with the large player; the first ticks bring
        // up the map page. Paused there for a steady look at the dashboard.
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
        QTRY_VERIFY_WITH_TIMEOUT(mapState(map).value("route").toArray().size() > 1, 5000);
        QTRY_VERIFY_WITH_TIMEOUT(mapState(map).value("moves").toInt() > 0, 5000);
        QVERIFY(!map->isHidden());

        QTest::qWait(500);
        const QString shot = QString(TARVIK_BINARY_DIR) + "/playback_window.png";
        QVERIFY(window_->mainWindow()->grab().save(shot));
        QVERIFY(map->grab().save(QString(TARVIK_BINARY_DIR) + "/playback_map.png"));
        qInfo("screenshots: %s", qPrintable(shot));
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

    void stepsSwitchRotateAndFullScreen() {
        doubleClick(rowOf("20261121_083200.avi"));
        QTRY_COMPARE_WITH_TIMEOUT(big()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        QTRY_COMPARE_WITH_TIMEOUT(small()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        QTRY_VERIFY_WITH_TIMEOUT(!playback().isVideoPaused(), 5000);
        playback().pauseVideo();
        playback().setCurrentVideoTime(1.0);
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(big()->currentTime() - 1.0) < 1e-3, 5000);
        const double t0 = big()->currentTime();
        playback().fastForwardButtonTouched();
        QTRY_VERIFY_WITH_TIMEOUT(big()->currentTime() > t0 + 1e-4, 5000);
        QVERIFY2(qAbs(big()->currentTime() - t0 - 1.0 / 30) < 2e-3, qPrintable(QString::number(big()->currentTime())));
        playback().rewindButtonTouched();
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(big()->currentTime() - t0) < 2e-3, 5000);
        QVERIFY(playback().isVideoPaused());

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
        const int avi = rowOf("20261121_083200.avi");
        doubleClick(avi);
        QTRY_COMPARE_WITH_TIMEOUT(big()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        QTRY_VERIFY_WITH_TIMEOUT(!playback().isVideoPaused(), 5000);
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

    void refusedClipsLeaveThePlayerUsable() {
        // No picture, no bytes, no index: refused or Error. An AVI whose index
        // is damaged still has its frames, so it may also play.
        const QStringList bad = {"20261121_090000.mp4", "20261121_090100.mp4", "20261121_090200.mp4",
                                 "20261121_090300.avi"};
        for (const QString& name : bad) {
            const qsizetype alertsBefore = alerts_.size();
            doubleClick(rowOf(name.toStdString()));
            QTRY_VERIFY2_WITH_TIMEOUT(alerts_.size() > alertsBefore || big()->status() == OrvoAVViewStatusError ||
                                          big()->status() == OrvoAVViewStatusPrepared,
                                      qPrintable(name), kLoadMs);
            if (alerts_.size() > alertsBefore) {
                QVERIFY(playback().currentVideoUrl().empty());
                QVERIFY(!big()->hasMovie());
                QVERIFY(window_->views().bigMovieCoverImageView->isVisible());
            }
            qInfo("%s: %s, %d alert(s)", qPrintable(name), orvoAVViewStatusName(big()->status()),
                  int(alerts_.size() - alertsBefore));
            if (!name.endsWith(".avi")) QVERIFY(big()->status() != OrvoAVViewStatusPrepared);
        }
        QVERIFY(!alerts_.isEmpty());
        // The next good clip plays as if nothing had happened.
        doubleClick(rowOf("20261121_090400.avi"));
        QTRY_COMPARE_WITH_TIMEOUT(big()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        QTRY_VERIFY_WITH_TIMEOUT(!playback().isVideoPaused(), 5000);
        QTRY_VERIFY_WITH_TIMEOUT(big()->currentTime() > 0.3, 5000);
    }
};

QTEST_MAIN(PlaybackWindowTest)
#include "test_playback_window.moc"
