#include "ui/controls/image_library.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace tarvik {

namespace {

QStringList& roots() {
    static QStringList r{QStringLiteral(":/images")};
    return r;
}

// The file behind a name: an SVG first, then a bitmap of the same name.
QString resolve(const QString& name) {
    const QString base = ImageLibrary::baseName(name);
    if (base.isEmpty()) return {};
    for (const QString& root : roots()) {
        for (const char* ext : {".svg", ".png"}) {
            QString path = root + QLatin1Char('/') + base + QLatin1String(ext);
            if (QFile::exists(path)) return path;
        }
    }
    return {};
}

QSize ownSize(const QString& path) {
    if (path.endsWith(QLatin1String(".svg"))) {
        QSvgRenderer r(path);
        return r.isValid() ? r.defaultSize() : QSize();
    }
    QPixmap p(path);
    return p.size();
}

}  // namespace

QString ImageLibrary::baseName(const QString& name) {
    if (name.endsWith(QLatin1String(".png"), Qt::CaseInsensitive) ||
        name.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive))
        return name.left(name.size() - 4);
    return name;
}

// Layouts ask for sizes often; parsing the SVG each time would be wasteful.
static QHash<QString, QSize>& sizeCache() {
    static QHash<QString, QSize> cache;
    return cache;
}

void ImageLibrary::setSearchRoots(const QStringList& r) {
    roots() = r;
    QPixmapCache::clear();
    sizeCache().clear();
}

QStringList ImageLibrary::searchRoots() { return roots(); }

bool ImageLibrary::exists(const QString& name) { return !resolve(name).isEmpty(); }

QSize ImageLibrary::imageSize(const QString& name) {
    auto it = sizeCache().constFind(name);
    if (it != sizeCache().constEnd()) return *it;
    const QString path = resolve(name);
    const QSize s = path.isEmpty() ? QSize() : ownSize(path);
    sizeCache().insert(name, s);
    return s;
}

QPixmap ImageLibrary::pixmap(const QString& name, const QSize& size) {
    const QString path = resolve(name);
    if (path.isEmpty()) return {};
    const QString key = QStringLiteral("tarvik:%1@%2x%3").arg(path).arg(size.width()).arg(size.height());
    QPixmap cached;
    if (QPixmapCache::find(key, &cached)) return cached;

    QPixmap out;
    if (path.endsWith(QLatin1String(".svg"))) {
        QSvgRenderer r(path);
        if (!r.isValid()) return {};
        QSize s = size.isValid() && !size.isEmpty() ? size : r.defaultSize();
        // Guards against a hostile file declaring an absurd canvas.
        if (s.isEmpty() || s.width() > 8192 || s.height() > 8192) return {};
        out = QPixmap(s);
        out.fill(Qt::transparent);
        QPainter p(&out);
        r.render(&p);
    } else {
        out = QPixmap(path);
        if (!out.isNull() && size.isValid() && !size.isEmpty() && size != out.size())
            out = out.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    if (!out.isNull()) QPixmapCache::insert(key, out);
    return out;
}

}  // namespace tarvik
