#include "ui/library/player/software_picture_target.h"

#include <mpv/render.h>

#include <cstdlib>

namespace tarvik {

namespace {

// mpv's scalers take their fast paths on rows that start on 64 bytes.
constexpr std::size_t kAlign = 64;

QImage alignedImage(QSize size) {
    const std::size_t stride = (std::size_t(size.width()) * 4 + kAlign - 1) / kAlign * kAlign;
    void* bytes = std::aligned_alloc(kAlign, stride * std::size_t(size.height()));
    if (!bytes) return {};
    // 0xffRRGGBB words: blue, green, red, then the byte mpv leaves as it likes.
    return QImage(static_cast<uchar*>(bytes), size.width(), size.height(), qsizetype(stride), QImage::Format_RGB32,
                  [](void* p) { std::free(p); }, bytes);
}

}  // namespace

std::unique_ptr<PictureTarget> SoftwarePictureTarget::create(mpv_handle* mpv) {
    std::unique_ptr<SoftwarePictureTarget> t(new SoftwarePictureTarget);
    mpv_render_param params[] = {{MPV_RENDER_PARAM_API_TYPE, const_cast<char*>(MPV_RENDER_API_TYPE_SW)},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    if (mpv_render_context_create(&t->render_, mpv, params) < 0) {
        t->render_ = nullptr;
        return nullptr;
    }
    return t;
}

SoftwarePictureTarget::~SoftwarePictureTarget() { freeRenderContext(); }

bool SoftwarePictureTarget::render(QSize size, bool aside) {
    QImage& image = aside ? heldImage_ : image_;
    // A view may still paint the picture it was given: draw into a new one then.
    if (image.size() != size || !image.isDetached()) image = alignedImage(size);
    if (image.isNull()) return false;
    int wh[2] = {size.width(), size.height()};
    char format[] = "bgr0";
    std::size_t stride = std::size_t(image.bytesPerLine());
    int block = 0;  // due already: the interface thread never waits here
    mpv_render_param params[] = {{MPV_RENDER_PARAM_SW_SIZE, wh},
                                 {MPV_RENDER_PARAM_SW_FORMAT, format},
                                 {MPV_RENDER_PARAM_SW_STRIDE, &stride},
                                 {MPV_RENDER_PARAM_SW_POINTER, image.bits()},
                                 {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &block},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    return mpv_render_context_render(render_, params) >= 0;
}

void SoftwarePictureTarget::showAside() { std::swap(image_, heldImage_); }

}  // namespace tarvik
