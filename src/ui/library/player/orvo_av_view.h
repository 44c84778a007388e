#pragma once
// The view that shows one clip: front or rear camera. It reduces libmpv's
// notifications to one status value, one rate and a time tick every 0.1 s,
// and reports them to its delegate. A new clip is loaded with reset()
// followed by setFileName(path).

#include <QImage>
#include <QPointer>
#include <QString>
#include <QUrl>

#include "ui/library/player/orvo_av_view_delegate.h"
#include "ui/library/player/orvo_av_view_status.h"
#include "ui/library/player/video_surface.h"

class QLabel;
class QProgressBar;
class QTimer;

namespace tarvik {

class MpvPlayer;

class OrvoAVView : public VideoSurface {
    Q_OBJECT
public:
    // A clip that is neither playable nor refused by then counts as broken.
    static constexpr int kLoadTimeoutMs = 30000;

    explicit OrvoAVView(QWidget* parent = nullptr);
    ~OrvoAVView() override;

    OrvoAVViewDelegate* delegate() const { return delegate_; }
    void setDelegate(OrvoAVViewDelegate* delegate) { delegate_ = delegate; }

    OrvoAVViewStatus status() const { return status_; }
    float rate() const { return rate_; }
    // The loaded clip's first picture is up.
    bool showsPicture() const { return pictureVisible(); }
    QString fileName() const { return fileName_; }
    QUrl fileURL() const;
    bool hasMovie() const;

    // Stores the path, closes a player that still exists (which clears the
    // stored path again, so the load then fails: reset() first), sets Init
    // and starts loading when a path was given.
    void setFileName(const QString& path);
    // The same for a path given as the file system's bytes, which need not be
    // valid UTF-8: the player opens exactly these bytes.
    void setFilePath(const QByteArray& localPath);
    QByteArray localPath() const;
    // Opens the file in the view's spare player, paused at its start, so that
    // setFilePath of the same file shows its first picture at once: the next
    // clip of a trip follows the last picture of the clip before.
    void preload(const QByteArray& localPath);

    void play();
    void pause();
    void playPauseToggle();
    void fastForward();
    void rewind();
    // Exactly one frame; the player is paused afterwards. The new time
    // arrives with the next orvoAVViewDidUpdateTime.
    void stepForward();
    void stepBackward();

    double currentTime() const;
    // Lands on the nearest whole second.
    void setCurrentTime(double seconds);
    double duration() const;
    float volume() const;
    void setVolume(float volume);
    bool isMuted() const;
    void setMuted(bool muted);
    bool upsideDown() const { return upsideDown_; }
    void setUpsideDown(bool upsideDown);
    // Size of the clip's picture; 1920x1080 when it has none.
    QSize naturalSize() const;

    // The clip's first picture at the clip's own size; null without a clip.
    QImage snapshot() const;

    // Exchanges clip and player with the other view without reloading;
    // status, upside-down, rate and delegate stay with each view.
    void swapPlayerItemWith(OrvoAVView* other);

    void close();
    void reset() { close(); }
    // The same, for a clip followed by another: the player stops and goes
    // in the background, and the next clip's pictures need not wait for it.
    void resetForNextClip();

    // The player whose pictures this view shows (for a full-screen mirror).
    MpvPlayer* player() const { return player_; }

signals:
    // The loaded clip's first picture is on screen.
    void firstFrameShown();
    // The shown player or the way it is drawn changed.
    void pictureChanged();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void open(const QString& name, const QByteArray& localPath);
    MpvPlayer* takePlayer();
    void keepSpareIn(int ms);
    void prepareAsset();
    // Takes up a spare player that already opened this view's file.
    bool adoptPreloaded();
    void setUpPlaybackOfAsset(bool hasVideo);
    void rebuildObservers();
    void removeObservers();
    void onMovieEnd();
    void onTime(double seconds, bool jumped);
    void stopLoadingAnimationAndHandleError(bool error);
    void setStatus(OrvoAVViewStatus status);
    bool isAtEnd() const;
    void requestRate(float rate);
    void layoutOverlays();

    OrvoAVViewDelegate* delegate_ = nullptr;
    OrvoAVViewStatus status_ = OrvoAVViewStatusInit;
    bool upsideDown_ = false;
    float rate_ = 0.0f;
    QString fileName_;
    QByteArray localPath_;  // empty when the name is the path
    MpvPlayer* player_ = nullptr;
    // A player made while nothing was opening, so that the next clip does not
    // wait for mpv and its OpenGL context to start.
    MpvPlayer* spare_ = nullptr;
    // Players of earlier clips still letting go of their files.
    QList<QPointer<MpvPlayer>> retiring_;
    bool retireOnClose_ = false;
    QList<QMetaObject::Connection> observers_;
    long long lastTick_ = -1;
    float requestedRate_ = 0.0f;
    QProgressBar* loadingSpinner_ = nullptr;
    QLabel* noVideoView_ = nullptr;
    QTimer* loadWatchdog_ = nullptr;
};

}  // namespace tarvik
