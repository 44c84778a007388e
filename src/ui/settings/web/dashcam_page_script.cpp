#include "ui/settings/web/dashcam_page_script.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace tarvik {

namespace {

// %1: the channel library, %2: the names as a script array, %3: the channel name.
constexpr const char* kBootstrap = R"JS(
%1
(function () {
  "use strict";
  var queue = [];
  var bridge = null;
  var dashcam = {};
  %2.forEach(function (name) {
    dashcam[name] = function () {
      var args = [];
      for (var i = 0; i < arguments.length; ++i)
        args.push(arguments[i] === undefined || arguments[i] === null ? "" : String(arguments[i]));
      if (bridge) bridge.call(name, args); else queue.push([name, args]);
    };
  });
  Object.freeze(dashcam);
  Object.defineProperty(window, "Dashcam", { value: dashcam, writable: false, configurable: false });
  // A javascript: address whose script yields text replaces the whole
  // document, and no navigation check sees it. Trusted Types hand us the
  // script first: it still runs (pages use such links), but yields nothing.
  // Every other text passes through unchanged.
  if (window.trustedTypes && trustedTypes.createPolicy) {
    try {
      trustedTypes.createPolicy("default", {
        createHTML: function (s) { return s; },
        createScriptURL: function (s) { return s; },
        createScript: function (s, type, sink) { return sink === "Location href" ? s + "\n;void 0" : s; }
      });
      var enforce = function () {
        var csp = document.createElement("meta");
        csp.httpEquiv = "Content-Security-Policy";
        csp.content = "require-trusted-types-for 'script'";
        (document.head || document.documentElement).appendChild(csp);
      };
      // Nothing to hold the policy yet while the document is being created.
      if (document.documentElement) enforce(); else document.addEventListener("DOMContentLoaded", enforce);
    } catch (e) {}
  }
  // window.open(..., "_self") would replace the page; no other window may open either.
  window.open = function () { return null; };
  var channelClass = QWebChannel;
  function open() {
    if (!(window.qt && window.qt.webChannelTransport)) { setTimeout(open, 5); return; }
    new channelClass(window.qt.webChannelTransport, function (channel) {
      bridge = channel.objects["%3"];
      var pending = queue;
      queue = [];
      pending.forEach(function (c) { bridge.call(c[0], c[1]); });
    });
  }
  open();
})();
)JS";

QString channelLibrary() {
    QFile f(QStringLiteral(":/qtwebchannel/qwebchannel.js"));
    if (!f.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(f.readAll());
}

}  // namespace

const QStringList& dashcamScriptNames() {
    static const QStringList names{
        "log",        "getCfg",       "popup",         "userNoti",  "setdate:use",     "setdate",
        "setdate:ampm", "setdate:min", "setdate:hour", "format",    "reset",           "adasreset",
        "docLoadComplete", "languageSetComplete", "clickedList", "askFormat"};
    return names;
}

QWebEngineScript dashcamPageScript() {
    const QString names =
        QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(dashcamScriptNames())).toJson(QJsonDocument::Compact));
    QWebEngineScript script;
    script.setName(QStringLiteral("dashcam-bridge"));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(false);
    script.setSourceCode(QString::fromUtf8(kBootstrap).arg(channelLibrary(), names, QString::fromUtf8(kDashcamChannelName)));
    return script;
}

QWebEngineScript navigationLockScript() {
    // In a world of the viewer's own: the page can neither see the lock nor
    // take the listener away, and the listener comes before any of the page's.
    static const char* kLock = R"JS(
(function () {
  var locked = false;
  window.tarvikLockNavigation = function () { locked = true; };
  if (!window.navigation) return;
  window.navigation.addEventListener("navigate", function (event) {
    if (!locked) return;
    // Moving to a #fragment of the same document keeps the document.
    if (event.hashChange && event.cancelable) return;
    if (event.cancelable) event.preventDefault();
  });
})();
)JS";
    QWebEngineScript script;
    script.setName(QStringLiteral("navigation-lock"));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    script.setRunsOnSubFrames(false);
    script.setSourceCode(QString::fromUtf8(kLock));
    return script;
}

}  // namespace tarvik
