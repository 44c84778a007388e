#include "ui/base/graphics/software_pictures.h"

#include <QByteArray>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>
#include <QString>

namespace tarvik {

namespace {

bool rendererIsSoftware() {
    QOpenGLContext context;
    if (!context.create()) return true;  // no OpenGL at all: still a picture
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!context.makeCurrent(&surface)) return true;
    const auto* name = reinterpret_cast<const char*>(context.functions()->glGetString(GL_RENDERER));
    const QString renderer = QString::fromLatin1(name ? name : "").toLower();
    context.doneCurrent();
    for (const char* rasteriser : {"llvmpipe", "softpipe", "swrast", "software"})
        if (renderer.contains(QLatin1String(rasteriser))) return true;
    return renderer.isEmpty();
}

}  // namespace

bool softwarePictures() {
    static const bool software = [] {
        const QByteArray chosen = qgetenv("TARVIK_PICTURES");
        if (chosen == "software") return true;
        if (chosen == "opengl") return false;
        return rendererIsSoftware();
    }();
    return software;
}

void prepareWebViews() {
    if (softwarePictures()) QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

}  // namespace tarvik
