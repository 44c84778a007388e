// Clips of other camera families in the real main window: the players, the
// speed gauge, the G texts and graph, and the route on the map page come from
// each family's own telemetry layout. Leaves a picture of each in the build tree.
#include <QLabel>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>

#include "cardgen/card_plan.h"
#include "core/telemetry/orvo_clip_data.h"
#include "ui/library/playback/dashboard_widgets.h"
#include "ui/library/playback/playback_controller.h"
#include "ui/library/playback/seek_slider_controller.h"
#include "ui/controls/image_button.h"
#include "ui/library/player/orvo_av_view.h"
#include "ui/telemetry/gravity_graph_view.h"
#include "ui/telemetry/map_controller.h"
#include "ui/telemetry/speed_meter_view.h"
#include "../window_on_card.h"

using namespace tarvik;
namespace fs = std::filesystem;

constexpr int kLoadMs = 30000;

class OtherCameraWindowTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    std::unique_ptr<MainWindowController> window_;

    PlaybackController& playback() { return window_->playback(); }

private slots:
    void initTestCase() {
        QVERIFY(dir_.isValid());
        const fs::path card = fs::path(dir_.path().toStdString()) / "card";
        std::string error;
        QVERIFY2(cardgen::writeCard(cardgen::otherCameraCardPlan(8, 320, 180), card, &error), error.c_str());
        window_ = test::openWindowOn(card);
        QVERIFY(window_);
        QCOMPARE(window_->catalogue().catalogue().rowCount(), 11);
        QTRY_VERIFY_WITH_TIMEOUT(playback().dashboardWidgets().mapController->isPageReady(), 30000);
        playback().setAlertPresenter([](const QString& m, const QString& i) {
            QFAIL(qPrintable("alert: " + m + " " + i));
        });
    }

    void cleanupTestCase() { window_.reset(); }

    void dashboardShowsEachFamily_data() {
        QTest::addColumn<QString>("clip");
        QTest::addColumn<bool>("pair");
        QTest::addColumn<bool>("hasG");
        QTest::addColumn<QString>("recorded");  // the date and time beside the picture
        QTest::newRow("freeGPS") << "2026_1121_100000_F.MP4" << true << false << "2026-11-21 10:00:00";
        QTest::newRow("free box log") << "20261121_100016_NF.mp4" << true << true << "2026-11-21 10:00:16";
        // The rear is the file lettered B with the same time.
        QTest::newRow("GPS box") << "20261121100024A.MP4" << true << false << "2026-11-21 10:00:24";
        // A name without the time: the container's creation time.
        QTest::newRow("GPMF") << "GX011000.MP4" << false << true << "2026-11-21 10:00:32";
        QTest::newRow("NMEA track") << "20261121_100040.mp4" << false << false << "2026-11-21 10:00:40";
        QTest::newRow("freeGPS TS") << "2026_1121_100056_F.TS" << false << false << "2026-11-21 10:00:56";
    }

    void dashboardShowsEachFamily() {
        QFETCH(QString, clip);
        QFETCH(bool, pair);
        QFETCH(bool, hasG);
        QFETCH(QString, recorded);
        const MainWindowViews& v = window_->views();
        const int row = test::rowOf(*window_, clip.toStdString());
        QVERIFY(row >= 0);
        test::playRow(*window_, row);
        OrvoAVView* big = playback().bigMovieView();
        QTRY_COMPARE_WITH_TIMEOUT(big->status(), OrvoAVViewStatusPrepared, kLoadMs);
        if (pair) QTRY_COMPARE_WITH_TIMEOUT(playback().smallMovieView()->status(), OrvoAVViewStatusPrepared, kLoadMs);
        // The clip itself plays, whatever played before, and its partner beside it.
        QTRY_VERIFY_WITH_TIMEOUT(big->fileName().endsWith(clip), 10000);
        if (pair) {
            const std::string rear = ClipCatalogue::cameraPartnerPath(big->fileName().toStdString());
            QCOMPARE(playback().smallMovieView()->fileName().toStdString(), rear);
            QVERIFY(v.switchVideoButton->isEnabled());
        }
        QCOMPARE(v.fileDateTextField->text(), recorded);
        QTRY_VERIFY_WITH_TIMEOUT(playback().clipData().clipDataCount() == 80, 10000);
        QVERIFY(playback().clipData().gpsDataCount() > 0);
        QTRY_VERIFY_WITH_TIMEOUT(v.playTimeTextField->text().startsWith("00:02"), 10000);
        playback().pauseVideo();

        // The gauge shows the clip's speed of the moment (the drive stops now and then).
        const OrvoClipData& data = playback().clipData();
        const int shown = static_cast<int>(playback().seekSlider().currentSliderValue() * 10);
        unsigned top = 0;
        for (int i = 0; i < data.clipDataCount(); ++i) top = std::max(top, data.getGpsSpeed(i));
        QVERIFY(top > 0);
        SpeedMeterView* gauge = playback().dashboardWidgets().speedMeterView;
        bool matches = false;
        for (int i = std::max(0, shown - 5); i <= shown && !matches; ++i)
            matches = gauge->speed() == data.getGpsSpeed(i);
        QVERIFY2(matches, qPrintable(QString::number(gauge->speed())));
        if (hasG) QVERIFY(v.gzTextField->text() != "0.000");
        if (hasG) QCOMPARE(playback().dashboardWidgets().gravityGraphView->clipData().clipDataCount(), 80);
        QWebEngineView* map = playback().dashboardWidgets().mapWebView;
        QTRY_VERIFY_WITH_TIMEOUT(!map->isHidden(), 5000);
        QTRY_VERIFY_WITH_TIMEOUT(test::mapState(map).value("route").toArray().size() > 1, 5000);
    }
};

QTEST_MAIN(OtherCameraWindowTest)
#include "test_other_camera_window.moc"
