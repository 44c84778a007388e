#pragma once
// Where one player's mpv draws its pictures: a texture of its own OpenGL
// context (shared with every widget's, so a picture can move between views
// without reloading), or an image in memory drawn by the processor. Either
// keeps two pictures: the one shown, and one drawn aside while the player is
// held, shown when it is let go.

#include <QImage>
#include <QSize>
#include <cstdint>
#include <memory>

struct mpv_handle;
struct mpv_render_context;

namespace tarvik {

class PictureTarget {
public:
    using UpdateCallback = void (*)(void*);

    virtual ~PictureTarget();
    // The kind softwarePictures() chooses; null when mpv cannot draw into it.
    static std::unique_ptr<PictureTarget> create(mpv_handle* mpv, UpdateCallback onUpdate, void* context);

    // mpv's render-update flags: whether it has a new frame.
    uint64_t update();
    // Draws mpv's current frame at `size`, into the shown picture or aside.
    // False when it could not be drawn.
    virtual bool render(QSize size, bool aside) = 0;
    // The picture drawn aside becomes the one shown.
    virtual void showAside() = 0;
    virtual bool hasPicture() const = 0;
    virtual QSize pictureSize() const = 0;
    // The shown picture as a texture of the shared contexts; 0 for images.
    virtual unsigned textureId() const { return 0; }
    // The shown picture as an image; null for textures.
    virtual QImage image() const { return {}; }

protected:
    PictureTarget() = default;
    // Stops mpv's calls, then frees the render context.
    void freeRenderContext();
    mpv_render_context* render_ = nullptr;
};

}  // namespace tarvik
