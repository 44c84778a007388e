#pragma once
// The web page that hosts a camera's settings editor: it may not open
// windows, and once the viewer has connected to it, it may not navigate away
// (it would lose the settings the viewer handed it). Moving within the same
// document (a #fragment) stays allowed.

#include <QWebEnginePage>

namespace tarvik {

class CardFolderRequestGuard;

class WebSettingPage : public QWebEnginePage {
    Q_OBJECT
public:
    WebSettingPage(QWebEngineProfile* profile, const CardFolderRequestGuard& guard, QObject* parent = nullptr);

    void blockNavigation();

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) override {}

private:
    const CardFolderRequestGuard& guard_;
    bool navigationBlocked_ = false;
};

}  // namespace tarvik
