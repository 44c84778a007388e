#include "ui/library/player/video_surface.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLTextureBlitter>
#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "ui/library/player/composition_pacer.h"
#include "ui/library/player/mpv_player.h"

namespace tarvik {

namespace {

// Every repaint of a GL widget composes its whole window again (on a
// software renderer, the window's every pixel, twice). Two views playing in
// step get their frames within a few milliseconds of each other: waiting
// that long lets one composition show both, which also shows them together.
constexpr int kGatherMs = 8;

QList<QPointer<VideoSurface>>& gathered() {
    static QList<QPointer<VideoSurface>> surfaces;
    return surfaces;
}

QList<VideoSurface*>& allSurfaces() {
    static QList<VideoSurface*> surfaces;
    return surfaces;
}

// Pictures are coming into this window.
bool playingIn(QWidget* window) {
    return std::any_of(allSurfaces().begin(), allSurfaces().end(),
                       [&](VideoSurface* s) { return s->window() == window && s->awaitsFrame(); });
}

void repaintGathered() {
    const QList<QPointer<VideoSurface>> due = std::exchange(gathered(), {});
    QList<QWidget*> windows;
    for (const auto& s : due) {
        if (!s) continue;
        s->update();
        if (!windows.contains(s->window())) windows << s->window();
    }
    for (QWidget* w : windows)
        if (CompositionPacer* pacer = CompositionPacer::of(w, &playingIn)) pacer->compose();
}

QTimer* gatherTimer() {
    static QPointer<QTimer> timer;
    if (!timer) {
        timer = new QTimer(qApp);
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer);
        QObject::connect(timer, &QTimer::timeout, &repaintGathered);
    }
    return timer;
}

}  // namespace

bool VideoSurface::awaitsFrame() const {
    return isVisible() && pictureVisible_ && player_ && player_->rate() != 0.0f && !player_->isHeld() &&
           !player_->isEofReached();
}

void VideoSurface::repaintSoon() {
    QList<QPointer<VideoSurface>>& list = gathered();
    if (list.contains(this)) return;
    list << this;
    if (list.size() == 1) gatherTimer()->start(kGatherMs);
}

VideoSurface::VideoSurface(QWidget* parent) : QOpenGLWidget(parent) { allSurfaces() << this; }

MpvPlayer* VideoSurface::shownPlayer() const { return player_; }

VideoSurface::~VideoSurface() {
    allSurfaces().removeOne(this);
    if (player_) player_->setShownSize(this, QSize());
    makeCurrent();
    blitter_.reset();
    doneCurrent();
}

void VideoSurface::releaseGl() {
    makeCurrent();
    blitter_.reset();
    doneCurrent();
}

void VideoSurface::showPlayer(MpvPlayer* player) {
    if (player_ == player) return;
    disconnect(frameConnection_);
    if (player_) player_->setShownSize(this, QSize());
    player_ = player;
    reportShownSize();
    if (player) frameConnection_ = connect(player, &MpvPlayer::frameRendered, this, &VideoSurface::repaintSoon);
    update();
}

void VideoSurface::reportShownSize() {
    if (player_) player_->setShownSize(this, isVisible() ? size() * devicePixelRatioF() : QSize());
}

void VideoSurface::resizeEvent(QResizeEvent* event) {
    QOpenGLWidget::resizeEvent(event);
    reportShownSize();
}

void VideoSurface::showEvent(QShowEvent* event) {
    QOpenGLWidget::showEvent(event);
    CompositionPacer::of(window(), &playingIn);
    reportShownSize();
}

void VideoSurface::hideEvent(QHideEvent* event) {
    QOpenGLWidget::hideEvent(event);
    reportShownSize();
}

void VideoSurface::setPictureVisible(bool visible) {
    pictureVisible_ = visible;
    update();
}

void VideoSurface::setPictureFlipped(bool flipped) {
    flipped_ = flipped;
    update();
}

void VideoSurface::initializeGL() {
    // Moving the widget to another window (full screen) replaces its context.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &VideoSurface::releaseGl, Qt::UniqueConnection);
}

void VideoSurface::paintGL() {
    QOpenGLFunctions* f = context()->functions();
    f->glClearColor(0, 0, 0, 1);
    f->glClear(GL_COLOR_BUFFER_BIT);
    if (!pictureVisible_ || !player_ || !player_->textureId()) return;
    if (!blitter_) {
        blitter_ = std::make_unique<QOpenGLTextureBlitter>();
        if (!blitter_->create()) return;
    }
    const QSize out = size() * devicePixelRatioF();
    const QSize fitted = player_->textureSize().scaled(out, Qt::KeepAspectRatio);
    const QRect target(QPoint((out.width() - fitted.width()) / 2, (out.height() - fitted.height()) / 2), fitted);
    // mpv draws an FBO top row first. A camera mounted upside down needs its
    // picture turned half a turn, not mirrored: flip the rows and the columns.
    const auto origin = flipped_ ? QOpenGLTextureBlitter::OriginBottomLeft : QOpenGLTextureBlitter::OriginTopLeft;
    QMatrix4x4 transform = QOpenGLTextureBlitter::targetTransform(target, QRect(QPoint(), out));
    if (flipped_) transform.scale(-1.0f, 1.0f);
    blitter_->bind();
    blitter_->blit(player_->textureId(), transform, origin);
    blitter_->release();
}

}  // namespace tarvik
