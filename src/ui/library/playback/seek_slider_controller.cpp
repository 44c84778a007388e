#include "ui/library/playback/seek_slider_controller.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <algorithm>
#include <cmath>

namespace tarvik {

SeekSliderController::SeekSliderController(QSlider* slider, QObject* parent) : QObject(parent), slider_(slider) {
    slider_->setRange(0, 0);
    slider_->installEventFilter(this);
}

void SeekSliderController::setMaxSliderValue(double seconds) {
    if (!std::isfinite(seconds) || seconds < 0) seconds = 0;
    seconds = std::min(seconds, 2.0e6);  // keeps the millisecond range inside an int
    maxSliderValue_ = seconds;
    const QSignalBlocker block(slider_);
    slider_->setRange(0, static_cast<int>(std::lround(seconds * kUnitsPerSecond)));
    moveThumbTo(currentSliderValue_);
}

void SeekSliderController::setCurrentSliderValue(double seconds) {
    if (!std::isfinite(seconds)) seconds = 0;
    currentSliderValue_ = std::min(seconds, maxSliderValue_);
    if (!isSliderTouching_) moveThumbTo(currentSliderValue_);
}

void SeekSliderController::moveThumbTo(double seconds) {
    if (maxSliderValue_ == 0) return;
    const QSignalBlocker block(slider_);
    slider_->setValue(static_cast<int>(std::lround(std::max(0.0, seconds) * kUnitsPerSecond)));
}

double SeekSliderController::valueFromPosition(double x, double halfThumb, double width, double maxValue) {
    const double maxX = width - halfThumb;
    const double length = maxX - halfThumb;
    if (length <= 0) return 0;
    return std::clamp(x - halfThumb, 0.0, std::max(0.0, maxX)) * maxValue / length;
}

double SeekSliderController::valueAt(double x) const {
    QStyleOptionSlider opt;
    opt.initFrom(slider_);
    opt.orientation = slider_->orientation();
    const double thumb = slider_->style()->pixelMetric(QStyle::PM_SliderLength, &opt, slider_);
    return valueFromPosition(x, thumb / 2.0, slider_->width(), maxSliderValue_);
}

bool SeekSliderController::eventFilter(QObject* watched, QEvent* event) {
    if (watched != slider_) return false;
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease &&
        type != QEvent::MouseButtonDblClick)
        return false;
    auto* mouse = static_cast<QMouseEvent*>(event);
    if (!slider_->isEnabled()) return true;
    const double value = valueAt(mouse->position().x());
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) {
        if (mouse->button() != Qt::LeftButton) return true;
        isSliderTouching_ = true;
        moveThumbTo(value);
        currentSliderValue_ = value;
        emit touchedDown(value);
    } else if (type == QEvent::MouseMove) {
        if (!isSliderTouching_) return true;
        moveThumbTo(value);
        currentSliderValue_ = value;
        emit dragged(value);
    } else {
        if (!isSliderTouching_ || mouse->button() != Qt::LeftButton) return true;
        currentSliderValue_ = value;
        emit touchedUp(value);
        isSliderTouching_ = false;
    }
    return true;
}

}  // namespace tarvik
