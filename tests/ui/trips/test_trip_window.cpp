// The main window on a card holding one drive of five short pairs, a minute
// with a bump and a hard braking, and a few broken clips: playback runs through
// the trip by itself, the map shows the trip, the slider marks the events,
// the route exports and the card report lists what is wrong.
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <filesystem>

#include "cardgen/card_plan.h"
#include "core/library/trips/trip_route.h"
#include "ui/library/events/event_marker_controller.h"
#include "ui/library/events/event_marker_view.h"
#include "ui/library/playback/dashboard_widgets.h"
#include "ui/library/playback/playback_controller.h"
#include "ui/library/playback/seek_slider_controller.h"
#include "ui/library/player/orvo_av_view.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/library/trips/card_report_window.h"
#include "ui/library/trips/route_export_controller.h"
#include "ui/library/trips/trip_features.h"
#include "ui/library/trips/trip_list_view.h"
#include "ui/telemetry/map_controller.h"
#include "../window_on_card.h"

using namespace tarvik;
namespace fs = std::filesystem;

class TripWindowTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    fs::path card_;
    std::unique_ptr<MainWindowController> window_;

    PlaybackController& playback() { return window_->playback(); }
    TripFeatures& trips() { return window_->trips(); }
    int rowOf(const std::string& name) { return test::rowOf(*window_, name); }
    void play(const std::string& name) { test::playRow(*window_, rowOf(name)); }

