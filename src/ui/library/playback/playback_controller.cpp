#include "ui/library/playback/playback_controller.h"

#include <algorithm>

#include <QFile>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMessageBox>
#include <QScrollArea>
#include <QSlider>
#include <QTableView>
#include <QThreadPool>
#include <QVBoxLayout>
#include <QWebEngineView>

#include "core/library/clip_catalogue.h"
#include "core/library/clip_file_check.h"
#include "core/library/recording_time.h"
#include "core/library/trips/clip_container.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"
#include "ui/controls/image_button.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/library/playback/after_first_pictures.h"
#include "ui/library/playback/card_clip_files.h"
#include "ui/library/playback/card_reads.h"
#include "ui/library/playback/clip_failure_watch.h"
#include "ui/library/playback/clip_navigation.h"
#include "ui/library/playback/clip_saver.h"
#include "ui/library/playback/dashboard_updater.h"
#include "ui/library/playback/dashboard_widgets.h"
#include "ui/library/playback/fullscreen_control_bar.h"
#include "ui/library/playback/fullscreen_controller.h"
#include "ui/library/playback/next_clip_preloader.h"
#include "ui/library/playback/picture_drag_pan.h"
#include "ui/library/playback/playback_views.h"
#include "ui/library/playback/play_animation.h"
#include "ui/library/playback/seek_slider_controller.h"
#include "ui/library/playback/telemetry_loader.h"
#include "ui/library/playback/volume_controller.h"
#include "ui/library/playback/zoom_controller.h"
#include "ui/library/player/front_rear_lock.h"
#include "ui/library/player/orvo_av_view.h"
#include "ui/telemetry/gravity_graph_view.h"
#include "ui/telemetry/map_controller.h"

