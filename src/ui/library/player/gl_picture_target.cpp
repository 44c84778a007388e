#include "ui/library/player/gl_picture_target.h"

#include <QCoreApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <mpv/render_gl.h>

#include "ui/library/player/scoped_gl_current.h"

namespace tarvik {

namespace {

// Pictures are drawn in the player's own context and shown by whichever
// widget hosts the player, so every GL context of the program must share
// objects. The attribute only takes effect before QApplication exists.
const bool kShareContexts = [] {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    return true;
}();

void* glProcAddress(void*, const char* name) {
    QOpenGLContext* ctx = QOpenGLContext::currentContext();
    return ctx ? reinterpret_cast<void*>(ctx->getProcAddress(name)) : nullptr;
}

}  // namespace

std::unique_ptr<PictureTarget> GlPictureTarget::create(mpv_handle* mpv) {
    (void)kShareContexts;
    QOpenGLContext* share = QOpenGLContext::globalShareContext();
    if (!share) return nullptr;
    std::unique_ptr<GlPictureTarget> t(new GlPictureTarget);
    t->gl_ = std::make_unique<QOpenGLContext>();
    t->gl_->setShareContext(share);
    t->gl_->setFormat(share->format());
    if (!t->gl_->create()) return nullptr;
    t->surface_ = std::make_unique<QOffscreenSurface>();
    t->surface_->setFormat(t->gl_->format());
    t->surface_->create();
    ScopedGlCurrent current(t->gl_.get(), t->surface_.get());
    if (!current.ok()) return nullptr;
    mpv_opengl_init_params glInit{&glProcAddress, nullptr};
    mpv_render_param params[] = {{MPV_RENDER_PARAM_API_TYPE, const_cast<char*>(MPV_RENDER_API_TYPE_OPENGL)},
                                 {MPV_RENDER_PARAM_OPENGL_INIT_PARAMS, &glInit},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    if (mpv_render_context_create(&t->render_, mpv, params) < 0) {
        t->render_ = nullptr;
        return nullptr;
    }
    return t;
}

GlPictureTarget::~GlPictureTarget() {
    if (!gl_) return;
    ScopedGlCurrent current(gl_.get(), surface_.get());
    freeRenderContext();
    fbo_.reset();
    heldFbo_.reset();
}

bool GlPictureTarget::render(QSize size, bool aside) {
    ScopedGlCurrent current(gl_.get(), surface_.get());
    if (!current.ok()) return false;
    QOpenGLFunctions* f = gl_->functions();
    std::unique_ptr<QOpenGLFramebufferObject>& fbo = aside ? heldFbo_ : fbo_;
    if (!fbo || fbo->size() != size) {
        fbo = std::make_unique<QOpenGLFramebufferObject>(size);
        // Views are usually smaller than the video: filter when scaling down.
        f->glBindTexture(GL_TEXTURE_2D, fbo->texture());
        f->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        f->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
        f->glBindTexture(GL_TEXTURE_2D, 0);
    }
    mpv_opengl_fbo target{int(fbo->handle()), size.width(), size.height(), 0};
    int flip = 0;
    // Due already (see video-timing-offset): the interface thread never waits here.
    int block = 0;
    mpv_render_param params[] = {{MPV_RENDER_PARAM_OPENGL_FBO, &target},
                                 {MPV_RENDER_PARAM_FLIP_Y, &flip},
                                 {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &block},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    mpv_render_context_render(render_, params);
    // The texture is read by the widgets' contexts next.
    f->glFlush();
    return true;
}

void GlPictureTarget::showAside() { std::swap(fbo_, heldFbo_); }
bool GlPictureTarget::hasPicture() const { return fbo_ != nullptr; }
QSize GlPictureTarget::pictureSize() const { return fbo_ ? fbo_->size() : QSize(); }
unsigned GlPictureTarget::textureId() const { return fbo_ ? fbo_->texture() : 0; }

}  // namespace tarvik
