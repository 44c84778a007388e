#include "ui/library/incident/incident_span_band.h"

#include <QEvent>
#include <QPainter>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <algorithm>

namespace tarvik {

IncidentSpanBand::IncidentSpanBand(QSlider* slider) : QWidget(slider), slider_(slider) {
    setObjectName("incidentSpanBand");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setGeometry(slider->rect());
    slider->installEventFilter(this);
    show();
}

void IncidentSpanBand::setBand(double from, double to, double length) {
    if (from == from_ && to == to_ && length == length_) return;
    from_ = from, to_ = to, length_ = length;
    update();
}

void IncidentSpanBand::clearBand() { setBand(0, 0, 0); }

double IncidentSpanBand::xForSeconds(double seconds) const {
    if (length_ <= 0) return -1;
    QStyleOptionSlider opt;
    opt.initFrom(slider_);
    opt.orientation = Qt::Horizontal;
    const double half = slider_->style()->pixelMetric(QStyle::PM_SliderLength, &opt, slider_) / 2.0;
    return half + (width() - 2 * half) * std::clamp(seconds / length_, 0.0, 1.0);
}

void IncidentSpanBand::paintEvent(QPaintEvent*) {
    if (!isShowingBand()) return;
    QPainter p(this);
    const double left = from_ <= 0 ? 0 : xForSeconds(from_);
    const double right = to_ >= length_ ? width() : xForSeconds(to_);
    if (right <= left) return;
    const double h = height();
    p.fillRect(QRectF(left, h * 0.15, right - left, h * 0.7), QColor(72, 220, 120, 200));
    // An edge marks a point that lies in this clip.
    const QColor edge(72, 220, 120);
    if (from_ >= 0) p.fillRect(QRectF(left - 1, 0, 2, h), edge);
    if (to_ <= length_) p.fillRect(QRectF(right - 1, 0, 2, h), edge);
}

bool IncidentSpanBand::eventFilter(QObject* watched, QEvent* event) {
    if (watched == slider_ && event->type() == QEvent::Resize) setGeometry(slider_->rect());
    return QWidget::eventFilter(watched, event);
}

}  // namespace tarvik
