#include "ui/telemetry/gravity_graph_view.h"

#include <QPainter>
#include <QPainterPath>
#include <QResizeEvent>

#include <cmath>
#include <cstdint>

#include "core/telemetry/orvo_clip_data.h"

namespace tarvik {

namespace {

qreal pointY(qreal baseY, int raw) {
    // The sample is a signed 16-bit value; the sign is dropped on purpose.
    const auto g = static_cast<int16_t>(raw);
    const qreal y = baseY - std::fabs(g * 20.0 / 200.0);
    return y < 0 ? 0 : y;
}

void strokeAxis(QPainter& painter, const QList<QPointF>& points, qreal baseY, qreal width,
                const QColor& colour) {
    QPainterPath path(QPointF(0, baseY));
    for (const QPointF& p : points) {
        path.lineTo(p.x() * width, p.y());
    }
    painter.setPen(QPen(colour, 1.0));
    painter.drawPath(path);
}

}  // namespace

GravityGraphView::GravityGraphView(QWidget* parent)
    : QWidget(parent), clipData_(std::make_unique<OrvoClipData>()) {
    baseYPoint_ = height() * 0.5;
}

GravityGraphView::~GravityGraphView() = default;

void GravityGraphView::setClipData(const OrvoClipData& clipData) {
    *clipData_ = clipData;
    generatePoints();
    update();
}

void GravityGraphView::generatePoints() {
    gxPointList_.clear();
    gyPointList_.clear();
    gzPointList_.clear();
    baseYPoint_ = height() * 0.5;
    const int n = clipData_->clipDataCount();
    if (n <= 0) {
        return;
    }
    gxPointList_.reserve(n);
    gyPointList_.reserve(n);
    gzPointList_.reserve(n);
    for (int i = 0; i < n; ++i) {
        const float x = static_cast<float>(i + 1) / static_cast<float>(n);
        gxPointList_.append({x, pointY(baseYPoint_, clipData_->getGx(i))});
        gyPointList_.append({x, pointY(baseYPoint_, clipData_->getGy(i))});
        gzPointList_.append({x, pointY(baseYPoint_, clipData_->getGz(i))});
    }
}

void GravityGraphView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // A widget built in code learns its height only from its layout, so the
    // zero line follows the height instead of being fixed at construction.
    if (event->size().height() != event->oldSize().height()) {
        generatePoints();
    }
}

void GravityGraphView::paintEvent(QPaintEvent*) {
    if (gxPointList_.isEmpty()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const qreal w = width();
    strokeAxis(painter, gxPointList_, baseYPoint_, w, QColor::fromRgbF(1, 0, 0, 1));
    strokeAxis(painter, gyPointList_, baseYPoint_, w, QColor::fromRgbF(1, 1, 0, 1));
    strokeAxis(painter, gzPointList_, baseYPoint_, w, QColor::fromRgbF(0, 0, 1, 1));
}

}  // namespace tarvik
