#include "ui/settings/web/web_dashcam.h"

#include <QMetaObject>

#include "ui/settings/web/web_setting_window_controller.h"

namespace tarvik {

void WebDashcam::call(const QString& name, const QStringList& args) {
    WebSettingWindowController* c = controller_;
    if (!c) return;
    const QString arg = args.value(0);
    if (name == u"userNoti") {
        c->showPopup(arg);
    } else if (name == u"setdate:use") {
        c->setDateUse(arg == u"1");
    } else if (name == u"setdate") {
        c->setDate(QString(arg).replace(u'/', u','));
    } else if (name == u"setdate:min") {
        c->setDateMin(arg);
    } else if (name == u"setdate:hour") {
        c->setDateHour(arg);
    } else if (name == u"adasreset") {
        c->adasreset();
    } else if (name == u"docLoadComplete") {
        // Act once the page's script has returned, never inside its call.
        QMetaObject::invokeMethod(c, &WebSettingWindowController::startWebBrowserConnection, Qt::QueuedConnection);
    } else if (name == u"languageSetComplete") {
        QMetaObject::invokeMethod(c, [c] { c->showTabs(false); }, Qt::QueuedConnection);
    } else if (name == u"clickedList") {
        c->clickedList();
    } else if (name == u"askFormat") {
        c->askFormat();
    }
    // log, getCfg, popup, setdate:ampm, format and reset do nothing: the
    // configuration is pushed to the page, never pulled.
}

}  // namespace tarvik
