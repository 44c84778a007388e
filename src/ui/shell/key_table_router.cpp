#include "ui/shell/key_table_router.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>

#include "ui/shell/main_window.h"

namespace tarvik {

KeyTableRouter::KeyTableRouter(MainWindow* window, QAbstractItemView* list, std::function<void()> playFromList,
                               QObject* parent)
    : QObject(parent), window_(window), list_(list), playFromList_(std::move(playFromList)) {
    qApp->installEventFilter(this);
}

KeyTableRouter::~KeyTableRouter() { qApp->removeEventFilter(this); }

bool KeyTableRouter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !window_ || !watched->isWidgetType()) return false;
    auto* widget = static_cast<QWidget*>(watched);
    // Open menus and other windows (dialogs, the full-screen window) keep their own keys.
    if (widget->window() != window_ || QApplication::activePopupWidget() || QApplication::activeModalWidget())
        return false;
    auto* key = static_cast<QKeyEvent*>(event);
    if (!MainWindow::actionForKey(key->key(), key->modifiers())) return false;
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (enter && list_ && (widget == list_ || list_->isAncestorOf(widget))) {
        if (!key->isAutoRepeat() && playFromList_) playFromList_();
        return true;
    }
    window_->handleKeyEvent(key->key(), key->modifiers());
    return true;
}

}  // namespace tarvik