private slots:
    void initTestCase() {
        card_ = fs::path(dir_.path().toStdString()) / "card";
        cardgen::CardPlan plan = cardgen::tripCardPlan(5, 4, 320, 180);
        cardgen::VideoSpec minute = plan.clips.front().video;
        minute.seconds = 60;
        minute.width = 64;
        minute.height = 36;
        plan.clips.push_back({"evt_rec/20261121_120000.avi", minute, cardgen::TelemetryFormat::TextRecords, 0});
        cardgen::VideoSpec lone = minute;
        lone.seconds = 2;
        plan.clips.push_back({"manual_rec/20261121_131000_F.avi", lone, cardgen::TelemetryFormat::None, 0});
        plan.files = {{"manual_rec/20261121_130000.mp4", ""}};
        std::string error;
        QVERIFY2(cardgen::writeCard(plan, card_, &error), error.c_str());

        window_ = test::openWindowOn(card_);
        QVERIFY(window_);
        QCOMPARE(window_->catalogue().catalogue().rowCount(), 13);
        QTRY_VERIFY_WITH_TIMEOUT(playback().dashboardWidgets().mapController->isPageReady(), 30000);
    }

    void cleanupTestCase() { window_.reset(); }

    void tripPlaysThroughAndShowsOnTheMap() {
        // The list of trips: the drive, the minute, and each lone clip.
        trips().showTripList(true);
        TripListView* list = trips().tripList();
        QVERIFY(list->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!list->isMeasuring(), 30000);
        QCOMPARE(list->topLevelItemCount(), 4);
        const QTreeWidgetItem* drive = list->topLevelItem(0);
        QCOMPARE(QStringList({drive->text(0), drive->text(1), drive->text(2), drive->text(4)}).join("|"),
                 QString("2026-11-21 10:00:00|10:00:20|0:20|54"));
        QCOMPARE(list->topLevelItem(1)->text(2), QString("1:00"));
        // Double-clicking the drive plays its first clip and brings the clips back.
        emit list->itemDoubleClicked(list->topLevelItem(0), 0);
        QVERIFY(list->isHidden());
        QTRY_COMPARE_WITH_TIMEOUT(ClipCatalogue::fileName(playback().currentVideoUrl()), std::string_view("20261121_100000_F.avi"), 10000);
        QTRY_COMPARE_WITH_TIMEOUT(trips().currentTrip().clips.size(), std::size_t(5), 20000);
        // Each clip hands over to the next without a click, up to the fifth.
        for (const char* next : {"20261121_100004_F.avi", "20261121_100008_F.avi", "20261121_100012_F.avi",
                                 "20261121_100016_F.avi"}) {
            QTRY_VERIFY2_WITH_TIMEOUT(ClipCatalogue::fileName(playback().currentVideoUrl()) == next, next, 30000);
            QCOMPARE(trips().currentTrip().indexOf(playback().currentVideoUrl()),
                     trips().currentTrip().indexOf((card_ / "cont_rec" / next).string()));
        }
        auto* map = playback().dashboardWidgets().mapController->webView();
        const int total = int(trips().currentTripRoute().size());
        QVERIFY(total > 10);
        QTRY_COMPARE_WITH_TIMEOUT(test::pageJson(map, "tripState()").value("points").toInt(), total, 5000);
        // Into the fifth clip, four fifths of the trip lie behind.
        QTRY_VERIFY_WITH_TIMEOUT(test::pageJson(map, "tripState()").value("driven").toInt() > total * 4 / 5 - 2, 10000);
        QVERIFY(test::pageJson(map, "tripState()").value("driven").toInt() <= total);
        playback().pauseVideo();
    }

    void eventMarkersSitOnTheGPeaks() {
        play("20261121_120000.avi");
        QTRY_VERIFY_WITH_TIMEOUT(playback().seekSlider().maxSliderValue() > 59, 30000);
        playback().pauseVideo();
        EventMarkerView* view = trips().events().view();
        QTRY_COMPARE_WITH_TIMEOUT(view->events().size(), std::size_t(2), 5000);
        QTest::qWait(400);  // the length the player found replaces the telemetry's
        // The generated minute jolts at 22 s and brakes hard from 30 s.
        QVERIFY(view->events()[0].seconds >= 22.0 && view->events()[0].seconds <= 22.4);
        QCOMPARE(view->events()[1].kind, DrivingEventKind::HardBraking);
        QSlider* slider = playback().seekSlider().slider();
        const QImage image = slider->grab().toImage();
        for (const DrivingEvent& e : view->events()) {
            const QColor c = image.pixelColor(int(view->xForSeconds(e.seconds) * image.width() / slider->width()),
                                              image.height() / 2);
            const QColor want = e.kind == DrivingEventKind::GPeak ? QColor(255, 176, 32) : QColor(235, 64, 52);
            QVERIFY2(qAbs(c.red() - want.red()) < 40 && qAbs(c.green() - want.green()) < 40, qPrintable(c.name()));
        }
        const int x = int(view->xForSeconds(22.2));
        QVERIFY(x > slider->width() * 22 / 60 - 12 && x < slider->width() * 23 / 60 + 12);

        // "]" and "[" step between them.
        playback().seekSlider().setCurrentSliderValue(5);
        QTest::keyClick(window_->mainWindow(), Qt::Key_BracketRight);
        QCOMPARE(playback().seekSlider().currentSliderValue(), view->events()[0].seconds);
        QTest::keyClick(window_->mainWindow(), Qt::Key_BracketRight);
        QCOMPARE(playback().seekSlider().currentSliderValue(), view->events()[1].seconds);
        QVERIFY(!trips().events().jumpToNextEvent());
        QTest::keyClick(window_->mainWindow(), Qt::Key_BracketLeft);
        QCOMPARE(playback().seekSlider().currentSliderValue(), view->events()[0].seconds);
    }

    void routeExportsTheTripOrTheSelection() {
        QStringList filters;
        QString answer, answerFilter;
        trips().routeExport().setFileChooser([&](QWidget*, const QString& suggested, const QString& f, QString* filter) {
            filters << f;
            if (!answerFilter.isEmpty()) *filter = answerFilter;
            return answer;
        });
        QTableView* list = window_->views().fileListTableView;
        list->selectRow(rowOf("20261121_100008_F.avi"));
        answer = dir_.filePath("trip");  // no extension: the GPX filter adds it
        answerFilter = "GPX 1.1 (*.gpx)";
        QVERIFY(trips().exportTripOfSelection());
        QFile gpx(answer + ".gpx");
        QVERIFY(gpx.open(QIODevice::ReadOnly));
        const QByteArray text = gpx.readAll();
        QCOMPARE(int(text.count("<trkpt ")), int(readTripRoute(trips().tripOf((card_ / "cont_rec/20261121_100000_F.avi").string())).points.size()));
        QVERIFY(filters.last().contains("KML") && filters.last().contains("GeoJSON") && filters.last().contains("CSV"));

        // Two selected clips only, as KML chosen by the filter.
        list->clearSelection();
        list->selectionModel()->select(list->model()->index(rowOf("20261121_100000_F.avi"), 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
        list->selectionModel()->select(list->model()->index(rowOf("20261121_100004_F.avi"), 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
        answer = dir_.filePath("two.kml");
        answerFilter = "KML (*.kml)";
        QVERIFY(trips().exportSelection());
        QFile kml(answer);
        QVERIFY(kml.open(QIODevice::ReadOnly));
        QVERIFY(kml.readAll().contains("<LineString>"));
        answer.clear();  // cancelled
        QVERIFY(!trips().exportSelection());

        // The same from the window's Trips menu, for those who never right-click;
        // every point of the GPX has its time.
        QMenu* menu = window_->views().mainMenu->findChild<QMenu*>("tripsMenu");
        QVERIFY(menu);
        emit menu->aboutToShow();
        QAction* wholeTrip = nullptr;
        for (QAction* a : menu->actions())
            if (a->text() == tr_k("Export route of the whole trip...")) wholeTrip = a;
        QVERIFY(wholeTrip && wholeTrip->isEnabled());
        answer = dir_.filePath("from-menu.gpx");
        answerFilter.clear();
        wholeTrip->trigger();
        QFile fromMenu(answer);
        QVERIFY(fromMenu.open(QIODevice::ReadOnly));
        const QByteArray menuText = fromMenu.readAll();
        QVERIFY(menuText.count("<trkpt ") > 10);
        QCOMPARE(menuText.count("<time>"), menuText.count("<trkpt "));
    }

    void cardReportListsTheBrokenClips() {
        CardReportWindow* report = trips().showCardReport();
        QVERIFY(report);
        QVERIFY(QTest::qWaitForWindowExposed(report));
        QTRY_VERIFY_WITH_TIMEOUT(!report->isChecking(), 60000);
        QStringList rows;
        for (int i = 0; i < report->findingList()->topLevelItemCount(); ++i) {
            const QTreeWidgetItem* it = report->findingList()->topLevelItem(i);
            rows << it->text(0) + "|" + it->text(1) + "|" + it->text(2);
        }
        const QString all = rows.join("\n");
        QVERIFY2(all.contains("Cannot be played|manual_rec/20261121_130000.mp4|zero bytes"), qPrintable(all));
        QVERIFY2(all.contains("Front without rear|manual_rec/20261121_131000_F.avi"), qPrintable(all));
        QVERIFY2(all.contains("No driving data|manual_rec/20261121_131000_F.avi"), qPrintable(all));
        QVERIFY(report->summaryLabel()->text().startsWith("13 clips in "));
        QCOMPARE(report->verdictLabel()->text(), tr_k("%n things need attention", 2));
        report->close();
    }
};

QTEST_MAIN(TripWindowTest)
#include "test_trip_window.moc"
