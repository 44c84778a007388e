#include "ui/base/pane/orvo_view_controller.h"

#include <QDialog>
#include <typeinfo>

#include "ui/base/pane/orvo_cancel_event_view.h"
#include "ui/base/prefs/notification_center.h"
#include "ui/controls/image_button.h"

namespace tarvik {

namespace {
// Exact class membership, not inheritance: a subclass of the cancel view, a
// scroll area or a group box is not treated as the plain thing. typeid rather
// than the meta-object, which a subclass without Q_OBJECT shares with its base.
template <class T>
bool isExactly(const QObject* o) {
    return o && typeid(*o) == typeid(T);
}
}  // namespace

OrvoViewController::OrvoViewController(QWidget* rootView, QObject* parent)
    : QObject(parent), view_(rootView ? rootView : new OrvoCancelEventView) {
    if (isExactly<OrvoCancelEventView>(view_.data()))
        static_cast<OrvoCancelEventView*>(view_.data())->setEvnetHandlViewController(this);
    connect(&NotificationCenter::shared(), &NotificationCenter::refreshLanguage, this,
            &OrvoViewController::refreshLanguageHandler);
    // Queued so that the override of a fully built subclass is the one called.
    refreshLanguageHandler();
}

OrvoViewController::~OrvoViewController() {
    if (view_) {
        removeImageButtonTarget(view_);
        // The view belongs to the pane unless someone else has adopted it.
        if (!view_->parent()) delete view_.data();
    }
}

void OrvoViewController::refreshLanguageHandler() {
    QMetaObject::invokeMethod(this, [this] { applyLanguageSettings(); }, Qt::QueuedConnection);
}

void OrvoViewController::restoreEventHandler() {
    if (isExactly<OrvoCancelEventView>(view_.data()))
        static_cast<OrvoCancelEventView*>(view_.data())->restoreEventHandler();
}

void OrvoViewController::stopModalWithCode(int code) {
    if (!view_) return;
    if (auto* dialog = qobject_cast<QDialog*>(view_->window())) dialog->done(code);
}

void OrvoViewController::removeImageButtonTarget(QWidget* view) {
    if (!view) return;
    for (QWidget* child : view->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (isExactly<ImageButton>(child))
            static_cast<ImageButton*>(child)->removeTarget();
        else if (isExactly<QWidget>(child))
            removeImageButtonTarget(child);
    }
}

}  // namespace tarvik
