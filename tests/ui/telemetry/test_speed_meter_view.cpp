#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QtTest>

#include "core/telemetry/orvo_clip_data.h"
#include "ui/app/prefs/notification_center.h"
#include "ui/app/prefs/qsettings_store.h"
#include "ui/controls/image_library.h"
#include "ui/controls/image_names.h"
#include "ui/telemetry/gravity_graph_view.h"
#include "ui/telemetry/speed_meter_view.h"

using tarvik::GravityGraphView;
using tarvik::NotificationCenter;
using tarvik::OrvoClipData;
using tarvik::QSettingsStore;
using tarvik::SpeedMeterView;

namespace {

void setUnit(int unit) {
    QSettingsStore::shared().setInteger(SpeedMeterView::kSpeedUnitKey, unit);
    QSettingsStore::shared().synchronize();
}

// The read-out, the number of lit segments and the unit mark, in one string
// so that a failure shows all three at once.
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

}  // namespace

class TestSpeedMeterView : public QObject {
    Q_OBJECT
private slots:
    void init() { setUnit(0); }
    void kilometresPerHour();
    void milesPerHour();
    void gaugeSegmentsLightInOrder();
    void unitChangeRedrawsOnNotification();
    void paintedGaugeFollowsSpeed();
    void missingArtworkStillShowsTheSpeed();
    void dashboardScreenshot();
};

void TestSpeedMeterView::kilometresPerHour() {
    SpeedMeterView view;
    QCOMPARE(shown(view), QString("/0/-"));
    QCOMPARE(shownFor(view, 8), QString("/0/-"));
    QCOMPARE(shownFor(view, 9), QString("9/0/-"));
    QCOMPARE(shownFor(view, 10), QString("10/1/-"));
    // A zero tens digit still shows when there are hundreds.
    QCOMPARE(shownFor(view, 105), QString("105/10/-"));
    QCOMPARE(view.number100(), QString("1"));
    QCOMPARE(view.number10(), QString("0"));
    QCOMPARE(view.number1(), QString("5"));
    QCOMPARE(shownFor(view, 239), QString("239/23/-"));
    QCOMPARE(shownFor(view, 250), QString("250/24/-"));
    // Only three places exist: the thousands are dropped, the gauge stays full.
    QCOMPARE(shownFor(view, 1234), QString("234/24/-"));
    QCOMPARE(view.speed(), 1234u);
    // Back to a slow speed clears every digit, not just the ones place.
    QCOMPARE(shownFor(view, 3), QString("/0/-"));
    QVERIFY(view.number100().isEmpty());
}

void TestSpeedMeterView::milesPerHour() {
    setUnit(1);
    SpeedMeterView view;
    QCOMPARE(shownFor(view, 100), QString("62/6/mph"));
    QCOMPARE(view.speed(), 100u);
    QCOMPARE(shownFor(view, 14), QString("9/0/mph"));
    // The blank threshold is 9 km/h even when miles are shown.
    QCOMPARE(shownFor(view, 8), QString("/0/mph"));
    QCOMPARE(shownFor(view, 9), QString("6/0/mph"));
    QCOMPARE(shownFor(view, 400), QString("249/24/mph"));
    // Any stored value other than 0 means miles, including the first-run 2.
    setUnit(2);
    QCOMPARE(shownFor(view, 100), QString("62/6/mph"));
    setUnit(0);
    QCOMPARE(shownFor(view, 100), QString("100/10/-"));
}

void TestSpeedMeterView::gaugeSegmentsLightInOrder() {
    SpeedMeterView view;
    view.setSpeedGauge(75);
    for (int i = 1; i <= 7; ++i) {
        QVERIFY2(view.isGaugeSegmentVisible(i), qPrintable(QString::number(i)));
    }
    for (int i = 8; i <= SpeedMeterView::kSegmentCount; ++i) {
        QVERIFY2(!view.isGaugeSegmentVisible(i), qPrintable(QString::number(i)));
    }
    view.setSpeedGauge(240);
    QVERIFY(view.isGaugeSegmentVisible(24));
    QCOMPARE(view.visibleGaugeSegmentCount(), 24);
    view.setSpeedGauge(-15);
    QCOMPARE(view.visibleGaugeSegmentCount(), 0);
    QVERIFY(!view.isGaugeSegmentVisible(0));
    QVERIFY(!view.isGaugeSegmentVisible(25));
}

void TestSpeedMeterView::unitChangeRedrawsOnNotification() {
    SpeedMeterView view;
    view.setSpeed(100);
    QCOMPARE(shown(view), QString("100/10/-"));
    setUnit(1);
    // Nothing changes until the view is told...
    QCOMPARE(shown(view), QString("100/10/-"));
    NotificationCenter::shared().postRefreshSpeedUnit();
    QCOMPARE(shown(view), QString("62/6/mph"));
    QCOMPARE(view.speed(), 100u);
    setUnit(0);
    NotificationCenter::shared().postRefreshSpeedUnit();
    QCOMPARE(shown(view), QString("100/10/-"));
}

