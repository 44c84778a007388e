#pragma once
// A GL widget that shows the pictures of one MpvPlayer, fitted into the
// widget with black bars, optionally flipped vertically.

#include <QOpenGLWidget>
#include <QPointer>
#include <memory>

class QOpenGLTextureBlitter;

namespace tarvik {

class MpvPlayer;

class VideoSurface : public QOpenGLWidget {
    Q_OBJECT
public:
    explicit VideoSurface(QWidget* parent = nullptr);
    ~VideoSurface() override;

    // Playing and shown: a new picture of this view is on its way.
    bool awaitsFrame() const;

protected:
    void showPlayer(MpvPlayer* player);
    MpvPlayer* shownPlayer() const;
    // Hidden pictures leave the widget black (while a clip is still loading).
    void setPictureVisible(bool visible);
    bool pictureVisible() const { return pictureVisible_; }
    void setPictureFlipped(bool flipped);

    void initializeGL() override;
    void paintGL() override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void releaseGl();
    // Tells the shown player how large its pictures are shown here.
    void reportShownSize();
    // A new picture: shown with whatever other view has one a moment later.
    void repaintSoon();

    QPointer<MpvPlayer> player_;
    QMetaObject::Connection frameConnection_;
    std::unique_ptr<QOpenGLTextureBlitter> blitter_;
    bool pictureVisible_ = false;
    bool flipped_ = false;
};

}  // namespace tarvik
