#include "ui/library/player/gl_picture_view.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLTextureBlitter>

#include "ui/library/player/mpv_player.h"

namespace tarvik {

GlPictureView::GlPictureView(QWidget* parent) : QOpenGLWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

GlPictureView::~GlPictureView() { releaseGl(); }

void GlPictureView::releaseGl() {
    makeCurrent();
    blitter_.reset();
    doneCurrent();
}

void GlPictureView::initializeGL() {
    // Moving the widget to another window (full screen) replaces its context.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &GlPictureView::releaseGl, Qt::UniqueConnection);
}

void GlPictureView::paintGL() {
    QOpenGLFunctions* f = context()->functions();
    f->glClearColor(0, 0, 0, 1);
    f->glClear(GL_COLOR_BUFFER_BIT);
    if (!visible_ || !player_ || !player_->textureId()) return;
    if (!blitter_) {
        blitter_ = std::make_unique<QOpenGLTextureBlitter>();
        if (!blitter_->create()) return;
    }
    const QSize out = size() * devicePixelRatioF();
    const QSize fitted = player_->pictureSize().scaled(out, Qt::KeepAspectRatio);
    const QRect target(QPoint((out.width() - fitted.width()) / 2, (out.height() - fitted.height()) / 2), fitted);
    // mpv draws an FBO top row first. A camera mounted upside down needs its
    // picture turned half a turn, not mirrored: flip the rows and the columns.
    const auto origin = flipped_ ? QOpenGLTextureBlitter::OriginBottomLeft : QOpenGLTextureBlitter::OriginTopLeft;
    QMatrix4x4 transform = QOpenGLTextureBlitter::targetTransform(target, QRect(QPoint(), out));
    if (flipped_) transform.scale(-1.0f, 1.0f);
    blitter_->bind();
    blitter_->blit(player_->textureId(), transform, origin);
    blitter_->release();
}

}  // namespace tarvik
