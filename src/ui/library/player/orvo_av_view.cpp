#include "ui/library/player/orvo_av_view.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QProgressBar>
#include <QTemporaryDir>
#include <QTimer>
#include <cmath>

#include "core/library/conversion/still_image_extractor.h"
#include "ui/library/player/mpv_player.h"

namespace tarvik {

namespace {

QPixmap noVideoPixmap() {
    QPixmap pm(96, 64);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(160, 160, 160), 4));
    p.drawRoundedRect(QRectF(8, 14, 58, 38), 6, 6);
    p.drawPolygon(QPolygonF({QPointF(68, 26), QPointF(88, 16), QPointF(88, 50), QPointF(68, 40)}));
    p.setPen(QPen(QColor(200, 60, 60), 5));
    p.drawLine(QPointF(10, 58), QPointF(86, 6));
    return pm;
}

}  // namespace

OrvoAVView::OrvoAVView(QWidget* parent) : VideoSurface(parent) {
    loadingSpinner_ = new QProgressBar(this);
    loadingSpinner_->setRange(0, 0);
    loadingSpinner_->setTextVisible(false);
    loadingSpinner_->setFixedSize(80, 10);
    loadingSpinner_->hide();
    noVideoView_ = new QLabel(this);
    noVideoView_->setPixmap(noVideoPixmap());
    noVideoView_->setAlignment(Qt::AlignCenter);
    noVideoView_->setAttribute(Qt::WA_TransparentForMouseEvents);
    noVideoView_->hide();
    loadWatchdog_ = new QTimer(this);
    loadWatchdog_->setSingleShot(true);
    connect(loadWatchdog_, &QTimer::timeout, this, [this] {
        if (status_ != OrvoAVViewStatusLoading) return;
        if (player_) player_->shutdown();
        stopLoadingAnimationAndHandleError(true);
    });
    setMinimumSize(16, 16);
}

OrvoAVView::~OrvoAVView() {
    if (player_) close();
}

QUrl OrvoAVView::fileURL() const { return fileName_.isEmpty() ? QUrl() : QUrl::fromLocalFile(fileName_); }

bool OrvoAVView::hasMovie() const { return status_ != OrvoAVViewStatusInit && status_ != OrvoAVViewStatusError; }

void OrvoAVView::setStatus(OrvoAVViewStatus status) {
    status_ = status;
    // Delivered from the event loop with the value of this moment, so the
    // delegate never re-enters the view from inside a view operation.
    QMetaObject::invokeMethod(
        this, [this, status] { if (delegate_) delegate_->orvoAVViewDidUpdateStatus(this, status); },
        Qt::QueuedConnection);
}

void OrvoAVView::setFilePath(const QByteArray& localPath) { open(QFile::decodeName(localPath), localPath); }

QByteArray OrvoAVView::localPath() const { return localPath_.isEmpty() ? QFile::encodeName(fileName_) : localPath_; }

void OrvoAVView::setFileName(const QString& path) { open(path, {}); }

void OrvoAVView::open(const QString& path, const QByteArray& localPath) {
    fileName_ = path;
    localPath_ = localPath;
    if (player_) close();
    setStatus(OrvoAVViewStatusInit);
    if (!path.isEmpty()) prepareAsset();
}

void OrvoAVView::prepareAsset() {
    if (status_ == OrvoAVViewStatusLoading) return;
    noVideoView_->hide();
    loadingSpinner_->show();
    const bool preloaded = spare_ && spare_->isLoaded() && spare_->path() == fileName_;
    player_ = takePlayer();
    rebuildObservers();
    showPlayer(player_);
    setPictureVisible(false);
    emit pictureChanged();
    setStatus(OrvoAVViewStatusLoading);
    if (fileURL().isEmpty()) {
        setStatus(OrvoAVViewStatusError);
        return;
    }
    loadWatchdog_->start(kLoadTimeoutMs);
    if (preloaded && adoptPreloaded()) return;
    player_->load(fileName_, localPath());
}

void OrvoAVView::preload(const QByteArray& localPath) {
    if (status_ == OrvoAVViewStatusLoading) return;
    if (!spare_) spare_ = new MpvPlayer(this);
    if (spare_->path() != QFile::decodeName(localPath)) spare_->load(QFile::decodeName(localPath), localPath);
}

