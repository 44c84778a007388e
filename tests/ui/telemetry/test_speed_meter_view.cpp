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

int changed(const QImage& a, const QImage& b, const QRect& area) {
    int n = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) n += a.pixel(x, y) != b.pixel(x, y);
    return n;
}

}  // namespace

class TestSpeedMeterView : public QObject {
    Q_OBJECT
private slots:
    void init() { setUnit(0); }
    void kilometresPerHour() {
        SpeedMeterView view;
        QCOMPARE(shown(view), QString("/0/-"));
        QCOMPARE(shownFor(view, 8), QString("/0/-"));
        QCOMPARE(shownFor(view, 9), QString("9/0/-"));
        QCOMPARE(shownFor(view, 10), QString("10/1/-"));
        // A zero tens digit still shows when there are hundreds.
        QCOMPARE(shownFor(view, 105), QString("105/10/-"));
        QCOMPARE(view.number10(), QString("0"));
        QCOMPARE(shownFor(view, 239), QString("239/23/-"));
        QCOMPARE(shownFor(view, 250), QString("250/24/-"));
        // Three places only: the thousands are dropped, the gauge stays full.
        QCOMPARE(shownFor(view, 1234), QString("234/24/-"));
        QCOMPARE(view.speed(), 1234u);
        // A slow speed clears every digit, not just the ones place.
        QCOMPARE(shownFor(view, 3), QString("/0/-"));
        QVERIFY(view.number100().isEmpty());

        view.setSpeedGauge(75);
        QVERIFY(view.isGaugeSegmentVisible(1) && view.isGaugeSegmentVisible(7));
        QVERIFY(!view.isGaugeSegmentVisible(8) && !view.isGaugeSegmentVisible(24));
        view.setSpeedGauge(-15);
        QCOMPARE(view.visibleGaugeSegmentCount(), 0);
    }

    void milesPerHour() {
        setUnit(1);
        SpeedMeterView view;
        QCOMPARE(shownFor(view, 100), QString("62/6/mph"));
        QCOMPARE(view.speed(), 100u);
        QCOMPARE(shownFor(view, 14), QString("9/0/mph"));
        // The blank threshold is 9 km/h even when miles are shown.
        QCOMPARE(shownFor(view, 8), QString("/0/mph"));
        QCOMPARE(shownFor(view, 9), QString("6/0/mph"));
        QCOMPARE(shownFor(view, 400), QString("249/24/mph"));
        // The first-run 2 is km/h, as the unit menu marks it.
        setUnit(2);
        QCOMPARE(shownFor(view, 100), QString("100/10/-"));
        setUnit(0);
        QCOMPARE(shownFor(view, 100), QString("100/10/-"));
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

    void paintedDialFollowsSpeedAndUnit() {
        SpeedMeterView view;
        view.resize(view.sizeHint());
        const QRect all(QPoint(0, 0), view.size());
        const QRect readout(57, 62, 66, 34);  // where the digits and the mph mark sit on the dial
        const QRect unitMark(72, 111, 36, 16);
        const QImage still = paint(view, 0);
        QCOMPARE(changed(still, paint(view, 5), all), 0);
        const QImage slow = paint(view, 60);
        const QImage fast = paint(view, 200);
        QVERIFY(changed(still, slow, readout) > 0);
        QCOMPARE(changed(still, slow, unitMark), 0);
        // Pixels outside the read-out are the segments: many more lit at 200 than at 60.
        QVERIFY(changed(still, fast, all) - changed(still, fast, readout) >
                2 * (changed(still, slow, all) - changed(still, slow, readout)));
        setUnit(1);
        const QImage miles = paint(view, 200);
        QVERIFY(changed(fast, miles, unitMark) > 0);
        QVERIFY(changed(fast, miles, readout) > 0);
    }

    void missingArtworkStillShowsTheSpeed() {
        const QStringList roots = ImageLibrary::searchRoots();
        ImageLibrary::setSearchRoots({QDir::current().absoluteFilePath("no-artwork-here")});
        SpeedMeterView view;
        view.resize(120, 120);
        const QImage still = paint(view, 0);
        const QImage moving = paint(view, 130);
        ImageLibrary::setSearchRoots(roots);
        QVERIFY(moving.save(QDir::current().absoluteFilePath("speedometer-plain.png")));
        QVERIFY(still != moving);
        QVERIFY(still.pixel(60, 60) != qRgb(0, 0, 0));  // a plain dial face is drawn
    }
};

QTEST_MAIN(TestSpeedMeterView)
#include "test_speed_meter_view.moc"
