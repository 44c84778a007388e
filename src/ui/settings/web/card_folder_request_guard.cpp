#include "ui/settings/web/card_folder_request_guard.h"

#include <QFileInfo>

namespace tarvik {

namespace {
QString canonicalFolder(const QString& folder) {
    const QString path = QFileInfo(folder).canonicalFilePath();
    return path.isEmpty() ? QString() : path + u'/';
}
}  // namespace

CardFolderRequestGuard::CardFolderRequestGuard(const QString& folder, QObject* parent)
    : QWebEngineUrlRequestInterceptor(parent), root_(canonicalFolder(folder)) {}

bool CardFolderRequestGuard::allows(const QUrl& url) const {
    if (root_.isEmpty() || !url.isLocalFile()) return false;
    const QString path = QFileInfo(url.toLocalFile()).canonicalFilePath();
    return !path.isEmpty() && path.startsWith(root_);
}

void CardFolderRequestGuard::interceptRequest(QWebEngineUrlRequestInfo& info) {
    if (!allows(info.requestUrl())) info.block(true);
}

}  // namespace tarvik
