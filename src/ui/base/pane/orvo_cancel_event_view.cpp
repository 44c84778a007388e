#include "ui/base/pane/orvo_cancel_event_view.h"

#include <QDateTime>
#include <QKeyEvent>

#include "ui/base/pane/orvo_view_controller.h"

namespace tarvik {

namespace {
// The pane in front: the one whose cancelButtonTouched() Escape calls.
QPointer<OrvoViewController>& currentHandler() {
    static QPointer<OrvoViewController> handler;
    return handler;
}

// A second Escape within this time (a key bounce, an impatient double press)
// must not cancel the pane that appears underneath as well.
constexpr double kEscapeDebounceSeconds = 0.5;
}  // namespace

OrvoCancelEventView::OrvoCancelEventView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    clock_ = [] { return QDateTime::currentMSecsSinceEpoch() / 1000.0; };
}

void OrvoCancelEventView::setEvnetHandlViewController(OrvoViewController* controller) {
    previousHandler_ = currentHandler();
    currentHandler() = controller;
}

void OrvoCancelEventView::restoreEventHandler() { currentHandler() = previousHandler_; }

OrvoViewController* OrvoCancelEventView::currentEventHandler() { return currentHandler(); }

void OrvoCancelEventView::keyPressEvent(QKeyEvent* event) {
    // Every key stops here; only Escape does something.
    event->accept();
    if (event->key() != Qt::Key_Escape) return;
    const double now = clock_();
    if (now - lastESCDate_ <= kEscapeDebounceSeconds) return;
    QPointer<OrvoViewController> handler = currentHandler();
    if (!handler) return;
    lastESCDate_ = now;
    QMetaObject::invokeMethod(
        handler, [handler] { if (handler) handler->cancelButtonTouched(); }, Qt::QueuedConnection);
}

}  // namespace tarvik
