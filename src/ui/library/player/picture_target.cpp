#include "ui/library/player/picture_target.h"

#include <mpv/render.h>

#include "ui/base/graphics/software_pictures.h"
#include "ui/library/player/gl_picture_target.h"
#include "ui/library/player/software_picture_target.h"

namespace tarvik {

PictureTarget::~PictureTarget() = default;

std::unique_ptr<PictureTarget> PictureTarget::create(mpv_handle* mpv, UpdateCallback onUpdate, void* context) {
    std::unique_ptr<PictureTarget> target;
    if (softwarePictures()) target = SoftwarePictureTarget::create(mpv);
    else target = GlPictureTarget::create(mpv);
    if (target) mpv_render_context_set_update_callback(target->render_, onUpdate, context);
    return target;
}

uint64_t PictureTarget::update() { return render_ ? mpv_render_context_update(render_) : 0; }

void PictureTarget::freeRenderContext() {
    if (!render_) return;
    mpv_render_context_set_update_callback(render_, nullptr, nullptr);
    mpv_render_context_free(render_);
    render_ = nullptr;
}

}  // namespace tarvik
