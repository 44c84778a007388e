#include <QImage>
#include <QtTest>

#include "ui/base/prefs/notification_center.h"
#include "ui/base/prefs/qsettings_store.h"
#include "ui/controls/image_library.h"
#include "ui/telemetry/speed_meter_view.h"

using namespace tarvik;

namespace {

void setUnit(int unit) {
    QSettingsStore::shared().setInteger(SpeedMeterView::kSpeedUnitKey, unit);
    QSettingsStore::shared().synchronize();
}

// Read-out, lit segments and unit mark in one string, so a failure shows all three.
QString shown(const SpeedMeterView& view) {
    return QStringLiteral("%1/%2/%3")
        .arg(view.displayedDigits())
        .arg(view.visibleGaugeSegmentCount())
        .arg(view.isSpeedUnitMarkVisible() ? "mph" : "-");
}

QString shownFor(SpeedMeterView& view, uint32_t kmh) {
    view.setSpeed(kmh);
    return shown(view);
}

QImage paint(SpeedMeterView& view, uint32_t kmh) {
    view.setSpeed(kmh);
    QImage image(view.size(), QImage::Format_ARGB32);
    image.fill(Qt::black);
    view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

}  // namespace

class TestSpeedMeterView : public QObject {
    Q_OBJECT
private slots:
    void init() { setUnit(0); }
    void readOutGaugeAndUnitMark() {
        SpeedMeterView view;
        QCOMPARE(shown(view), QString("/0/-"));
        struct Case { int unit; uint32_t kmh; const char* shown; };
        for (const Case& c : {Case{0, 8, "/0/-"}, {0, 9, "9/0/-"}, {0, 10, "10/1/-"},
                              {0, 105, "105/10/-"},  // a zero tens digit still shows when there are hundreds
                              {0, 239, "239/23/-"}, {0, 250, "250/24/-"},
                              {0, 1234, "234/24/-"},  // three places only; the gauge stays full
                              {0, 3, "/0/-"},         // a slow speed clears every digit, not just the ones
                              {1, 100, "62/6/mph"}, {1, 14, "9/0/mph"},
                              {1, 8, "/0/mph"}, {1, 9, "6/0/mph"},  // the blank threshold is 9 km/h in miles too
                              {1, 400, "249/24/mph"},
                              {2, 100, "100/10/-"}}) {  // the first-run 2 is km/h, as the unit menu marks it
            setUnit(c.unit);
            QCOMPARE(shownFor(view, c.kmh), QString(c.shown));
            QCOMPARE(view.speed(), c.kmh);
        }

        view.setSpeedGauge(75);
        QVERIFY(view.isGaugeSegmentVisible(1) && view.isGaugeSegmentVisible(7));
        QVERIFY(!view.isGaugeSegmentVisible(8) && !view.isGaugeSegmentVisible(24));
        view.setSpeedGauge(-15);
        QCOMPARE(view.visibleGaugeSegmentCount(), 0);
    }

    void unitChangeRedrawsOnNotification() {
        SpeedMeterView view;
        view.setSpeed(100);
        setUnit(1);
        QCOMPARE(shown(view), QString("100/10/-"));  // nothing changes until told
        NotificationCenter::shared().postRefreshSpeedUnit();
        QCOMPARE(shown(view), QString("62/6/mph"));
        QCOMPARE(view.speed(), 100u);
        setUnit(0);
        NotificationCenter::shared().postRefreshSpeedUnit();
        QCOMPARE(shown(view), QString("100/10/-"));
    }

    // The dial draws those states: the speed and the unit mark change pixels.
    void paintedDialFollowsSpeedAndUnit() {
        SpeedMeterView view;
        view.resize(view.sizeHint());
        const QImage still = paint(view, 0), fast = paint(view, 200);
        QVERIFY(still == paint(view, 5));
        QVERIFY(fast != still);
        setUnit(1);
        const QImage miles = paint(view, 200);
        QVERIFY(miles.copy(72, 111, 36, 16) != fast.copy(72, 111, 36, 16));  // the mph mark
    }

    void missingArtworkStillShowsTheSpeed() {
        const QStringList roots = ImageLibrary::searchRoots();
        ImageLibrary::setSearchRoots({QDir::current().absoluteFilePath("no-artwork-here")});
        SpeedMeterView view;
        view.resize(120, 120);
        const QImage still = paint(view, 0);
        const QImage moving = paint(view, 130);
        ImageLibrary::setSearchRoots(roots);
        QVERIFY(still != moving);
        QVERIFY(still.pixel(60, 60) != qRgb(0, 0, 0));  // a plain dial face is drawn
    }
};

QTEST_MAIN(TestSpeedMeterView)
#include "test_speed_meter_view.moc"
