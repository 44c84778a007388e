#include "ui/settings/web/web_setting_page.h"

#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

#include "ui/settings/web/card_folder_request_guard.h"
#include "ui/settings/web/dashcam_page_script.h"

namespace tarvik {

WebSettingPage::WebSettingPage(QWebEngineProfile* profile, const CardFolderRequestGuard& guard, QObject* parent)
    : QWebEnginePage(profile, parent), guard_(guard) {
    QWebEngineSettings* s = settings();
    s->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    s->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    s->setAttribute(QWebEngineSettings::PluginsEnabled, false);
    s->setAttribute(QWebEngineSettings::JavascriptCanAccessClipboard, false);
    s->setAttribute(QWebEngineSettings::AllowRunningInsecureContent, false);
    s->setAttribute(QWebEngineSettings::AllowGeolocationOnInsecureOrigins, false);
    s->setAttribute(QWebEngineSettings::ScreenCaptureEnabled, false);
    s->setAttribute(QWebEngineSettings::PdfViewerEnabled, false);
    scripts().insert(navigationLockScript());
}

void WebSettingPage::blockNavigation() {
    navigationBlocked_ = true;
    runJavaScript(QString::fromUtf8(kNavigationLockCall), QWebEngineScript::ApplicationWorld);
}

bool WebSettingPage::acceptNavigationRequest(const QUrl& target, NavigationType, bool isMainFrame) {
    if (!guard_.allows(target)) return false;
    if (isMainFrame && navigationBlocked_)
        return target.adjusted(QUrl::RemoveFragment) == url().adjusted(QUrl::RemoveFragment) &&
               target.hasFragment();
    return true;
}

}  // namespace tarvik
