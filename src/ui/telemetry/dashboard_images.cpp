#include "ui/telemetry/dashboard_images.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace tarvik {

DashboardImages::DashboardImages() = default;
DashboardImages::~DashboardImages() = default;

QString DashboardImages::pathFor(const QString& name) {
    return QStringLiteral(":/images/%1.svg").arg(name);
}

QSvgRenderer* DashboardImages::renderer(const QString& name) {
    auto it = cache_.find(name);
    if (it == cache_.end()) {
        std::shared_ptr<QSvgRenderer> r;
        const QString path = pathFor(name);
        if (QFile::exists(path)) {
            r = std::make_shared<QSvgRenderer>(path);
            if (!r->isValid()) {
                r.reset();
            }
        }
        // A miss is cached too, so a missing image costs one lookup, not one per frame.
        it = cache_.insert(name, r);
    }
    return it->get();
}

bool DashboardImages::has(const QString& name) {
    return renderer(name) != nullptr;
}

bool DashboardImages::draw(QPainter& painter, const QString& name, const QRectF& rect) {
    QSvgRenderer* r = renderer(name);
    if (!r) {
        return false;
    }
    r->render(&painter, rect);
    return true;
}

}  // namespace tarvik
