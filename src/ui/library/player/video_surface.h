#pragma once
// A widget that shows the pictures of one MpvPlayer, fitted into the widget
// with black bars, optionally turned half a turn. Pictures drawn by the
// processor it paints itself; textures are shown by a GL view inside it.

#include <QPointer>
#include <QWidget>

namespace tarvik {

class GlPictureView;
class MpvPlayer;

class VideoSurface : public QWidget {
    Q_OBJECT
public:
    explicit VideoSurface(QWidget* parent = nullptr);
    ~VideoSurface() override;

    // Playing and shown: a new picture of this view is on its way.
    bool awaitsFrame() const;
    // Shows the player's latest picture.
    void repaintPicture();

protected:
    void showPlayer(MpvPlayer* player);
    MpvPlayer* shownPlayer() const;
    // Hidden pictures leave the widget black (while a clip is still loading).
    void setPictureVisible(bool visible);
    bool pictureVisible() const { return pictureVisible_; }
    void setPictureFlipped(bool flipped);

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    // Tells the shown player how large its pictures are shown here.
    void reportShownSize();
    // A new picture: shown with whatever other view has one a moment later.
    void repaintSoon();

    QPointer<MpvPlayer> player_;
    QMetaObject::Connection frameConnection_;
    GlPictureView* gl_ = nullptr;  // null with software pictures
    bool pictureVisible_ = false;
    bool flipped_ = false;
};

}  // namespace tarvik
