#include "ui/telemetry/map_controller.h"

#include <QUrl>
#include <QWebEngineSettings>
#include <QWebEngineView>

#include <charconv>
#include <string>

#include "core/telemetry/orvo_clip_data.h"

namespace tarvik {

namespace {

const QString kInitialize = QStringLiteral("initialize()");
const QString kMovePrefix = QStringLiteral("MapMoveToAuto(");
const QString kRemoveLine = QStringLiteral("removePolyLine()");
const QString kAddPrefix = QStringLiteral("addPolyLine(");

// printf's "%f" (six decimals, the float widened to double) without depending
// on the process's numeric locale, which libmpv and Qt both like to touch.
void appendFixed6(std::string& out, float value) {
    char buf[64];
    auto result = std::to_chars(buf, buf + sizeof buf, static_cast<double>(value),
                                std::chars_format::fixed, 6);
    out.append(buf, result.ptr);
}

}  // namespace

MapController::MapController(QWebEngineView* webView, QObject* parent) : QObject(parent) {
    setWebView(webView);
}

QWebEngineView* MapController::webView() const { return webView_; }

void MapController::setWebView(QWebEngineView* webView) {
    if (loadConnection_) {
        disconnect(loadConnection_);
    }
    webView_ = webView;
    pageReady_ = false;
    if (webView_) {
        // A map is no browser: Back, Reload and View page source mean nothing here.
        webView_->setContextMenuPolicy(Qt::NoContextMenu);
        loadConnection_ = connect(webView_, &QWebEngineView::loadFinished, this,
                                  &MapController::onLoadFinished);
        connect(webView_, &QWebEngineView::loadStarted, this, [this] { pageReady_ = false; });
    }
}

void MapController::load() {
    pageReady_ = false;
    pending_.removeAll(kInitialize);
    pending_.prepend(kInitialize);
    if (webView_) {
        // The page lives in the resources but its tiles come from the web.
        webView_->settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
        webView_->load(QUrl(QString::fromLatin1(kPageUrl)));
    }
}

void MapController::run(const QString& script) {
    if (pageReady_ && webView_) {
        webView_->page()->runJavaScript(script, [](const QVariant&) {});
        return;
    }
    enqueue(script);
}

void MapController::enqueue(const QString& script) {
    // Only the latest position matters, and a new route replaces any route
    // queued before it, so those are dropped rather than replayed.
    if (script.startsWith(kMovePrefix)) {
        pending_.removeIf([](const QString& s) { return s.startsWith(kMovePrefix); });
    } else if (script == kRemoveLine) {
        pending_.removeIf(
            [](const QString& s) { return s == kRemoveLine || s.startsWith(kAddPrefix); });
    }
    pending_.append(script);
    while (pending_.size() > kMaxPendingScripts) {
        const qsizetype victim = pending_.front() == kInitialize ? 1 : 0;
        pending_.removeAt(victim);
    }
}

void MapController::onLoadFinished(bool ok) {
    if (ok) {
        pageReady_ = true;
        flush();
    }
    emit pageReady(ok);
}

void MapController::flush() {
    const QStringList scripts = std::exchange(pending_, {});
    for (const QString& script : scripts) {
        webView_->page()->runJavaScript(script, [](const QVariant&) {});
    }
}

void MapController::moveToLatLng(float lat, float lng) {
    run(moveScript(lat, lng));
}

void MapController::removeMapLine() {
    run(kRemoveLine);
}

void MapController::addRoute(const OrvoClipData& clipData) {
    run(routeScript(clipData));
}

QString MapController::moveScript(float lat, float lng) {
    std::string text = "MapMoveToAuto(";
    appendFixed6(text, lng);
    text += ',';
    appendFixed6(text, lat);
    text += ",-1)";
    return QString::fromStdString(text);
}

QString MapController::routeScript(const OrvoClipData& clipData) {
    std::string text = "addPolyLine('";
    // The index runs over the first gpsDataCount samples, not over the samples
    // that have a position; a run of equal positions collapses into one point,
    // and leading no-fix samples equal the initial (0, 0) and vanish too.
    const int count = clipData.gpsDataCount();
    float prevLat = 0.0f;
    float prevLng = 0.0f;
    bool first = true;
    text.reserve(32 + static_cast<size_t>(count > 0 ? count : 0) * 24);
    for (int i = 0; i < count; ++i) {
        const float lng = clipData.getGpsLng(i);
        const float lat = clipData.getGpsLat(i);
        if (lng == prevLng && lat == prevLat) {
            continue;
        }
        if (!first) {
            text += '|';
        }
        first = false;
        appendFixed6(text, lng);
        text += ',';
        appendFixed6(text, lat);
        prevLat = lat;
        prevLng = lng;
    }
    text += "', 'red', 4, 0.5)";
    return QString::fromStdString(text);
}

}  // namespace tarvik
