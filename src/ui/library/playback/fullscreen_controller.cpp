#include "ui/library/playback/fullscreen_controller.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <QWidget>

#include "ui/library/playback/fullscreen_control_bar.h"
#include "ui/library/playback/playback_transport.h"
#include "ui/library/playback/volume_controller.h"
#include "ui/library/player/orvo_av_view.h"

namespace tarvik {

namespace {

// The full-screen window hands its keys to the main window, whose key table
// (Escape, Space, arrows) then works in full screen as well.
class FullScreenWindow : public QWidget {
public:
    explicit FullScreenWindow(QWidget* keyTarget)
        : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), keyTarget_(keyTarget) {
        setObjectName("fullScreenWindow");
        setStyleSheet("#fullScreenWindow { background: black; }");
        setAttribute(Qt::WA_StyledBackground, true);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (!keyTarget_) return QWidget::keyPressEvent(event);
        QKeyEvent copy(event->type(), event->key(), event->modifiers(), event->text(), event->isAutoRepeat(),
                       static_cast<ushort>(event->count()));
        QCoreApplication::sendEvent(keyTarget_, &copy);
    }

private:
    QPointer<QWidget> keyTarget_;
};

}  // namespace

FullScreenController::FullScreenController(OrvoAVView* bigMovieView, OrvoAVView* smallMovieView,
                                           QWidget* mainWindow, PlaybackTransport& transport,
                                           const VolumeController& volume, QObject* parent)
    : QObject(parent),
      bigMovieView_(bigMovieView),
      smallMovieView_(smallMovieView),
      mainWindow_(mainWindow),
      transport_(transport),
      volume_(volume),
      window_(new FullScreenWindow(mainWindow)) {
    auto* layout = new QVBoxLayout(window_);
    layout->setContentsMargins(0, 0, 0, 0);
    mirror_ = new OrvoQTMovieView(window_);
    mirror_->setDelegate(this);
    layout->addWidget(mirror_);
    controlBar_ = new FullscreenControlBar(window_);
}

FullScreenController::~FullScreenController() { delete window_; }

void FullScreenController::fullscreenButtonTouched(QObject* sender) {
    if (isFullScreenMode_) {
        hideFullScreenMovie();
        return;
    }
    showFullScreenMovie(sender == smallMovieView_ ? smallMovieView_ : bigMovieView_);
}

void FullScreenController::showFullScreenMovie(OrvoAVView* view) {
    if (!view) return;
    isFullScreenMode_ = true;
    fullScreenMovieView_ = view;
    mapHiddenOnFullScreen_ = !mapWebView_ || mapWebView_->isHidden();
    if (mapWebView_) mapWebView_->hide();

    mirror_->setMovieSource(view);
    // Only the screen the main window is on is taken over.
    QScreen* screen = mainWindow_ ? mainWindow_->screen() : nullptr;
    if (screen) {
        window_->setScreen(screen);
        window_->setGeometry(screen->geometry());
    }
    window_->showFullScreen();
    window_->raise();
    window_->activateWindow();
    window_->setFocus();

    showFullscreenMovieControlWindow();
    // The other view plays on: it keeps one time with the shown one, and
    // coming back shows both on the same frame without a seek.
    if (view != bigMovieView_) smallMovieView_->setVolume(volume_.volume());
}

void FullScreenController::hideFullScreenMovie() {
    if (!isFullScreenMode_) return;
    window_->hide();
    mirror_->setMovieSource(nullptr);
    hideFullscreenMovieControlWindow();
    isFullScreenMode_ = false;
    if (mapWebView_) mapWebView_->setHidden(mapHiddenOnFullScreen_);

    smallMovieView_->setVolume(0.0f);
    fullScreenMovieView_ = nullptr;
    if (mainWindow_) mainWindow_->activateWindow();
}

void FullScreenController::showFullscreenMovieControlWindow() {
    if (!isFullScreenMode_ || controlBar_->isVisible()) return;
    QScreen* screen = window_->screen();
    controlBar_->fadeIn(screen ? screen->geometry() : window_->geometry());
}

void FullScreenController::hideFullscreenMovieControlWindow() {
    if (!isFullScreenMode_) return;
    controlBar_->hideNow();
}

}  // namespace tarvik