namespace tarvik {

class PlaybackController::BigPlayerClock : public PlayClock {
public:
    explicit BigPlayerClock(const OrvoAVView* view) : view_(view) {}
    double currentTime() const override { return view_->currentTime(); }
    double duration() const override { return view_->duration(); }

private:
    const OrvoAVView* view_;
};

namespace {

// A clip whose picture never comes still gets its route.
constexpr int kRouteDeadlineMs = 1500;
// How long releasing the card waits for each kind of reader to let go.
constexpr int kReleaseWaitMs = 3000;

OrvoAVView* playerIn(QWidget* host, const char* name) {
    auto* layout = new QVBoxLayout(host);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* view = new OrvoAVView(host);
    view->setObjectName(QString::fromLatin1(name));
    layout->addWidget(view);
    return view;
}

}  // namespace

PlaybackController::PlaybackController(const PlaybackViews& views, ClipCatalogue& catalogue, QObject* parent)
    : QObject(parent), v_(views), catalogue_(catalogue), clipData_(std::make_unique<OrvoClipData>()) {
    bigMovieView_ = playerIn(v_.bigMovieHost, "bigMoviePlayer");
    smallMovieView_ = playerIn(v_.smallMovieHost, "smallMoviePlayer");
    bigMovieView_->setDelegate(this);
    smallMovieView_->setDelegate(this);
    bigGuard_ = bigMovieView_;
    smallGuard_ = smallMovieView_;
    clock_ = std::make_unique<BigPlayerClock>(bigMovieView_);

    widgets_ = std::make_unique<DashboardWidgets>(DashboardWidgets::install(v_.gravityGraphHost, v_.speedMeterHost));
    widgets_->installMap(v_.mapCoverView, this);
    seek_ = new SeekSliderController(v_.seekTimeSliderView, this);
    volume_ = new VolumeController(v_.volumeSliderView, v_.muteButton, bigMovieView_, this);

    const DashboardTargets targets = widgets_->targets(v_, seek_);
    dashboard_ = new DashboardUpdater(targets, *clock_, this);
    dashboard_->setClipData(clipData_.get());
    dashboard_->showMapCover();

    // The main window has no pan button of its own; panning stays a state here.
    zoom_ = new ZoomController(v_.bigMovieViewScrollView, v_.bigMovieHost, nullptr, this);
    fullScreen_ = new FullScreenController(bigMovieView_, smallMovieView_, v_.window,
                                           *this, *volume_, this);
    fullScreen_->setMapWebView(targets.mapWebView);
    zoom_->setFullScreenQuery([this] { return fullScreen_->isFullScreenMode(); });
    zoom_->changeVideoScale(zoom_->videoScale());
    new PictureDragPan(v_.bigMovieViewScrollView, bigMovieView_, this);
    animation_ = new PlayAnimation(v_.shockCarImageView, v_.earthImageView, this);

    ClipSaver::Context saving;
    saving.window = v_.window;
    saving.catalogue = &catalogue_;
    saving.selectedRow = [this] { return actedOnRow(); };
    saving.currentVideoUrl = [this] { return currentVideoUrl_; };
    saving.bigMovieView = bigMovieView_;
    saving.transport = this;
    saver_ = new ClipSaver(std::move(saving), this);
    failureWatch_ = new ClipFailureWatch(bigMovieView_, this);
    afterPictures_ = new AfterFirstPictures(this);
    telemetry_ = new TelemetryLoader(this);
    lock_ = new FrontRearLock(this);
    preloader_ = new NextClipPreloader(catalogue_, bigMovieView_, smallMovieView_, this);
    connect(telemetry_, &TelemetryLoader::loaded, this, &PlaybackController::showTelemetry);
    connect(failureWatch_, &ClipFailureWatch::failed, this, [this] {
        refuseClip(currentVideoUrl_, checkClipFile(currentVideoUrl_));
    });

    alert_ = [this](const QString& message, const QString& informative) {
        // Window-modal and without a nested event loop: the window stays blocked
        // until it is dismissed, and the players' events keep flowing meanwhile.
        auto* box = new QMessageBox(QMessageBox::Warning, message, message, QMessageBox::Ok, v_.window);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setInformativeText(informative);
        box->setWindowModality(Qt::WindowModal);
        box->open();
    };
    convert_ = cardClipFiles;
    connectButtons();
}

PlaybackController::~PlaybackController() {
    // The players go with their hosts; they must not call back into a half-destroyed controller.
    if (bigGuard_) bigGuard_->setDelegate(nullptr);
    if (smallGuard_) smallGuard_->setDelegate(nullptr);
}

void PlaybackController::connectButtons() {
    auto on = [this](ImageButton* button, auto action) {
        if (button) connect(button, &QAbstractButton::clicked, this, [this, button, action] { (this->*action)(button); });
    };
    on(v_.playPauseButton, &PlaybackController::playPauseButtonTouched);
    on(v_.stopButton, &PlaybackController::stopButtonTouched);
    on(v_.playPrevFileButton, &PlaybackController::playPrevFileButtonTouched);
    on(v_.playNextFileButton, &PlaybackController::playNextFileButtonTouched);
    on(v_.rewindButton, &PlaybackController::rewindButtonTouched);
    on(v_.fastForwardButton, &PlaybackController::fastForwardButtonTouched);
    on(v_.videoRotateButton, &PlaybackController::videoRotateButtonTouched);
    on(v_.switchVideoButton, &PlaybackController::toggleVideoSwithButtonTouched);
    on(v_.fullscreenButton, &PlaybackController::fullscreenButtonTouched);
    connect(v_.videoScaleUpButton, &QAbstractButton::clicked, zoom_, &ZoomController::videoScaleUpButtonTouched);
    connect(v_.videoScaleDownButton, &QAbstractButton::clicked, zoom_, &ZoomController::videoScaleDownButtonTouched);
    connect(v_.resetVideoScaleButton, &QAbstractButton::clicked, zoom_,
            &ZoomController::resetVideoScaleButtonTouched);
    connect(v_.snapshotButton, &QAbstractButton::clicked, saver_, &ClipSaver::snapshotButtonTouched);
    connect(v_.printButton, &QAbstractButton::clicked, saver_, &ClipSaver::printButtonTouched);
    connect(v_.saveFileButton, &QAbstractButton::clicked, saver_, &ClipSaver::saveFileButtonTouched);
    connect(seek_, &SeekSliderController::touchedUp, this, &PlaybackController::seekTimeSliderTouchedUp);

    FullscreenControlBar* bar = fullScreen_->controlBar();
    on(bar->playPauseButton(), &PlaybackController::playPauseButtonTouched);
    on(bar->rewindButton(), &PlaybackController::rewindButtonTouched);
    on(bar->fastForwardButton(), &PlaybackController::fastForwardButtonTouched);
    connect(bar->exitButton(), &QAbstractButton::clicked, this, &PlaybackController::hideFullScreenMovie);
}

bool PlaybackController::isVideoSwitched() const { return catalogue_.isVideoSwitched(); }

void PlaybackController::playVideoWithIdx(int row) {
    stopVideo();
    const auto& list = catalogue_.filteredVideoFileList();
    if (row < 0 || row >= static_cast<int>(list.size())) return;
    prepareVideoToPlay(list[static_cast<std::size_t>(row)], 0.0);
}

void PlaybackController::showRecordingTime(const std::string& clip) {
    const auto name = ClipCatalogue::fileName(clip);
    std::string when = recordingTimeText(name);
    // Cameras that put no time into their names have their container's.
    if (when.empty())
        if (const auto t = containerCreationTime(clip)) when = recordingTimeText(*t);
    v_.fileDateTextField->setText(when.empty() ? QFile::decodeName(QByteArray(name.data(), static_cast<int>(name.size())))
                                               : QString::fromStdString(when));
}

void PlaybackController::prepareVideoToPlay(const std::string& url, double) {
    dashboard_->resetVideoInformation();
    if (!fullScreen_->isFullScreenMode()) zoom_->resetForNewClip();
    startPaused_ = false;

    bigMovieView_->resetForNextClip();
    smallMovieView_->resetForNextClip();
    bigVideoFilePath_.clear();
    smallVideoFilePath_.clear();
    clearTelemetry();
    dashboard_->resetLastPosition();

    failureWatch_->disarm();
    startedThisLoad_ = false;
    // Whatever cannot even be read is refused before anything is started.
    const ClipFileState state = checkClipFile(url);
    if (state == ClipFileState::Missing || state == ClipFileState::Unreadable || state == ClipFileState::Empty)
        return refuseClip(url, state);
    const auto files = convert_ ? convert_(url) : std::nullopt;
    if (!files || files->empty()) return refuseClip(url, state);
    setPlayingClip(url);
    emit enableVideoControlsRequested(true);
    showRecordingTime(url);

    bigVideoFilePath_ = files->front();
    // Watching first: a clip opened ahead shows its picture at once.
    failureWatch_->watch();
    bigMovieView_->setFilePath(QByteArray::fromStdString(bigVideoFilePath_));
    if (files->size() >= 2) {
        smallVideoFilePath_ = (*files)[1];
        smallMovieView_->setFilePath(QByteArray::fromStdString(smallVideoFilePath_));
        smallMovieView_->setVolume(0.0f);
        v_.switchVideoButton->setEnabled(true);
    } else {
        v_.switchVideoButton->setEnabled(false);
    }
    if (isPairedClipPath(url)) catalogue_.setVideoSwitched(false);
    lock_->lock(bigMovieView_->player(), files->size() >= 2 ? smallMovieView_->player() : nullptr);

    pictureViews_ = files->size() >= 2 ? QList<OrvoAVView*>{bigMovieView_, smallMovieView_}
                                       : QList<OrvoAVView*>{bigMovieView_};
    telemetry_->load(url);
    emit movieViewCoversNeedUpdate();
}

void PlaybackController::clearTelemetry() {
    telemetry_->cancel();
    afterPictures_->cancel();
    *clipData_ = OrvoClipData();
    subtitleData_.reset();
    dashboard_->setSubtitleData(nullptr);
    widgets_->gravityGraphView->setClipData(*clipData_);
    if (widgets_->mapController) widgets_->mapController->removeMapLine();
    v_.gpsImageView->hide();
}

void PlaybackController::showTelemetry(const std::shared_ptr<LoadedTelemetry>& t) {
    *clipData_ = t->clip;
    subtitleData_ = std::move(t->track);
    dashboard_->setSubtitleData(subtitleData_.get());
    widgets_->gravityGraphView->setClipData(*clipData_);
    if (clipData_->gpsDataCount() != 0) {
        v_.gpsImageView->show();
        if (widgets_->mapController)
            afterPictures_->run(pictureViews_, [this] { widgets_->mapController->addRoute(*clipData_); },
                                kRouteDeadlineMs);
    }
    emit telemetryLoaded();
}

void PlaybackController::setPlayPauseImages(const char* image) {
    v_.playPauseButton->setImage(image);
    fullScreen_->controlBar()->playPauseButton()->setImage(image);
}

void PlaybackController::playVideo() {
    if (!bigMovieView_->hasMovie()) return;
    isVideoPaused_ = false;
    setPlayPauseImages("pause1");
    dashboard_->startVideoPlayTimer();
    animation_->startPlayAnimation();
    frontView()->play();
}

void PlaybackController::pauseVideo() {
    if (isVideoPaused_) return;
    isVideoPaused_ = true;
    setPlayPauseImages("play_1");
    frontView()->pause();
    dashboard_->stopVideoPlayTimer();
    animation_->stopPlayAnimation();
}

void PlaybackController::stopVideo() {
    pauseVideo();
    isVideoPaused_ = true;
    frontView()->setCurrentTime(0.0);
    dashboard_->stopVideoPlayTimer();
    seek_->setCurrentSliderValue(0.0);
    dashboard_->resetUpdateTimes();
    dashboard_->resetLastPosition();
    animation_->stopPlayAnimation();
    dashboard_->showMapCover();
}

void PlaybackController::setCurrentVideoTime(double seconds) { frontView()->setCurrentTime(seconds); }

OrvoAVView* PlaybackController::frontView() const {
    return lock_->front() && lock_->front() == smallMovieView_->player() ? smallMovieView_ : bigMovieView_;
}

bool PlaybackController::isOpening() const { return !startedThisLoad_ && bigMovieView_->hasMovie(); }

void PlaybackController::onMovieReady() {
    if (startedThisLoad_) return;
    startedThisLoad_ = true;
    if (startPaused_) return;
    playVideo();
    animation_->startPlayAnimation();
}

void PlaybackController::movieDidEnd() {
    dashboard_->stopVideoPlayTimer();
    playNextFileButtonTouched(nullptr);
    dashboard_->showMapCover();
}

void PlaybackController::setPlayingClip(const std::string& url) {
    currentVideoUrl_ = url;
    preloader_->clipStarted(url);
    emit playingClipChanged(QByteArray::fromStdString(url));
}

void PlaybackController::closeClip() {
    failureWatch_->disarm();
    lock_->release();
    bigMovieView_->reset();
    smallMovieView_->reset();
    setPlayingClip({});
    // The players were reset: their covers come back (before any alert).
    emit movieViewCoversNeedUpdate();
}

void PlaybackController::releaseCard() {
    stopVideo();
    clearTelemetry();
    closeClip();
    telemetry_->waitForRead();
    // Players end on the pool's threads; a demuxer stuck on a dying card
    // must not hang the window, so the waits are bounded. A card report of
    // thousands of clips may still be reading after that.
    QThreadPool::globalInstance()->waitForDone(kReleaseWaitMs);
    cardReads().waitForDone(kReleaseWaitMs);
}

void PlaybackController::refuseClip(const std::string& url, ClipFileState state) {
    pauseVideo();
    closeClip();
    if (alert_) alert_(tr_k("메모리카드 오류"), ClipFailureWatch::reasonText(url.empty() ? ClipFileState::Ok : state));
}

void PlaybackController::showUnsupportedFileAlert() {
    if (alert_) alert_(tr_k("메모리카드 오류"), tr_k("지원하지 않는 형식으로 인코딩된 동영상입니다."));
}

void PlaybackController::playPauseButtonTouched(QObject*) {
    // Before the clip starts, the key decides how it starts.
    if (isOpening()) {
        startPaused_ = !startPaused_;
        return;
    }
    if (isVideoPaused_)
        playVideo();
    else
        pauseVideo();
}

void PlaybackController::stopButtonTouched(QObject*) { stopVideo(); }

int PlaybackController::playingRow() const {
    if (currentVideoUrl_.empty()) return -1;
    const auto& list = catalogue_.filteredVideoFileList();
    const auto it = std::find(list.begin(), list.end(), currentVideoUrl_);
    return it == list.end() ? -1 : static_cast<int>(it - list.begin());
}

int PlaybackController::actedOnRow() const {
    const int playing = playingRow();
    return playing >= 0 ? playing : selectedRow();
}

int PlaybackController::selectedRow() const {
    const QItemSelectionModel* selection = v_.fileListTableView->selectionModel();
    if (!selection) return -1;
    const QModelIndexList rows = selection->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void PlaybackController::selectRowAndPlay(int row) {
    QTableView* table = v_.fileListTableView;
    if (table->model() && table->selectionModel()) {
        const QModelIndex index = table->model()->index(row, 0);
        table->selectionModel()->select(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        table->scrollTo(index);
    }
    playVideoWithIdx(row);
}

void PlaybackController::playNextFileButtonTouched(QObject*) {
    const int n = nextClipRow(catalogue_.filteredVideoFileList(), actedOnRow());
    if (n >= 0 && n < catalogue_.rowCount()) selectRowAndPlay(n);
}

void PlaybackController::playPrevFileButtonTouched(QObject*) {
    const int p = previousClipRow(catalogue_.filteredVideoFileList(), actedOnRow());
    if (p >= 0) selectRowAndPlay(p);
}

// The front steps; the rear is seeked to the front's new frame. A step
// given while the clip opens is made once it is open, and the clip stays paused.
void PlaybackController::rewindButtonTouched(QObject*) {
    if (isOpening()) startPaused_ = true;
    pauseVideo();
    frontView()->stepBackward();
    dashboard_->playVideoTimerCallback();
}

void PlaybackController::fastForwardButtonTouched(QObject*) {
    if (isOpening()) startPaused_ = true;
    pauseVideo();
    frontView()->stepForward();
    dashboard_->playVideoTimerCallback();
}

void PlaybackController::videoRotateButtonTouched(QObject*) {
    const bool upsideDown = !bigMovieView_->upsideDown();
    bigMovieView_->setUpsideDown(upsideDown);
    smallMovieView_->setUpsideDown(upsideDown);
}

void PlaybackController::toggleVideoSwithButtonTouched(QObject*) {
    pauseVideo();
    catalogue_.setVideoSwitched(!catalogue_.isVideoSwitched());
    bigMovieView_->swapPlayerItemWith(smallMovieView_);
    // The sound goes with the large picture; the small player stays silent.
    bigMovieView_->setVolume(volume_->volume());
    smallMovieView_->setVolume(0.0f);
    playVideo();
}

void PlaybackController::fullscreenButtonTouched(QObject* sender) { fullScreen_->fullscreenButtonTouched(sender); }

void PlaybackController::hideFullScreenMovie() { fullScreen_->hideFullScreenMovie(); }

void PlaybackController::volumeUp() { volume_->volumeUp(); }

void PlaybackController::volumeDown() { volume_->volumeDown(); }

void PlaybackController::seekTimeSliderTouchedUp(double seconds) {
    dashboard_->resetUpdateTimes();
    frontView()->setCurrentTime(seconds);
}

void PlaybackController::orvoAVViewDidUpdateStatus(OrvoAVView* view, OrvoAVViewStatus status) {
    // A report from an earlier load of the same view no longer counts.
    if (view->status() != status) return;
    if (view == bigMovieView_ && status == OrvoAVViewStatusError) failureWatch_->reportFailure();
    if (view == bigMovieView_ && status == OrvoAVViewStatusPrepared) failureWatch_->opened();
    if (view == bigMovieView_ && status == OrvoAVViewStatusPrepared) {
        seek_->setMaxSliderValue(bigMovieView_->duration());
        bigMovieView_->setVolume(volume_->volume());
        if (volume_->isMuted()) volume_->slider()->setEnabled(false);
        if (!smallMovieView_->hasMovie() || smallMovieView_->status() == OrvoAVViewStatusPrepared) onMovieReady();
    } else if (view == smallMovieView_ && status == OrvoAVViewStatusPrepared) {
        smallMovieView_->setVolume(0.0f);
        if (bigMovieView_->status() == OrvoAVViewStatusPrepared) onMovieReady();
    } else if (view == smallMovieView_ && status == OrvoAVViewStatusError && isVideoPaused_ &&
               bigMovieView_->status() == OrvoAVViewStatusPrepared) {
        // A broken rear file must not hold the front one back: had it failed
        // before the front was ready, the front would have started alone.
        onMovieReady();
    }
}

void PlaybackController::orvoAVViewDidUpdateTime(OrvoAVView* view, double) {
    // While paused the timer is off, but a frame step or seek still moves the
    // time, and it arrives only now: the dashboard shows the new frame's data.
    if (view == bigMovieView_ && isVideoPaused_) dashboard_->playVideoTimerCallback();
}

void PlaybackController::orvoAVViewDidPlayToEndTime(OrvoAVView* view) {
    // The front sets the time; a shorter rear holds its last picture meanwhile.
    if (view != frontView()) return;
    // An end before any picture is a clip that could not be shown.
    if (!failureWatch_->hasShownPicture()) return failureWatch_->reportFailure();
    movieDidEnd();
}

void PlaybackController::orvoAVViewDidRequestFullscreen(OrvoAVView* view) { fullscreenButtonTouched(view); }

}  // namespace tarvik
