#include "ui/library/playback/volume_controller.h"

#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>
#include <cmath>

#include "ui/controls/image_button.h"
#include "ui/library/player/orvo_av_view.h"

namespace tarvik {

VolumeController::VolumeController(QSlider* slider, ImageButton* muteButton, OrvoAVView* bigMovieView,
                                   QObject* parent)
    : QObject(parent), slider_(slider), muteButton_(muteButton), bigMovieView_(bigMovieView) {
    slider_->setRange(0, 100);
    connect(slider_, &QSlider::valueChanged, this, &VolumeController::onSliderMoved);
    if (muteButton_) {
        muteButton_->setAllowAutoMouseEventImage(false);
        connect(muteButton_, &QAbstractButton::clicked, this, [this] { toggleMuteButtonTouched(); });
    }
    setVolume(1.0f);
    setVideoMute(false);
}

void VolumeController::setVolume(float volume) {
    if (!std::isfinite(volume)) volume = 0.0f;
    volume_ = std::clamp(volume, 0.0f, 1.0f);
    const QSignalBlocker block(slider_);
    slider_->setValue(static_cast<int>(std::lround(volume_ * 100.0f)));
}

void VolumeController::onSliderMoved(int value) {
    volume_ = static_cast<float>(value) / 100.0f;
    volumeChanged(volume_);
}

void VolumeController::setIsMuted(bool muted) {
    isMuted_ = muted;
    if (muted) backupVolume_ = volume_;
    setVolume(muted ? 0.0f : backupVolume_);
    volumeChanged(volume_);
}

void VolumeController::volumeUp() {
    setVolume(static_cast<float>(static_cast<double>(volume_) + 0.1));
    if (bigMovieView_) bigMovieView_->setVolume(volume_);
}

void VolumeController::volumeDown() {
    setVolume(static_cast<float>(static_cast<double>(volume_) - 0.1));
    if (bigMovieView_) bigMovieView_->setVolume(volume_);
}

void VolumeController::volumeChanged(float volume) {
    if (bigMovieView_) bigMovieView_->setVolume(volume);
}

void VolumeController::toggleMuteButtonTouched() {
    setIsMuted(!isMuted_);
    setVideoMute(isMuted_);
}

void VolumeController::setVideoMute(bool muted) {
    if (muteButton_) muteButton_->setImage(muted ? "volume2" : "volume1");
    slider_->setEnabled(!muted);
}

}  // namespace tarvik
