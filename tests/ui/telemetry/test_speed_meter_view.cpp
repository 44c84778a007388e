#include <QHBoxLayout>
#include <QImage>
#include <QPainter>
#include <QtTest>

#include "core/telemetry/orvo_clip_data.h"
#include "ui/app/prefs/notification_center.h"
#include "ui/app/prefs/qsettings_store.h"
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
    auto paint = [&view] {
        QImage image(view.size(), QImage::Format_ARGB32);
        image.fill(Qt::black);
        view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    };
    // Count lit pixels along the bar's bottom row: a lit segment is saturated.
    auto litPixels = [](const QImage& image) {
        int n = 0;
        const int y = image.height() - 4;
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            n += c.hsvSaturation() > 150 && c.value() > 150 ? 1 : 0;
        }
        return n;
    };
    auto inkPixels = [](const QImage& image) {
        int n = 0;
        for (int y = 0; y < image.height() / 2; ++y) {
            for (int x = 0; x < image.width(); ++x) {
                n += qGray(image.pixel(x, y)) > 100 ? 1 : 0;
            }
        }
        return n;
    };
    view.setSpeed(0);
    const QImage still = paint();
    QCOMPARE(litPixels(still), 0);
    QCOMPARE(inkPixels(still), 0);
    view.setSpeed(60);
    const QImage slow = paint();
    view.setSpeed(200);
    const QImage fast = paint();
    QVERIFY(litPixels(slow) > 0);
    QVERIFY(litPixels(fast) > 2 * litPixels(slow));
    QVERIFY(inkPixels(slow) > 0);
    QVERIFY(inkPixels(fast) > inkPixels(slow));
}

void TestSpeedMeterView::dashboardScreenshot() {
    QWidget panel;
    panel.setAutoFillBackground(true);
    QPalette palette = panel.palette();
    palette.setColor(QPalette::Window, QColor(28, 30, 34));
    panel.setPalette(palette);
    auto* layout = new QHBoxLayout(&panel);
    auto* graph = new GravityGraphView;
    auto* meter = new SpeedMeterView;
    graph->setFixedSize(360, 60);
    meter->setFixedSize(meter->sizeHint());
    layout->addWidget(graph);
    layout->addWidget(meter);
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

    const QImage image = panel.grab().toImage();
    const QString path = QDir::current().absoluteFilePath("dashboard.png");
    QVERIFY(image.save(path));
    qInfo("dashboard screenshot: %s", qPrintable(path));
    QVERIFY(!graph->gxPointList().isEmpty());
}

QTEST_MAIN(TestSpeedMeterView)
#include "test_speed_meter_view.moc"
