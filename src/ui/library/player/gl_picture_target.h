#pragma once
// Pictures drawn by mpv through OpenGL into framebuffer textures of the
// player's own context.

#include <memory>

#include "ui/library/player/picture_target.h"

class QOffscreenSurface;
class QOpenGLContext;
class QOpenGLFramebufferObject;

namespace tarvik {

class GlPictureTarget : public PictureTarget {
public:
    static std::unique_ptr<PictureTarget> create(mpv_handle* mpv);
    ~GlPictureTarget() override;

    bool render(QSize size, bool aside) override;
    void showAside() override;
    bool hasPicture() const override;
    QSize pictureSize() const override;
    unsigned textureId() const override;

private:
    GlPictureTarget() = default;

    std::unique_ptr<QOpenGLContext> gl_;
    std::unique_ptr<QOffscreenSurface> surface_;
    std::unique_ptr<QOpenGLFramebufferObject> fbo_;
    std::unique_ptr<QOpenGLFramebufferObject> heldFbo_;
};

}  // namespace tarvik
