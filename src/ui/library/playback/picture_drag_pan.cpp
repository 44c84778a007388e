#include "ui/library/playback/picture_drag_pan.h"

#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>

namespace tarvik {

PictureDragPan::PictureDragPan(QScrollArea* scrollView, QWidget* picture, QObject* parent)
    : QObject(parent), scrollView_(scrollView), picture_(picture) {
    picture->installEventFilter(this);
}

bool PictureDragPan::canPan() const {
    // In full screen the picture lives in another window, outside the scroll area.
    return scrollView_ && picture_ && scrollView_->isAncestorOf(picture_) &&
           (scrollView_->horizontalScrollBar()->maximum() > 0 || scrollView_->verticalScrollBar()->maximum() > 0);
}

bool PictureDragPan::eventFilter(QObject* watched, QEvent* event) {
    if (watched != picture_) return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        auto* e = static_cast<QMouseEvent*>(event);
        if (e->button() != Qt::LeftButton || !canPan()) return false;
        panning_ = true;
        last_ = e->globalPosition().toPoint();
        picture_->setCursor(Qt::ClosedHandCursor);
        return true;
    }
    case QEvent::MouseMove: {
        if (!panning_) return false;
        auto* e = static_cast<QMouseEvent*>(event);
        const QPoint now = e->globalPosition().toPoint();
        const QPoint d = now - last_;
        last_ = now;
        // The picture follows the pointer, so the view moves the other way.
        scrollView_->horizontalScrollBar()->setValue(scrollView_->horizontalScrollBar()->value() - d.x());
        scrollView_->verticalScrollBar()->setValue(scrollView_->verticalScrollBar()->value() - d.y());
        return true;
    }
    case QEvent::MouseButtonRelease: {
        auto* e = static_cast<QMouseEvent*>(event);
        if (!panning_ || e->button() != Qt::LeftButton) return false;
        panning_ = false;
        picture_->unsetCursor();
        return true;
    }
    default:
        return false;
    }
}

}  // namespace tarvik
