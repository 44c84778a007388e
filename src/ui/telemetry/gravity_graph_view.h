#pragma once
// The whole clip's G-sensor history as three polylines (X red, Y yellow,
// Z blue) across the width of a small strip under the video. Each axis is
// drawn by magnitude on one side of the zero line, so a hard brake and a hard
// acceleration look alike; that is how drivers have always read this strip.

#include <QList>
#include <QPointF>
#include <QWidget>

#include <memory>

namespace tarvik {

class OrvoClipData;

class GravityGraphView : public QWidget {
    Q_OBJECT
public:
    explicit GravityGraphView(QWidget* parent = nullptr);
    ~GravityGraphView() override;

    // Keeps a copy of the clip's telemetry and recomputes the points.
    void setClipData(const OrvoClipData& clipData);
    const OrvoClipData& clipData() const { return *clipData_; }

    void generatePoints();

    // x is a fraction of the width in (0, 1], y is in widget units.
    const QList<QPointF>& gxPointList() const { return gxPointList_; }
    const QList<QPointF>& gyPointList() const { return gyPointList_; }
    const QList<QPointF>& gzPointList() const { return gzPointList_; }
    // The zero line: half the widget's height.
    qreal baseYPoint() const { return baseYPoint_; }

    QSize sizeHint() const override { return {320, 60}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    std::unique_ptr<OrvoClipData> clipData_;
    QList<QPointF> gxPointList_;
    QList<QPointF> gyPointList_;
    QList<QPointF> gzPointList_;
    qreal baseYPoint_ = 0;
};

}  // namespace tarvik
