#include "ui/library/playback/zoom_controller.h"

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "ui/controls/image_button.h"

namespace tarvik {

ZoomController::ZoomController(QScrollArea* scrollView, QWidget* document, ImageButton* panButton, QObject* parent)
    : QObject(parent), scrollView_(scrollView), document_(document), panButton_(panButton) {
    scrollView_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollView_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The player keeps the size of its scroll area (times the scale) as the window resizes.
    scrollView_->installEventFilter(this);
    connect(scrollView_->horizontalScrollBar(), &QScrollBar::valueChanged, this, &ZoomController::boundDidChange);
    connect(scrollView_->verticalScrollBar(), &QScrollBar::valueChanged, this, &ZoomController::boundDidChange);
}

double ZoomController::scaledUp(double scale) { return std::min(scale + kStep, kMaxScale); }

double ZoomController::scaledDown(double scale) { return std::max(scale - kStep, kMinScale); }

void ZoomController::videoScaleUpButtonTouched() {
    videoScale_ = scaledUp(videoScale_);
    changeVideoScale(videoScale_);
}

void ZoomController::videoScaleDownButtonTouched() {
    videoScale_ -= kStep;
    if (videoScale_ < kMinScale) {
        videoScale_ = kMinScale;
        touchedBigMovieScroll_ = false;
    }
    changeVideoScale(videoScale_);
}

void ZoomController::resetVideoScaleButtonTouched() {
    videoScale_ = kMinScale;
    touchedBigMovieScroll_ = false;
    changeVideoScale(videoScale_);
}

void ZoomController::changeVideoScale(double scale) {
    QMetaObject::invokeMethod(this, [this, scale] { applyVideoScale(scale); }, Qt::QueuedConnection);
}

void ZoomController::enterScrollMode(bool) {
    enableBigMovieViewScroll_ = !enableBigMovieViewScroll_;
    if (panButton_) {
        panButton_->setAllowAutoMouseEventImage(!enableBigMovieViewScroll_);
        panButton_->setImage(enableBigMovieViewScroll_ ? "pan_2" : "pan_1");
    }
    changeVideoScale(videoScale_);
}

void ZoomController::resetForNewClip() {
    videoScale_ = kMinScale;
    enableBigMovieViewScroll_ = true;
    touchedBigMovieScroll_ = false;
    enterScrollMode(false);
}

QPoint ZoomController::centredScrollPoint() const {
    // Qt's scroll values are the top-left corner of the visible area, so the
    // centre is half the visible size before the document's centre on both axes.
    const QSize visible = scrollView_->viewport()->size();
    const double x = document_->width() / 2.0 - visible.width() / 2.0;
    const double y = document_->height() / 2.0 - visible.height() / 2.0;
    // A document no larger than the visible area sits at 0, where the bars stop.
    return {std::max(0, static_cast<int>(x + 0.5)), std::max(0, static_cast<int>(y + 0.5))};
}

void ZoomController::applyVideoScale(double scale) {
    if (isFullScreenMode_ && isFullScreenMode_()) return;
    adjusting_ = true;
    const QSize frame = scrollView_->size();
    document_->resize(static_cast<int>(frame.width() * scale), static_cast<int>(frame.height() * scale));
    const bool bars = scale > 1.0 && enableBigMovieViewScroll_;
    scrollView_->setHorizontalScrollBarPolicy(bars ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    scrollView_->setVerticalScrollBarPolicy(bars ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    if (!touchedBigMovieScroll_) {
        const QPoint centre = centredScrollPoint();
        scrollView_->horizontalScrollBar()->setValue(centre.x());
        scrollView_->verticalScrollBar()->setValue(centre.y());
    }
    adjusting_ = false;
}

void ZoomController::boundDidChange() {
    // Only the user's own scrolling counts as a pan, not the moves made while zooming.
    if (adjusting_) return;
    const QPoint centre = centredScrollPoint();
    touchedBigMovieScroll_ = !(scrollView_->horizontalScrollBar()->value() == centre.x() &&
                               scrollView_->verticalScrollBar()->value() == centre.y());
}

bool ZoomController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == scrollView_ && event->type() == QEvent::Resize) changeVideoScale(videoScale_);
    return false;
}

}  // namespace tarvik