void TestSpeedMeterView::paintedGaugeFollowsSpeed() {
    SpeedMeterView view;
    view.resize(view.sizeHint());
    auto paint = [&view](uint32_t kmh) {
        view.setSpeed(kmh);
        QImage image(view.size(), QImage::Format_ARGB32);
        image.fill(Qt::black);
        view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    };
    auto changed = [](const QImage& a, const QImage& b, const QRect& area) {
        int n = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                n += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
            }
        }
        return n;
    };
    const QRect all(QPoint(0, 0), view.size());
    // Where the read-out and the unit mark sit on the 180-unit dial.
    const QRect readout(57, 62, 66, 34);
    const QRect unitMark(72, 111, 36, 16);

    const QImage still = paint(0);
    QCOMPARE(changed(still, paint(5), all), 0);
    const QImage slow = paint(60);
    const QImage fast = paint(200);
    QVERIFY(changed(still, slow, readout) > 0);
    QVERIFY(changed(still, slow, all) > changed(still, slow, readout));
    // More lit segments at the higher speed.
    QVERIFY(changed(still, fast, all) - changed(still, fast, readout) >
            2 * (changed(still, slow, all) - changed(still, slow, readout)));
    QCOMPARE(changed(still, slow, unitMark), 0);

    setUnit(1);
    const QImage miles = paint(200);
    QVERIFY(changed(fast, miles, unitMark) > 0);
    QVERIFY(changed(fast, miles, readout) > 0);
}

void TestSpeedMeterView::missingArtworkStillShowsTheSpeed() {
    const QStringList roots = tarvik::ImageLibrary::searchRoots();
    tarvik::ImageLibrary::setSearchRoots({QDir::current().absoluteFilePath("no-artwork-here")});
    SpeedMeterView view;
    view.resize(120, 120);
    auto paint = [&view](uint32_t kmh) {
        view.setSpeed(kmh);
        QImage image(view.size(), QImage::Format_ARGB32);
        image.fill(Qt::black);
        view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    };
    const QImage still = paint(0);
    const QImage moving = paint(130);
    tarvik::ImageLibrary::setSearchRoots(roots);
    QVERIFY(moving.save(QDir::current().absoluteFilePath("speedometer-plain.png")));
    QVERIFY(still != moving);
    QVERIFY(still.pixel(60, 60) != qRgb(0, 0, 0));  // the plain dial face is drawn
}

void TestSpeedMeterView::dashboardScreenshot() {
    QWidget panel;
    panel.setAutoFillBackground(true);
    QPalette palette = panel.palette();
    palette.setColor(QPalette::Window, QColor(28, 30, 34));
    panel.setPalette(palette);
    auto* layout = new QHBoxLayout(&panel);
    // The graph is transparent; the window puts its backdrop behind it.
    auto* backdrop = new QLabel;
    backdrop->setPixmap(tarvik::ImageLibrary::pixmap(tarvik::images::kGravityGraphBackground));
    backdrop->setFixedSize(300, 64);
    auto* graph = new GravityGraphView(backdrop);
    auto* meter = new SpeedMeterView;
    auto* milesMeter = new SpeedMeterView;
    graph->setGeometry(0, 0, 300, 64);
    meter->setFixedSize(meter->sizeHint());
    milesMeter->setFixedSize(150, 150);
    layout->addWidget(backdrop);
    layout->addWidget(meter);
    layout->addWidget(milesMeter);
    panel.resize(layout->sizeHint());
    layout->activate();

    // A drive with a brake, a bump and a turn.
    OrvoClipData data;
    const int n = 300;
    data.setClipDataCount(n);
    for (int i = 0; i < n; ++i) {
        const int gx = i > 100 && i < 130 ? -220 + (i - 100) * 6 : (i % 7) - 3;
        const int gy = i > 200 && i < 240 ? 160 : (i % 5) * 2;
        const int gz = 128 + (i == 150 ? 170 : (i % 3) * 4);
        data.storeSample(i, gx, gy, gz, 0, 0, 0);
    }
    graph->setClipData(data);
    meter->setSpeed(87);
    // The unit is taken when the speed is set, so the two dials can differ.
    setUnit(1);
    milesMeter->setSpeed(100);
    setUnit(0);

    const QImage image = panel.grab().toImage();
    const QString path = QDir::current().absoluteFilePath("dashboard.png");
    QVERIFY(image.save(path));
    qInfo("dashboard screenshot: %s", qPrintable(path));
    QVERIFY(!graph->gxPointList().isEmpty());
}

QTEST_MAIN(TestSpeedMeterView)
#include "test_speed_meter_view.moc"
