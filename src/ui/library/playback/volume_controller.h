#pragma once
// The volume slider and the mute button. The volume lives here as a float
// (the slider's 0..100 steps are only its picture), so repeated +0.1 steps
// and a mute/unmute round trip give back exactly what they should. Only the
// large player makes sound; the small one stays at volume 0.

#include <QObject>

class QSlider;

namespace tarvik {

class ImageButton;
class OrvoAVView;

class VolumeController : public QObject {
    Q_OBJECT
public:
    VolumeController(QSlider* slider, ImageButton* muteButton, OrvoAVView* bigMovieView, QObject* parent = nullptr);

    float volume() const { return volume_; }
    bool isMuted() const { return isMuted_; }
    QSlider* slider() const { return slider_; }

    // Clamped into 0..1; moves the gauge. Does not tell the player.
    void setVolume(float volume);
    // Muting keeps the volume from before and gives it back when unmuted;
    // either way the player follows.
    void setIsMuted(bool muted);

    void volumeUp();
    void volumeDown();
    // The slider moved (or was set while muting): the large player follows.
    void volumeChanged(float volume);
    void toggleMuteButtonTouched();
    // The mute button's picture, and the slider is disabled while muted.
    void setVideoMute(bool muted);

private:
    void onSliderMoved(int value);

    QSlider* slider_;
    ImageButton* muteButton_;
    OrvoAVView* bigMovieView_;
    float volume_ = 1.0f;
    float backupVolume_ = 1.0f;
    bool isMuted_ = false;
};

}  // namespace tarvik
