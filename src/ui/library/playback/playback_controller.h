#pragma once
// Playback of the main window: loads a clip into the large and small player
// (front and rear), starts them together once both are ready, and carries
// out the tool-bar commands. The dashboard, zoom, full screen, volume, seek
// slider, play animation and saving each live in a helper of their own; this
// class loads clips and ties the helpers to the players and buttons.

#include <QList>
#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ui/library/playback/playback_transport.h"
#include "ui/library/player/orvo_av_view.h"

namespace tarvik {

struct PlaybackViews;
class ClipCatalogue;
class AfterFirstPictures;
class TelemetryLoader;
struct LoadedTelemetry;
class ClipFailureWatch;
enum class ClipFileState;
class ClipSaver;
class DashboardUpdater;
class FrontRearLock;
class NextClipPreloader;
class FullScreenController;
class OrvoAVView;
class OrvoClipData;
class PlayAnimation;
class SeekSliderController;
class SubtitleData;
class VolumeController;
class ZoomController;
struct DashboardWidgets;

class PlaybackController : public QObject, public OrvoAVViewDelegate, public PlaybackTransport {
    Q_OBJECT
public:
    // Shows the unsupported-file alert: message and informative text, already localised.
    using AlertPresenter = std::function<void(const QString& message, const QString& informative)>;
    // The playable files of a clip, large view first; empty or none when unsupported.
    using VideoConverter = std::function<std::optional<std::vector<std::string>>(const std::string& clip)>;

    PlaybackController(const PlaybackViews& views, ClipCatalogue& catalogue, QObject* parent = nullptr);
    ~PlaybackController() override;

    void setAlertPresenter(AlertPresenter presenter) { alert_ = std::move(presenter); }
    void setVideoConverter(VideoConverter converter) { convert_ = std::move(converter); }

    OrvoAVView* bigMovieView() const { return bigMovieView_; }
    OrvoAVView* smallMovieView() const { return smallMovieView_; }
    DashboardUpdater& dashboard() { return *dashboard_; }
    const DashboardWidgets& dashboardWidgets() const { return *widgets_; }
    ZoomController& zoom() { return *zoom_; }
    FullScreenController& fullScreen() { return *fullScreen_; }
    VolumeController& volume() { return *volume_; }
    SeekSliderController& seekSlider() { return *seek_; }
    PlayAnimation& playAnimation() { return *animation_; }
    ClipSaver& saver() { return *saver_; }
    const OrvoClipData& clipData() const { return *clipData_; }
    const SubtitleData* subtitleData() const { return subtitleData_.get(); }

    const std::string& currentVideoUrl() const { return currentVideoUrl_; }
    const std::string& bigVideoFilePath() const { return bigVideoFilePath_; }
    const std::string& smallVideoFilePath() const { return smallVideoFilePath_; }
    bool isVideoPaused() const override { return isVideoPaused_; }
    bool isVideoSwitched() const;
    // The row of the clip that plays in the filtered list, -1 when none does:
    // the tool bar acts on it, wherever the list's selection has moved.
    int playingRow() const;

    // Stops what plays and loads row `row` of the filtered list from its start.
    void playVideoWithIdx(int row);
    // The seek time is accepted but a clip always starts from its beginning.
    void prepareVideoToPlay(const std::string& url, double seekTime = 0.0);
    // The recording time read from the clip's name, or the name itself.
    void showRecordingTime(const std::string& clip);
    void playVideo() override;
    void pauseVideo() override;
    void stopVideo();
    // The card is about to be formatted or ejected: the clip is closed, and
    // nothing of the viewer's keeps a file of the card open when this returns.
    void releaseCard();
    void setCurrentVideoTime(double seconds);
    void onMovieReady();
    void movieDidEnd();
    void showUnsupportedFileAlert();

