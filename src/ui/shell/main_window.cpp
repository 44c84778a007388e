#include "ui/shell/main_window.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QWindow>

namespace tarvik {

MainWindow::MainWindow(QWidget* parent) : QWidget(parent, Qt::Window | Qt::FramelessWindowHint) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_DeleteOnClose, false);
}

const char* MainWindow::actionForKey(int key, Qt::KeyboardModifiers modifiers) {
    const bool command = modifiers.testFlag(Qt::ControlModifier);
    switch (key) {
    case Qt::Key_Q:
    case Qt::Key_W:
        return command ? "appExitButtonTouched" : nullptr;
    case Qt::Key_M:
        return command ? "appMinimizeButtonTouched" : nullptr;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return "fullscreenButtonTouched";
    case Qt::Key_Space:
        return "playPauseButtonTouched";
    case Qt::Key_Escape:
        return "hideFullScreenMovie";
    case Qt::Key_Left:
        return "rewindButtonTouched";
    case Qt::Key_Right:
        return "fastForwardButtonTouched";
    case Qt::Key_Down:
        return "volumeDown";
    case Qt::Key_Up:
        return "volumeUp";
    case Qt::Key_I:
        return command ? nullptr : "markIncidentIn";
    case Qt::Key_O:
        return command ? nullptr : "markIncidentOut";
    default:
        return nullptr;
    }
}

bool MainWindow::handleKeyEvent(int key, Qt::KeyboardModifiers modifiers) {
    const char* action = actionForKey(key, modifiers);
    if (!action || !keyEventDelegate_) return false;
    const QMetaObject* meta = keyEventDelegate_->metaObject();
    // Commands take the window as their argument, like a button's action takes
    // its sender; a delegate may also offer the command without an argument.
    QByteArray withArg = QByteArray(action) + "(QObject*)";
    if (meta->indexOfMethod(withArg) >= 0)
        return QMetaObject::invokeMethod(keyEventDelegate_, action, Q_ARG(QObject*, this));
    if (meta->indexOfMethod(QByteArray(action) + "()") >= 0)
        return QMetaObject::invokeMethod(keyEventDelegate_, action);
    return false;
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (!handleKeyEvent(event->key(), event->modifiers())) QWidget::keyPressEvent(event);
}

bool MainWindow::event(QEvent* e) {
    // Shortcuts with Control reach the window as override requests first; claim
    // the ones of the key table so no child widget swallows them.
    if (e->type() == QEvent::ShortcutOverride) {
        auto* k = static_cast<QKeyEvent*>(e);
        if (k->modifiers().testFlag(Qt::ControlModifier) && actionForKey(k->key(), k->modifiers())) {
            e->accept();
            return true;
        }
    }
    return QWidget::event(e);
}

void MainWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
    // Let the window manager move the window where it can: that is the only way
    // on Wayland and it keeps snapping and edge resistance on X11.
    if (windowHandle() && windowHandle()->startSystemMove()) return;
    lastWindowDragLocation_ = event->position().toPoint();
    isMovingWindow_ = true;
}

void MainWindow::mouseMoveEvent(QMouseEvent* event) {
    if (!isMovingWindow_) return;
    // The window moves with the pointer, so the location relative to the window
    // stays where the press began; the difference is how far to move.
    const QPoint d = event->position().toPoint() - lastWindowDragLocation_;
    move(pos() + d);
}

void MainWindow::mouseReleaseEvent(QMouseEvent*) { isMovingWindow_ = false; }

void MainWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    emit resized();
}

}  // namespace tarvik
