// Handing an incident over from the main window: I and O (and the two
// tool-bar buttons) mark a span across two clips of a drive, the band shows
// it on the slider, the Incident menu opens the dialog with it, a folder on
// the card is refused, the export runs with a progress window and leaves a
// folder that `sha256sum -c` accepts, Cancel leaves nothing, and the dialog
// remembers the last choices. The card is byte for byte as it was.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <filesystem>
#include <cmath>
#include <tuple>

#include "cardgen/card_plan.h"
#include "ui/library/incident/incident_export_dialog.h"
#include "ui/library/incident/incident_export_progress.h"
#include "ui/library/incident/incident_features.h"
#include "ui/library/incident/incident_span_band.h"
#include "ui/library/incident/incident_still_saver.h"
#include "ui/library/playback/playback_controller.h"
#include "ui/library/playback/seek_slider_controller.h"
#include "ui/library/trips/trip_features.h"
#include "../card_volumes.h"
#include "../window_on_card.h"

using namespace tarvik;
namespace fs = std::filesystem;

class IncidentWindowTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    fs::path card_;
    QByteArray cardBefore_;
    std::unique_ptr<MainWindowController> window_;

    PlaybackController& playback() { return window_->playback(); }
    IncidentFeatures& incident() { return window_->incident(); }
    // Plays the clip, paused at `seconds` (a seek goes to whole seconds,
    // the rest is frame steps by the arrow key, at ten frames a second).
    void showAt(const std::string& name, double seconds) {
        test::playRow(*window_, test::rowOf(*window_, name));
        QTRY_VERIFY_WITH_TIMEOUT(ClipCatalogue::fileName(playback().currentVideoUrl()) == name, 20000);
        QTRY_VERIFY_WITH_TIMEOUT(playback().seekSlider().maxSliderValue() > 3.5, 20000);
        // Once it runs, paused, then the seek, as a drag of the thumb ends.
        QTRY_VERIFY_WITH_TIMEOUT(!playback().isVideoPaused(), 20000);
        playback().pauseVideo();
        const double whole = std::floor(seconds);
        playback().seekSlider().setCurrentSliderValue(whole);
        playback().seekTimeSliderTouchedUp(whole);
        QTRY_COMPARE_WITH_TIMEOUT(playback().bigMovieView()->currentTime(), whole, 5000);
        for (int i = 0; i < int(std::lround((seconds - whole) * 10)); ++i) {
            const double before = playback().bigMovieView()->currentTime();
            QTest::keyClick(window_->mainWindow(), Qt::Key_Right);
            QTRY_VERIFY_WITH_TIMEOUT(playback().bigMovieView()->currentTime() > before + 0.05, 5000);
        }
        QTRY_VERIFY_WITH_TIMEOUT(std::abs(playback().seekSlider().currentSliderValue() - seconds) < 0.01, 5000);
    }
    IncidentExportDialog* openFromMenu() {
        QMenu* menu = window_->views().mainMenu->findChild<QMenu*>("incidentMenu");
        if (!menu) return nullptr;
        emit menu->aboutToShow();
        for (QAction* a : menu->actions())
            if (a->text() == "Export incident..." && a->isEnabled()) a->trigger();
        if (!QTest::qWaitFor([this] { return incident().dialog() && incident().dialog()->isVisible(); }, 5000))
            return nullptr;
        return incident().dialog();
    }