    // Tool-bar and key commands; the sender is the button or the window.
    void playPauseButtonTouched(QObject* sender = nullptr);
    void stopButtonTouched(QObject* sender = nullptr);
    void playPrevFileButtonTouched(QObject* sender = nullptr);
    void playNextFileButtonTouched(QObject* sender = nullptr);
    void rewindButtonTouched(QObject* sender = nullptr);
    void fastForwardButtonTouched(QObject* sender = nullptr);
    void videoRotateButtonTouched(QObject* sender = nullptr);
    void toggleVideoSwithButtonTouched(QObject* sender = nullptr);
    void fullscreenButtonTouched(QObject* sender = nullptr);
    void hideFullScreenMovie();
    void volumeUp();
    void volumeDown();
    void seekTimeSliderTouchedUp(double seconds);

    // OrvoAVViewDelegate
    void orvoAVViewDidUpdateStatus(OrvoAVView* view, OrvoAVViewStatus status) override;
    void orvoAVViewDidUpdateTime(OrvoAVView* view, double seconds) override;
    void orvoAVViewDidPlayToEndTime(OrvoAVView* view) override;
    void orvoAVViewDidRequestFullscreen(OrvoAVView* view) override;

signals:
    // The main window enables or disables its playback controls.
    void enableVideoControlsRequested(bool enabled);
    // The players' covers should follow whether each player has a movie.
    void movieViewCoversNeedUpdate();
    // The clip that plays changed (the file system's bytes; empty for none).
    void playingClipChanged(const QByteArray& clip);
    // The playing clip's telemetry is in (read off the interface thread).
    void telemetryLoaded();

private:
    class BigPlayerClock;

    void connectButtons();
    void clearTelemetry();
    // Both players emptied and no clip playing.
    void closeClip();
    void showTelemetry(const std::shared_ptr<LoadedTelemetry>& telemetry);
    void setPlayPauseImages(const char* image);
    int selectedRow() const;
    int actedOnRow() const;
    // Ends the load of a clip that cannot be shown, with the alert that says why.
    void refuseClip(const std::string& url, ClipFileState state);
    void setPlayingClip(const std::string& url);
    // The view whose player sets the time: the front camera's, wherever a
    // swap has put it. The other view's player follows it.
    OrvoAVView* frontView() const;
    // A clip was asked for and has not started yet.
    bool isOpening() const;
    void selectRowAndPlay(int row);

    const PlaybackViews& v_;
    ClipCatalogue& catalogue_;
    OrvoAVView* bigMovieView_;
    OrvoAVView* smallMovieView_;
    // The window may go first, taking the players with it.
    QPointer<OrvoAVView> bigGuard_;
    QPointer<OrvoAVView> smallGuard_;
    std::unique_ptr<OrvoClipData> clipData_;
    std::unique_ptr<SubtitleData> subtitleData_;
    std::unique_ptr<BigPlayerClock> clock_;
    std::unique_ptr<DashboardWidgets> widgets_;
    SeekSliderController* seek_;
    VolumeController* volume_;
    DashboardUpdater* dashboard_;
    ZoomController* zoom_;
    FullScreenController* fullScreen_;
    PlayAnimation* animation_;
    ClipSaver* saver_;
    ClipFailureWatch* failureWatch_;
    AfterFirstPictures* afterPictures_;
    TelemetryLoader* telemetry_;
    FrontRearLock* lock_;
    NextClipPreloader* preloader_;
    // The views whose first pictures the route waits for.
    QList<OrvoAVView*> pictureViews_;
    AlertPresenter alert_;
    VideoConverter convert_;
    std::string currentVideoUrl_;
    std::string bigVideoFilePath_;
    std::string smallVideoFilePath_;
    bool isVideoPaused_ = true;
    // Both players report ready, in either order, and both reports may come
    // after both are ready: the clip starts once per load, so a pause given
    // in between is not undone by the second report.
    bool startedThisLoad_ = false;
    // Space or a frame step while the clip opens: it starts paused.
    bool startPaused_ = false;
};

}  // namespace tarvik
