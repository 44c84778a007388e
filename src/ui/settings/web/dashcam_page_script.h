#pragma once
// The script put into the camera's page before any of the page's own script
// runs: it defines window.Dashcam with every name the page may call (some
// contain a colon, so they are reached as Dashcam["setdate:use"]). A call made
// before the web channel is open is kept and delivered, in order, as soon as
// it opens. Each call reaches the viewer as (name, arguments as strings).

#include <QString>
#include <QStringList>
#include <QWebEngineScript>

namespace tarvik {

// The name the bridge object is registered under in the web channel.
inline constexpr const char* kDashcamChannelName = "tarvikDashcam";

// The names the page can call on Dashcam.
const QStringList& dashcamScriptNames();

QWebEngineScript dashcamPageScript();

// Refuses every navigation of the page once kNavigationLockCall has run in
// the application world: a camera page may send itself to about:blank or a
// blob, which never reach the page's navigation check.
QWebEngineScript navigationLockScript();
inline constexpr const char* kNavigationLockCall = "window.tarvikLockNavigation && window.tarvikLockNavigation()";

}  // namespace tarvik
