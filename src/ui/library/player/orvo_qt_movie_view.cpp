#include "ui/library/player/orvo_qt_movie_view.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "ui/library/player/orvo_av_view.h"

namespace tarvik {

OrvoQTMovieView::OrvoQTMovieView(QWidget* parent) : VideoSurface(parent) { setMouseTracking(true); }

void OrvoQTMovieView::setMovieSource(OrvoAVView* view) {
    disconnect(sourceConnection_);
    source_ = view;
    if (view) sourceConnection_ = connect(view, &OrvoAVView::pictureChanged, this, &OrvoQTMovieView::followSource);
    followSource();
}

void OrvoQTMovieView::followSource() {
    showPlayer(source_ ? source_->player() : nullptr);
    setPictureVisible(source_ != nullptr);
    setPictureFlipped(source_ && source_->upsideDown());
}

void OrvoQTMovieView::mousePressEvent(QMouseEvent* event) { event->accept(); }

void OrvoQTMovieView::wheelEvent(QWheelEvent* event) { event->accept(); }

void OrvoQTMovieView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::RightButton && delegate_) delegate_->fullscreenButtonTouched(this);
}

void OrvoQTMovieView::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (!delegate_ || event->buttons() != Qt::NoButton) return;  // drags are swallowed
    // Height above the window's bottom edge against three quarters of the view.
    const int fromBottom = window()->height() - mapTo(window(), event->position().toPoint()).y();
    if (fromBottom > 0.75 * height()) delegate_->showFullscreenMovieControlWindow();
    else delegate_->hideFullscreenMovieControlWindow();
}

void OrvoQTMovieView::keyPressEvent(QKeyEvent* event) { event->ignore(); }

}  // namespace tarvik
