#pragma once
// Full-screen playback of either player. The full-screen window shows the
// chosen player's pictures through a mirror view, so the player itself never
// leaves the main window and nothing is reloaded. The other player pauses
// and is brought to the same time when full screen ends.

#include <QObject>
#include <QPointer>

// The movie view keeps a QPointer to a player view, which needs the whole class.
#include "ui/library/player/orvo_av_view.h"
#include "ui/library/player/orvo_qt_movie_view.h"

class QWidget;

namespace tarvik {

class FullscreenControlBar;
class OrvoAVView;
class PlaybackTransport;
class VolumeController;

class FullScreenController : public QObject, public OrvoQTMovieViewDelegate {
    Q_OBJECT
public:
    FullScreenController(OrvoAVView* bigMovieView, OrvoAVView* smallMovieView, QWidget* mainWindow,
                         PlaybackTransport& transport, const VolumeController& volume, QObject* parent = nullptr);
    ~FullScreenController() override;

    // The map is hidden while in full screen and restored afterwards.
    void setMapWebView(QWidget* mapWebView) { mapWebView_ = mapWebView; }

    bool isFullScreenMode() const { return isFullScreenMode_; }
    OrvoAVView* fullScreenMovieView() const { return fullScreenMovieView_; }
    QWidget* fullScreenWindow() const { return window_; }
    OrvoQTMovieView* fullScreenMovieMirror() const { return mirror_; }
    FullscreenControlBar* controlBar() const { return controlBar_; }
    bool mapHiddenOnFullScreen() const { return mapHiddenOnFullScreen_; }

    // Leaves full screen when on; otherwise enters it with the small player
    // when the small player asked, with the large one for anything else.
    void fullscreenButtonTouched(QObject* sender) override;
    void showFullScreenMovie(OrvoAVView* view);
    void hideFullScreenMovie();
    void showFullscreenMovieControlWindow() override;
    void hideFullscreenMovieControlWindow() override;

private:
    OrvoAVView* bigMovieView_;
    OrvoAVView* smallMovieView_;
    QPointer<QWidget> mainWindow_;
    QPointer<QWidget> mapWebView_;
    PlaybackTransport& transport_;
    const VolumeController& volume_;
    QWidget* window_;
    OrvoQTMovieView* mirror_;
    FullscreenControlBar* controlBar_;
    OrvoAVView* fullScreenMovieView_ = nullptr;
    bool isFullScreenMode_ = false;
    bool mapHiddenOnFullScreen_ = true;
};

}  // namespace tarvik
