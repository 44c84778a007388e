#include "ui/base/pane/setting_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QApplication>
#include <QVBoxLayout>
#include <cmath>

#include "core/app/viewer_preferences.h"
#include "ui/base/pane/orvo_view_controller.h"
#include "ui/base/prefs/notification_center.h"
#include "ui/base/prefs/qsettings_store.h"

namespace tarvik {

SettingWindow::SettingWindow(QWidget* parent) : QDialog(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    // Return confirms the pane whichever of its controls has the focus. A key
    // press would not climb to this window: the pane's own view takes every
    // key for its Escape, and a focused button or list may take Return itself.
    qApp->installEventFilter(this);
}

SettingWindow::~SettingWindow() { qApp->removeEventFilter(this); }

bool SettingWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !keyDelegate_ || !isVisible() || !watched->isWidgetType())
        return QDialog::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    // An open list or menu keeps Return to choose its item.
    if ((key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) || QApplication::activePopupWidget() ||
        static_cast<QWidget*>(watched)->window() != this)
        return QDialog::eventFilter(watched, event);
    keyDelegate_->keyDown(key);
    return true;
}

QRect SettingWindow::centredFrame(const QRect& parentFrame, const QSize& paneSize) {
    const int w = std::max(0, paneSize.width());
    const int h = std::max(0, paneSize.height());
    const double px = parentFrame.isValid() ? parentFrame.x() : 0.0;
    const double py = parentFrame.isValid() ? parentFrame.y() : 0.0;
    const double pw = parentFrame.isValid() ? parentFrame.width() : 0.0;
    const double ph = parentFrame.isValid() ? parentFrame.height() : 0.0;
    const double x = px + pw * 0.5 - w * 0.5;
    const double y = py + ph * 0.5 - h * 0.5;
    return QRect(static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y)), w, h);
}

int SettingWindow::showModalWindow(QWidget* parentWindow, QWidget* paneView, OrvoViewController* paneController,
                                   bool showTitleBar) {
    QWidget* parentTop = parentWindow ? parentWindow->window() : nullptr;
    pWindowController_ = parentTop;
    const QSize paneSize = paneView ? paneView->size() : QSize(0, 0);
    const QRect parentFrame = parentTop ? parentTop->frameGeometry() : QRect();

    // Transient for the parent so the window manager keeps it in front; only
    // for the run, so the parent never deletes a window its opener owns.
    QWidget* const ownParent = parentWidget();
    if (parentTop && ownParent != parentTop) setParent(parentTop, windowFlags());
    setWindowFlag(Qt::FramelessWindowHint, !showTitleBar);
    setWindowModality(Qt::ApplicationModal);
    setKeyEventDelegate(paneController);

    // The geometry is the content area: with a title bar the window manager
    // adds the bar above it, so the content stays centred either way.
    const QRect frame = centredFrame(parentFrame, paneSize);
    if (paneView) {
        layout()->addWidget(paneView);
        paneView->show();
    }
    setGeometry(frame);
    setFixedSize(frame.size());
    if (paneView) QMetaObject::invokeMethod(paneView, [paneView] { paneView->setFocus(Qt::OtherFocusReason); },
                                            Qt::QueuedConnection);

    const int code = exec();
    hide();
    // The pane outlives this window: hand its view back.
    if (paneView && paneView->parentWidget() == this) {
        layout()->removeWidget(paneView);
        paneView->setParent(nullptr);
    }
    if (parentWidget() != ownParent) setParent(ownParent, windowFlags());
    return code;
}

void SettingWindow::keyPressEvent(QKeyEvent* event) {
    // Never QDialog's own handling: Escape must reach the pane, not reject.
    if (keyDelegate_) keyDelegate_->keyDown(event);
    event->accept();
}

void SettingWindow::closeEvent(QCloseEvent* event) {
    // Closing from the title bar is the pane's cancel, so the pane decides the code.
    event->ignore();
    if (keyDelegate_) keyDelegate_->cancelButtonTouched();
}

void SettingWindow::languageChange(const QString& code) {
    PreferenceStore& store = store_ ? *store_ : QSettingsStore::shared();
    ViewerPreferences(store, [] { NotificationCenter::shared().postRefreshLanguage(); })
        .languageChange(code.toStdString());
}

void SettingWindow::forwardToParent(const char* slot) {
    // A parent without the handler is simply not told.
    if (!pWindowController_) return;
    const QByteArray signature = QByteArray(slot) + "()";
    if (pWindowController_->metaObject()->indexOfMethod(signature.constData()) < 0) return;
    QMetaObject::invokeMethod(pWindowController_, slot, Qt::DirectConnection);
}

void SettingWindow::languageChangeToEnglish() {
    forwardToParent("languageChangeToEnglish");
    languageChange(QStringLiteral("en"));
}

void SettingWindow::languageChangeToFrench() {
    forwardToParent("languageChangeToFrench");
    languageChange(QStringLiteral("fr"));
}

void SettingWindow::languageChangeToPortuguese() {
    forwardToParent("languageChangeToPortuguese");
    languageChange(QStringLiteral("pt"));
}

void SettingWindow::languageChangeToJapanese() {
    forwardToParent("languageChangeToJapanese");
    languageChange(QStringLiteral("ja"));
}

void SettingWindow::markRadio(QAction* action) {
    if (!action) return;
    for (QObject* o : action->associatedObjects()) {
        auto* menu = qobject_cast<QMenu*>(o);
        if (!menu) continue;
        for (QAction* item : menu->actions()) {
            item->setCheckable(true);
            item->setChecked(item == action);
        }
    }
}

}  // namespace tarvik