bool OrvoAVView::adoptPreloaded() {
    // Its reports went out before anyone listened: they are made here again.
    // A spare that has no picture to show yet would never report one: the
    // clip is then opened the plain way.
    if (!player_->hasVideo() || !player_->hasPicture()) return false;
    setUpPlaybackOfAsset(player_->hasVideo());
    stopLoadingAnimationAndHandleError(false);
    setPictureVisible(true);
    emit firstFrameShown();
    keepSpareIn(100);
    return true;
}

MpvPlayer* OrvoAVView::takePlayer() {
    MpvPlayer* p = spare_ ? spare_ : new MpvPlayer(this);
    spare_ = nullptr;
    return p;
}

// Starting a player costs the interface thread several milliseconds per view,
// paid when the pictures are up rather than while a clip is opening.
void OrvoAVView::keepSpareIn(int ms) {
    QTimer::singleShot(ms, this, [this] {
        if (!spare_) spare_ = new MpvPlayer(this);
    });
}

void OrvoAVView::showEvent(QShowEvent* event) {
    VideoSurface::showEvent(event);
    if (!spare_) keepSpareIn(0);
}

void OrvoAVView::setUpPlaybackOfAsset(bool hasVideo) {
    loadWatchdog_->stop();
    if (hasVideo) {
        upsideDown_ = false;
        setPictureFlipped(false);
        setStatus(OrvoAVViewStatusPrepared);
    } else {
        stopLoadingAnimationAndHandleError(false);
        noVideoView_->show();
        setStatus(OrvoAVViewStatusError);
    }
}

void OrvoAVView::stopLoadingAnimationAndHandleError(bool error) {
    loadingSpinner_->hide();
    if (error) {
        loadWatchdog_->stop();
        setStatus(OrvoAVViewStatusError);
    }
}

void OrvoAVView::rebuildObservers() {
    removeObservers();
    if (!player_) return;
    MpvPlayer* p = player_;
    observers_ << connect(p, &MpvPlayer::loaded, this, &OrvoAVView::setUpPlaybackOfAsset);
    observers_ << connect(p, &MpvPlayer::failed, this, [this] { stopLoadingAnimationAndHandleError(true); });
    observers_ << connect(p, &MpvPlayer::rateChanged, this, [this](float r) {
        rate_ = r;
        if (delegate_) delegate_->orvoAVViewDidUpdateRate(this, r);
    });
    observers_ << connect(p, &MpvPlayer::timeChanged, this, [this](double t) { onTime(t, false); });
    observers_ << connect(p, &MpvPlayer::seeked, this, [this, p] { onTime(p->timePos(), true); });
    observers_ << connect(p, &MpvPlayer::endReached, this, &OrvoAVView::onMovieEnd);
    observers_ << connect(p, &MpvPlayer::firstFrameRendered, this, [this] {
        stopLoadingAnimationAndHandleError(false);
        setPictureVisible(true);
        emit firstFrameShown();
        // Later than this view's first frame: the other view may still be opening.
        keepSpareIn(100);
    });
    lastTick_ = -1;
}

void OrvoAVView::removeObservers() {
    for (const auto& c : observers_) disconnect(c);
    observers_.clear();
}

void OrvoAVView::onTime(double seconds, bool jumped) {
    // A tick for every tenth of a second of playing time, plus one whenever
    // the time jumps, however many frames the video has.
    // While paused the time only moves by seeks and frame steps: each one
    // is reported.
    const long long tick = static_cast<long long>(std::floor(seconds * 10.0 + 1e-6));
    if (!jumped && tick == lastTick_ && requestedRate_ != 0.0f) return;
    lastTick_ = tick;
    if (delegate_) delegate_->orvoAVViewDidUpdateTime(this, seconds);
}

void OrvoAVView::onMovieEnd() {
    if (delegate_) delegate_->orvoAVViewDidPlayToEndTime(this);
}

bool OrvoAVView::isAtEnd() const {
    return player_ && (player_->isEofReached() || (duration() > 0 && currentTime() >= duration()));
}

void OrvoAVView::requestRate(float rate) {
    requestedRate_ = rate;
    player_->setRate(rate);
}

void OrvoAVView::play() {
    if (!player_) return;
    if (isAtEnd()) player_->seekExact(0);
    requestRate(1.0f);
}

void OrvoAVView::pause() {
    if (player_) requestRate(0.0f);
}

void OrvoAVView::playPauseToggle() {
    if (!player_) return;
    if (player_->rate() == 1.0f) {
        pause();
        return;
    }
    play();
}

void OrvoAVView::fastForward() {
    if (!player_) return;
    const float r = player_->rate();
    requestRate(r < 2.0f ? 2.0f : r + 2.0f);
}

