#include "ui/library/player/video_surface.h"

#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "ui/base/graphics/software_pictures.h"
#include "ui/library/player/composition_pacer.h"
#include "ui/library/player/gl_picture_view.h"
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
        s->repaintPicture();
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

VideoSurface::VideoSurface(QWidget* parent) : QWidget(parent) {
    allSurfaces() << this;
    // Every pixel is painted here: nothing of the parent needs drawing first.
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (!softwarePictures()) gl_ = new GlPictureView(this);
}

MpvPlayer* VideoSurface::shownPlayer() const { return player_; }

VideoSurface::~VideoSurface() {
    allSurfaces().removeOne(this);
    if (player_) player_->setShownSize(this, QSize());
}

void VideoSurface::repaintPicture() {
    if (!gl_) {
        update();
        return;
    }
    gl_->setPlayer(player_);
    gl_->setPictureVisible(pictureVisible_);
    gl_->setFlipped(flipped_);
    gl_->update();
}

void VideoSurface::showPlayer(MpvPlayer* player) {
    if (player_ == player) return;
    disconnect(frameConnection_);
    if (player_) player_->setShownSize(this, QSize());
    player_ = player;
    reportShownSize();
    if (player) frameConnection_ = connect(player, &MpvPlayer::frameRendered, this, &VideoSurface::repaintSoon);
    repaintPicture();
}

void VideoSurface::reportShownSize() {
    if (player_) player_->setShownSize(this, isVisible() ? size() * devicePixelRatioF() : QSize());
}

void VideoSurface::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (gl_) gl_->resize(size());
    reportShownSize();
}

void VideoSurface::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // Only a window composed through OpenGL is composed whole at every change.
    if (gl_) CompositionPacer::of(window(), &playingIn);
    reportShownSize();
}

void VideoSurface::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    reportShownSize();
}

void VideoSurface::setPictureVisible(bool visible) {
    pictureVisible_ = visible;
    repaintPicture();
}

void VideoSurface::setPictureFlipped(bool flipped) {
    flipped_ = flipped;
    repaintPicture();
}

void VideoSurface::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QImage image = gl_ || !pictureVisible_ || !player_ ? QImage() : player_->pictureImage();
    if (image.isNull()) {
        painter.fillRect(rect(), Qt::black);
        return;
    }
    // Drawn at the size shown, the picture is copied, not scaled, unless
    // the view changed size since it was drawn. Whole device pixels: a picture edge inside a pixel would leave a row
    // of the previous picture beside it.
    const qreal ratio = devicePixelRatioF();
    const QSize out = size() * ratio;
    const QSize fitted = image.size().scaled(out, Qt::KeepAspectRatio);
    const QRect pixels(QPoint((out.width() - fitted.width()) / 2, (out.height() - fitted.height()) / 2), fitted);
    const QRectF target(QPointF(pixels.topLeft()) / ratio, QSizeF(pixels.size()) / ratio);
    const QRegion bars = QRegion(rect()) - target.toAlignedRect();
    for (const QRect& bar : bars) painter.fillRect(bar, Qt::black);
    // A camera mounted upside down needs its picture turned half a turn, not mirrored.
    if (flipped_) {
        painter.translate(target.center());
        painter.rotate(180);
        painter.translate(-target.center());
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image);
}

}  // namespace tarvik
