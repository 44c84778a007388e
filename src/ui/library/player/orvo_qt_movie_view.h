#pragma once
// The full-screen picture: shows what a player view shows and turns the
// mouse into requests to its delegate; clicks, drags and the wheel do
// nothing else here. Disable it (setEnabled(false)) to ignore the mouse.

#include <QPointer>

#include "ui/library/player/orvo_av_view.h"
#include "ui/library/player/video_surface.h"

namespace tarvik {

class OrvoQTMovieViewDelegate {
public:
    virtual ~OrvoQTMovieViewDelegate() = default;
    virtual void fullscreenButtonTouched(QObject* sender) {}
    virtual void showFullscreenMovieControlWindow() {}
    virtual void hideFullscreenMovieControlWindow() {}
};

class OrvoQTMovieView : public VideoSurface {
    Q_OBJECT
public:
    explicit OrvoQTMovieView(QWidget* parent = nullptr);

    OrvoQTMovieViewDelegate* delegate() const { return delegate_; }
    void setDelegate(OrvoQTMovieViewDelegate* delegate) { delegate_ = delegate; }

    // Follows that view's picture, also across swaps and reloads.
    void setMovieSource(OrvoAVView* view);
    OrvoAVView* movieSource() const { return source_; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void followSource();

    OrvoQTMovieViewDelegate* delegate_ = nullptr;
    QPointer<OrvoAVView> source_;
    QMetaObject::Connection sourceConnection_;
};

}  // namespace tarvik
