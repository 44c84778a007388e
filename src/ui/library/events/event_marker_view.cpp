#include "ui/library/events/event_marker_view.h"

#include <QEvent>
#include <algorithm>
#include <QPainter>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

namespace tarvik {

EventMarkerView::EventMarkerView(QSlider* slider) : QWidget(slider), slider_(slider) {
    setObjectName("eventMarkerView");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setGeometry(slider->rect());
    slider->installEventFilter(this);
    show();
}

void EventMarkerView::setEvents(std::vector<DrivingEvent> events, double clipSeconds) {
    events_ = std::move(events);
    clipSeconds_ = clipSeconds;
    update();
}

double EventMarkerView::xForSeconds(double seconds) const {
    if (clipSeconds_ <= 0) return -1;
    QStyleOptionSlider opt;
    opt.initFrom(slider_);
    opt.orientation = Qt::Horizontal;
    const int thumb = slider_->style()->pixelMetric(QStyle::PM_SliderLength, &opt, slider_);
    const double half = thumb / 2.0;
    return half + (width() - 2 * half) * std::clamp(seconds / clipSeconds_, 0.0, 1.0);
}

void EventMarkerView::paintEvent(QPaintEvent*) {
    if (events_.empty() || clipSeconds_ <= 0) return;
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    for (const DrivingEvent& e : events_) {
        const QColor c = e.kind == DrivingEventKind::HardBraking ? QColor(235, 64, 52) : QColor(255, 176, 32);
        const double x = xForSeconds(e.seconds);
        p.fillRect(QRectF(x - 1.5, 0, 3, height()), c);
    }
}

bool EventMarkerView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == slider_ && event->type() == QEvent::Resize) setGeometry(slider_->rect());
    return QWidget::eventFilter(watched, event);
}

}  // namespace tarvik