private slots:
    void initTestCase() {
        card_ = fs::path(dir_.path().toStdString()) / "card";
        std::string error;
        QVERIFY2(cardgen::writeCard(cardgen::tripCardPlan(3, 4, 320, 180), card_, &error), error.c_str());
        cardBefore_ = test::cardHash(card_);
        window_ = test::openWindowOn(card_);
        QVERIFY(window_);
        QCOMPARE(window_->catalogue().catalogue().rowCount(), 6);
    }

    void cleanupTestCase() {
        window_.reset();
        QCOMPARE(test::cardHash(card_), cardBefore_);
    }

    void keysAndButtonsMarkASpanAcrossClips() {
        QVERIFY(!incident().markInButton()->isEnabled());
        showAt("20261121_100000_F.avi", 1.5);
        QTRY_VERIFY(incident().markInButton()->isEnabled());
        QVERIFY(!incident().markInButton()->toolTip().isEmpty());
        QVERIFY(incident().markOutButton()->toolTip().contains("(O)"));
        // I on the window, wherever the focus is (the list has it after the double-click).
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : window_->mainWindow(), Qt::Key_I);
        QVERIFY(incident().marks().inPoint());
        const double start = 1795255200;  // 2026-11-21 10:00:00 as the camera's clock
        QCOMPARE(*incident().marks().inPoint(), start + 1.5);
        QVERIFY(!incident().marks().outPoint());

        // The out point in the next clip, by the tool-bar button.
        showAt("20261121_100004_F.avi", 2.0);
        QTest::mouseClick(incident().markOutButton(), Qt::LeftButton);
        QVERIFY(incident().marks().hasSpan());
        QCOMPARE(*incident().marks().outPoint(), start + 6.0);

        // In the second clip the band runs from the slider's start to the out point.
        IncidentSpanBand* band = incident().marks().band();
        QTRY_VERIFY(band->isShowingBand());
        QSlider* slider = window_->views().seekTimeSliderView;
        QImage image = slider->grab().toImage();
        const int y = image.height() / 2;
        auto bluish = [&](double x) {
            const QColor c = image.pixelColor(int(x * image.width() / slider->width()), y);
            return c.green() > c.red() + 60 && c.green() > c.blue() + 40;
        };
        QVERIFY(bluish(band->xForSeconds(0.5)));
        QVERIFY(bluish(band->xForSeconds(1.5)));
        QVERIFY(!bluish(band->xForSeconds(3.0)));

        // O before the in point drops the in point; marks again restore the span.
        showAt("20261121_100000_F.avi", 1.0);
        QTest::keyClick(window_->mainWindow(), Qt::Key_O);
        QVERIFY(!incident().marks().inPoint());
        QTest::keyClick(window_->mainWindow(), Qt::Key_I);
        QVERIFY(!incident().marks().outPoint());  // an out point not after the in point goes
        showAt("20261121_100000_F.avi", 1.5);
        QTest::keyClick(window_->mainWindow(), Qt::Key_I);
        showAt("20261121_100004_F.avi", 2.0);
        QTest::keyClick(window_->mainWindow(), Qt::Key_O);
        QVERIFY(incident().marks().hasSpan());
        // In the first clip the band runs off its right end.
        showAt("20261121_100000_F.avi", 0.5);
        QTRY_VERIFY(band->isShowingBand());
        image = slider->grab().toImage();
        QVERIFY(bluish(band->xForSeconds(3.9)));
    }

    void dialogRefusesTheCardThenExports() {
        IncidentExportDialog* dialog = openFromMenu();
        QVERIFY(dialog);
        QVERIFY(dialog->findChild<QLabel*>("incidentSpanText")->text().contains("10:00:01.5"));
        QVERIFY(dialog->findChild<QLabel*>("incidentSpanText")->text().contains("4.5 s"));
        // A folder on the card is refused with a message; the dialog stays.
        dialog->destinationEdit()->setText(QString::fromStdString((card_ / "cont_rec").string()));
        QTest::mouseClick(dialog->exportButton(), Qt::LeftButton);
        QVERIFY(dialog->isVisible());
        QVERIFY(dialog->problemLabel()->isVisible());
        QVERIFY(dialog->problemLabel()->text().contains("memory card"));

        const QString out = dir_.filePath("exports");
        QDir().mkpath(out);
        dialog->destinationEdit()->selectAll();
        QTest::keyClicks(dialog->destinationEdit(), out);
        dialog->layoutBox()->setCurrentIndex(dialog->layoutBox()->findData(int(IncidentLayout::PictureInPicture)));
        dialog->overlayBox()->setChecked(true);
        dialog->routeInsetBox()->setChecked(false);  // whatever an earlier run left
        QTest::mouseClick(dialog->routeInsetBox(), Qt::LeftButton, {}, QPoint(8, dialog->routeInsetBox()->height() / 2));
        QVERIFY(dialog->routeInsetBox()->isChecked());
        dialog->qualityBox()->setCurrentIndex(2);
        QTest::mouseClick(dialog->exportButton(), Qt::LeftButton);
        QTRY_VERIFY(incident().progress());
        IncidentExportProgress* progress = incident().progress();
        QTRY_VERIFY_WITH_TIMEOUT(progress->bar()->value() >= 100, 30000);
        QTRY_VERIFY_WITH_TIMEOUT(!progress->isRunning(), 120000);
        QVERIFY2(progress->succeeded(), qPrintable(progress->failure()));
        QVERIFY(progress->stepLabel()->text().contains("incident_20261121_100001"));
        QCOMPARE(progress->cancelButton()->text(), QString("Close"));
        const QString folder = out + "/incident_20261121_100001";
        for (const char* name : {"incident.mp4", "SHA256SUMS", "incident.json", "route.gpx", "telemetry.csv",
                                 "overlay.ass"})
            QVERIFY2(QFile::exists(folder + "/" + name), name);
        QProcess sums;
        sums.setWorkingDirectory(folder);
        sums.start("sha256sum", {"-c", "--quiet", "SHA256SUMS"});
        QVERIFY(sums.waitForFinished(30000));
        QCOMPARE(sums.exitCode(), 0);
        QFile ass(folder + "/overlay.ass");
        QVERIFY(ass.open(QIODevice::ReadOnly));
        QVERIFY(ass.readAll().contains(",Route,"));  // the inset, as ticked
        QTest::mouseClick(progress->cancelButton(), Qt::LeftButton);
        QTRY_VERIFY(!incident().progress());
    }

    void cancelLeavesNothingAndChoicesAreRemembered() {
        IncidentExportDialog* dialog = openFromMenu();
        QVERIFY(dialog);
        // The last choices come back.
        QCOMPARE(IncidentLayout(dialog->layoutBox()->currentData().toInt()), IncidentLayout::PictureInPicture);
        QCOMPARE(dialog->qualityBox()->currentIndex(), 2);
        QVERIFY(dialog->overlayBox()->isChecked());
        QVERIFY(dialog->routeInsetBox()->isChecked());
        QCOMPARE(dialog->destinationEdit()->text(), dir_.filePath("exports"));
        const QString out = dir_.filePath("cancelled");
        QDir().mkpath(out);
        dialog->destinationEdit()->setText(out);
        dialog->layoutBox()->setCurrentIndex(dialog->layoutBox()->findData(int(IncidentLayout::Side)));
        QTest::mouseClick(dialog->exportButton(), Qt::LeftButton);
        QTRY_VERIFY(incident().progress());
        IncidentExportProgress* progress = incident().progress();
        QTest::mouseClick(progress->cancelButton(), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(!progress->isRunning(), 60000);
        QVERIFY(!progress->succeeded());
        QVERIFY2(progress->stepLabel()->text().contains("cancelled"), qPrintable(progress->stepLabel()->text()));
        QCOMPARE(QDir(out).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
        QTest::keyClick(progress, Qt::Key_Escape);
        QTRY_VERIFY(!incident().progress());
    }

    void stillOfBothCamerasAloneFromTheMenu() {
        showAt("20261121_100004_F.avi", 2.3);
        QString answer;
        incident().stillSaver().setFileChooser([&](QWidget*, const QString&) { return answer; });
        QMenu* menu = window_->views().mainMenu->findChild<QMenu*>("incidentMenu");
        auto trigger = [menu] {
            emit menu->aboutToShow();
            for (QAction* a : menu->actions())
                if (a->text() == "Save still of both cameras...") a->trigger();
        };
        // On the card: refused, nothing written there.
        answer = QString::fromStdString((card_ / "still.png").string());
        trigger();
        QVERIFY(!incident().stillSaver().isSaving());
        QTRY_VERIFY(QApplication::activeModalWidget() || window_->mainWindow()->findChild<QWidget*>("incidentAlert"));
        if (auto* box = window_->mainWindow()->findChild<QWidget*>("incidentAlert")) box->close();
        answer = dir_.filePath("still");
        QSignalSpy saved(&incident().stillSaver(), &IncidentStillSaver::saved);
        trigger();
        QTRY_COMPARE_WITH_TIMEOUT(saved.size(), 1, 30000);
        QVERIFY2(saved.front().at(0).toBool(), qPrintable(saved.front().at(2).toString()));
        // Side by side (the last export was side by side), the front's half the playing frame.
        QImage still(dir_.filePath("still.png"));
        QCOMPARE(still.size(), QSize(640, 180));
    }

    // The list's command takes the selected clips whole, the trips view's the drive under the pointer.
    void contextMenuExportsTheSelectedClipsWhole() {
        const Trip drive = window_->trips().tripOf((card_ / "cont_rec/20261121_100000_F.avi").string());
        const std::vector<std::string> clips = {(card_ / "cont_rec/20261121_100004_F.avi").string(),
                                                (card_ / "cont_rec/20261121_100008_F.avi").string()};
        for (const auto& [trip, selected, from, length] :
             {std::tuple{(const Trip*)nullptr, clips, "10:00:04.0", "8.0 s"}, {&drive, {}, "10:00:00.0", "12.0 s"}}) {
            QMenu menu;
            incident().addCommands(menu, trip, selected);
            QCOMPARE(menu.actions().size(), 1);
            menu.actions().front()->trigger();
            QTRY_VERIFY(incident().dialog() && incident().dialog()->isVisible());
            const QString text = incident().dialog()->findChild<QLabel*>("incidentSpanText")->text();
            QVERIFY2(text.contains(from) && text.contains(length), qPrintable(text));
            incident().dialog()->reject();
            QTRY_VERIFY(!incident().dialog());
        }
    }
};

QTEST_MAIN(IncidentWindowTest)
#include "test_incident_window.moc"