void OrvoAVView::rewind() {
    if (!player_) return;
    const float r = player_->rate();
    requestRate(r > -2.0f ? -2.0f : r - 2.0f);
}

void OrvoAVView::stepForward() {
    if (!player_) return;
    requestedRate_ = 0.0f;  // a step leaves the player paused
    player_->frameStep();
}

void OrvoAVView::stepBackward() {
    if (!player_) return;
    requestedRate_ = 0.0f;
    player_->frameBackStep();
}

double OrvoAVView::currentTime() const { return player_ ? player_->timePos() : 0.0; }

void OrvoAVView::setCurrentTime(double seconds) {
    if (player_) player_->seekExact(static_cast<double>(std::llround(seconds)));
}

double OrvoAVView::duration() const { return player_ && player_->isLoaded() ? player_->duration() : 0.0; }

float OrvoAVView::volume() const { return player_ ? player_->volume() : 0.0f; }

void OrvoAVView::setVolume(float volume) {
    if (player_) player_->setVolume(volume);
}

bool OrvoAVView::isMuted() const { return player_ && player_->isMuted(); }

void OrvoAVView::setMuted(bool muted) {
    if (player_) player_->setMuted(muted);
}

void OrvoAVView::setUpsideDown(bool upsideDown) {
    upsideDown_ = upsideDown;
    setPictureFlipped(upsideDown);
    emit pictureChanged();
}

QSize OrvoAVView::naturalSize() const {
    if (player_ && !player_->videoSize().isEmpty()) return player_->videoSize();
    return QSize(1920, 1080);
}

QImage OrvoAVView::snapshot() const {
    if (!player_ || !player_->isLoaded()) return {};
    // The still is taken from the clip's start, not from the shown frame:
    // a time of the whole seconds of the duration, counted in microseconds.
    const double at = std::trunc(duration()) / 1'000'000.0;
    QTemporaryDir dir;
    if (!dir.isValid()) return {};
    const QString png = dir.filePath("still.png");
    if (!StillImageExtractor::extractPng(localPath().toStdString(), at, png.toStdString())) return {};
    QImage image(png);
    const QSize size = naturalSize();
    if (!image.isNull() && image.size() != size)
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image;
}

void OrvoAVView::swapPlayerItemWith(OrvoAVView* other) {
    if (!other || other == this) return;
    removeObservers();
    other->removeObservers();
    std::swap(fileName_, other->fileName_);
    std::swap(localPath_, other->localPath_);
    std::swap(requestedRate_, other->requestedRate_);
    std::swap(player_, other->player_);
    if (player_) player_->setParent(this);
    if (other->player_) other->player_->setParent(other);
    const bool visible = pictureVisible();
    setPictureVisible(other->pictureVisible());
    other->setPictureVisible(visible);
    showPlayer(player_);
    other->showPlayer(other->player_);
    rebuildObservers();
    other->rebuildObservers();
    emit pictureChanged();
    emit other->pictureChanged();
}

void OrvoAVView::resetForNextClip() {
    retireOnClose_ = true;
    close();
    retireOnClose_ = false;
}

void OrvoAVView::close() {
    requestedRate_ = 0.0f;
    if (player_) {
        player_->setRate(0.0f);
        removeObservers();
        showPlayer(nullptr);
        if (retireOnClose_) {
            retiring_ << player_;
            player_->retire();
        } else {
            player_->shutdown();
            player_->deleteLater();
        }
        player_ = nullptr;
    }
    // Closed for good (the card is released): nothing may hold a file of it.
    if (!retireOnClose_) {
        for (const auto& p : std::as_const(retiring_))
            if (p) p->shutdown();
        retiring_.clear();
    }
    retiring_.removeAll(nullptr);
    loadWatchdog_->stop();
    loadingSpinner_->hide();
    noVideoView_->hide();
    setPictureVisible(false);
    emit pictureChanged();
    setFileName(QString());
}

void OrvoAVView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton && delegate_) {
        delegate_->orvoAVViewDidRequestFullscreen(this);
        return;
    }
    VideoSurface::mouseReleaseEvent(event);
}

void OrvoAVView::resizeEvent(QResizeEvent* event) {
    VideoSurface::resizeEvent(event);
    layoutOverlays();
}

void OrvoAVView::layoutOverlays() {
    noVideoView_->setGeometry(rect());
    loadingSpinner_->move((width() - loadingSpinner_->width()) / 2, (height() - loadingSpinner_->height()) / 2);
}

}  // namespace tarvik
