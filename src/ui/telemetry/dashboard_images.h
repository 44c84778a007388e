#pragma once
// The dashboard's artwork, looked up by name in the resources
// (":/images/<name>.svg"). Callers draw a stand-in of their own when a name
// is missing, so a gap in the artwork never leaves the dashboard blank.

#include <QHash>
#include <QString>

#include <memory>

class QPainter;
class QRectF;
class QSvgRenderer;

namespace tarvik {

class DashboardImages {
public:
    DashboardImages();
    ~DashboardImages();

    static QString pathFor(const QString& name);
    bool has(const QString& name);
    // Draws the image into the rectangle; false (and nothing drawn) when missing.
    bool draw(QPainter& painter, const QString& name, const QRectF& rect);

private:
    QSvgRenderer* renderer(const QString& name);

    QHash<QString, std::shared_ptr<QSvgRenderer>> cache_;
};

}  // namespace tarvik
