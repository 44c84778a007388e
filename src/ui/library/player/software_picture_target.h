#pragma once
// Pictures drawn by mpv's software renderer into images in memory, at the
// size they are shown, for views that paint them without OpenGL.

#include "ui/library/player/picture_target.h"

namespace tarvik {

class SoftwarePictureTarget : public PictureTarget {
public:
    static std::unique_ptr<PictureTarget> create(mpv_handle* mpv);
    ~SoftwarePictureTarget() override;

    bool render(QSize size, bool aside) override;
    void showAside() override;
    bool hasPicture() const override { return !image_.isNull(); }
    QSize pictureSize() const override { return image_.size(); }
    QImage image() const override { return image_; }

private:
    SoftwarePictureTarget() = default;

    QImage image_;
    QImage heldImage_;
};

}  // namespace tarvik
