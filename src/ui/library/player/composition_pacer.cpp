#include "ui/library/player/composition_pacer.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace tarvik {

namespace {

// Longer than a frame period at 25 frames a second: while pictures come,
// nothing waits for this; when they stop, the window is not held back longer.
constexpr int kLatestMs = 45;

}  // namespace

CompositionPacer::CompositionPacer(QWidget* window, std::function<bool(QWidget*)> playing)
    : QObject(window), window_(window), playing_(std::move(playing)), latest_(new QTimer(this)) {
    setObjectName(QStringLiteral("compositionPacer"));
    latest_->setSingleShot(true);
    connect(latest_, &QTimer::timeout, this, &CompositionPacer::release);
    window->installEventFilter(this);
}

CompositionPacer* CompositionPacer::of(QWidget* window, const std::function<bool(QWidget*)>& playing) {
    if (!window) return nullptr;
    if (auto* p = window->findChild<CompositionPacer*>(QStringLiteral("compositionPacer"), Qt::FindDirectChildrenOnly))
        return p;
    return new CompositionPacer(window, playing);
}

void CompositionPacer::compose() {
    passing_ = true;
    release();
}

void CompositionPacer::release() {
    latest_->stop();
    if (!owed_) return;
    owed_ = false;
    passing_ = true;
    // The window's own request was held back; it does not ask again until
    // it has been composed.
    QCoreApplication::postEvent(window_, new QEvent(QEvent::UpdateRequest), Qt::LowEventPriority);
}

bool CompositionPacer::eventFilter(QObject* watched, QEvent* event) {
    if (watched != window_ || event->type() != QEvent::UpdateRequest) return false;
    if (passing_ || !playing_(window_)) {
        passing_ = false;
        owed_ = false;
        latest_->stop();
        return false;
    }
    owed_ = true;
    if (!latest_->isActive()) latest_->start(kLatestMs);
    return true;
}

}  // namespace tarvik
