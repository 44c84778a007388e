#pragma once
// A camera's settings page comes from the card and is not trusted: every
// request it makes (scripts, images, fetches, frames) must be a file under
// its own html folder. Network requests and every other file are refused.

#include <QString>
#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

namespace tarvik {

class CardFolderRequestGuard : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT
public:
    // folder: the html folder the page may read from.
    explicit CardFolderRequestGuard(const QString& folder, QObject* parent = nullptr);

    // Runs on the engine's IO thread; reads only the constant root.
    void interceptRequest(QWebEngineUrlRequestInfo& info) override;

    // A local file whose real path (links resolved) lies inside the folder.
    bool allows(const QUrl& url) const;

private:
    const QString root_;  // canonical, with a trailing slash; empty when the folder is missing
};

}  // namespace tarvik
