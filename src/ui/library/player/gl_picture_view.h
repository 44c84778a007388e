#pragma once
// Shows one player's picture textures through OpenGL, fitted with black
// bars, optionally turned half a turn. Lives inside a VideoSurface when
// pictures are drawn through OpenGL; mouse events pass through to it.

#include <QOpenGLWidget>
#include <QPointer>
#include <memory>

class QOpenGLTextureBlitter;

namespace tarvik {

class MpvPlayer;

class GlPictureView : public QOpenGLWidget {
public:
    explicit GlPictureView(QWidget* parent);
    ~GlPictureView() override;

    void setPlayer(MpvPlayer* player) { player_ = player; }
    void setPictureVisible(bool visible) { visible_ = visible; }
    void setFlipped(bool flipped) { flipped_ = flipped; }

protected:
    void initializeGL() override;
    void paintGL() override;

private:
    void releaseGl();

    QPointer<MpvPlayer> player_;
    std::unique_ptr<QOpenGLTextureBlitter> blitter_;
    bool visible_ = false;
    bool flipped_ = false;
};

}  // namespace tarvik
