#pragma once
// Bridge between the dashboard and the map page inside a web view: loads the
// page from the resources and calls its script functions with text commands.
// Commands issued before the page has finished loading are held back and run,
// in order, once it has; a page that never loads cannot make the backlog grow
// without bound, because superseded commands are dropped.

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

class QWebEngineView;

namespace tarvik {

class OrvoClipData;

class MapController : public QObject {
    Q_OBJECT
public:
    static constexpr const char* kPageUrl = "qrc:/map/mapview.html";
    static constexpr int kMaxPendingScripts = 64;

    explicit MapController(QWebEngineView* webView, QObject* parent = nullptr);

    QWebEngineView* webView() const;
    void setWebView(QWebEngineView* webView);

    // Loads the page and runs "initialize()" as soon as it is there.
    void load();
    // Evaluates the script in the page; its result is ignored.
    void run(const QString& script);

    // Centres the map on the position (the page takes longitude first).
    void moveToLatLng(float lat, float lng);
    void removeMapLine();
    void addRoute(const OrvoClipData& clipData);

    bool isPageReady() const { return pageReady_; }
    const QStringList& pendingScripts() const { return pending_; }

    // The exact command texts, exposed so that they can be checked without a page.
    static QString moveScript(float lat, float lng);
    static QString routeScript(const OrvoClipData& clipData);

signals:
    // The page has loaded and the commands held back until then have been sent.
    void pageReady(bool ok);

private:
    void onLoadFinished(bool ok);
    void enqueue(const QString& script);
    void flush();

    QPointer<QWebEngineView> webView_;
    QMetaObject::Connection loadConnection_;
    QStringList pending_;
    bool pageReady_ = false;
};

}  // namespace tarvik
