#pragma once
// The viewer's artwork by name: ":/images/<name>.svg", rendered as a pixmap.
// Names may carry the ".png" of the original artwork; it maps to ".svg".

#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>

namespace tarvik {

class ImageLibrary {
public:
    // The image at its own size, or at size when one is given. A missing or
    // unreadable image gives a null pixmap.
    static QPixmap pixmap(const QString& name, const QSize& size = QSize());
    // The image's own size; empty when it does not exist.
    static QSize imageSize(const QString& name);
    static bool exists(const QString& name);
    // The name without a trailing ".png" or ".svg".
    static QString baseName(const QString& name);

    // Folders searched in order; ":/images" by default.
    static void setSearchRoots(const QStringList& roots);
    static QStringList searchRoots();
};

}  // namespace tarvik
