#include <QImage>
#include <QtTest>

#include <vector>

#include "core/telemetry/orvo_clip_data.h"
#include "ui/telemetry/gravity_graph_view.h"

using tarvik::GravityGraphView;
using tarvik::OrvoClipData;

namespace {

struct G {
    int x, y, z;
};

OrvoClipData clipWith(const std::vector<G>& samples) {
    OrvoClipData data;
    data.setClipDataCount(static_cast<int>(samples.size()));
    for (size_t i = 0; i < samples.size(); ++i)
        data.storeSample(static_cast<int>(i), samples[i].x, samples[i].y, samples[i].z, 0, 0, 0);
    return data;
}

QImage render(GravityGraphView& view) {
    QImage image(view.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

}  // namespace

class TestGravityGraphView : public QObject {
    Q_OBJECT
private slots:
    void pointsKeepMagnitudeAndClampAtTheEdge() {
        GravityGraphView view;
        view.resize(200, 60);
        view.setClipData(clipWith({{256, -256, 0}, {300, -300, 299}, {-32000, 1000, -299}}));
        QCOMPARE(view.baseYPoint(), 30.0);
        const auto& gx = view.gxPointList();
        const auto& gy = view.gyPointList();
        const auto& gz = view.gzPointList();
        QCOMPARE(gx.size(), 3);
        // 2 g either way lies 25.6 units from the zero line, on the same side.
        QVERIFY(qFuzzyCompare(gx[0].y(), 30.0 - 25.6));
        QVERIFY(qFuzzyCompare(gy[0].y(), 30.0 - 25.6));
        QCOMPARE(gz[0].y(), 30.0);
        // Beyond 2.34 g a 60-unit view runs out of room: clamped to 0, never negative.
        QCOMPARE(gx[1].y(), 0.0);
        QCOMPARE(gy[1].y(), 0.0);
        QVERIFY(qFuzzyCompare(gz[1].y(), 30.0 - 29.9));
        QCOMPARE(gx[2].y(), 0.0);
        QVERIFY(qFuzzyCompare(gz[2].y(), 30.0 - 29.9));
    }

    void pointsSpanTheWidth() {
        GravityGraphView view;
        view.resize(300, 60);
        view.setClipData(clipWith(std::vector<G>(650, G{10, 20, 30})));
        QCOMPARE(view.gxPointList().size(), 650);
        QCOMPARE(view.gxPointList().front().x(), static_cast<qreal>(1.0f / 650.0f));
        QCOMPARE(view.gzPointList().back().x(), 1.0);
        // A shorter clip replaces the points instead of adding to them.
        view.setClipData(clipWith({{1, 1, 1}, {2, 2, 2}}));
        QCOMPARE(view.gyPointList().size(), 2);
        QCOMPARE(view.gyPointList().front().x(), 0.5);
        // The zero line follows the height the layout gives the strip.
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.resize(300, 100);
        QTRY_COMPARE(view.baseYPoint(), 50.0);
        QVERIFY(qFuzzyCompare(view.gxPointList().front().y(), 50.0 - 0.1));
    }

    void emptyClipDrawsNothing() {
        GravityGraphView view;
        view.resize(120, 60);
        view.setClipData(clipWith({{500, 500, 500}}));
        view.setClipData(OrvoClipData());
        QVERIFY(view.gxPointList().isEmpty() && view.gyPointList().isEmpty() && view.gzPointList().isEmpty());
        const QImage image = render(view);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) QCOMPARE(qAlpha(image.pixel(x, y)), 0);
    }
};

QTEST_MAIN(TestGravityGraphView)
#include "test_gravity_graph_view.moc"
