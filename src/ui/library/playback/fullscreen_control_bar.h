#pragma once
// The floating bar of full-screen playback: frame steps, play/pause and the
// way out. It fades in when shown and is gone at once when hidden.

#include <QWidget>

class QPropertyAnimation;

namespace tarvik {

class ImageButton;

class FullscreenControlBar : public QWidget {
    Q_OBJECT
public:
    static constexpr int kFadeMilliseconds = 250;
    static constexpr int kBottomMargin = 48;

    explicit FullscreenControlBar(QWidget* parent = nullptr);

    ImageButton* rewindButton() const { return rewind_; }
    ImageButton* playPauseButton() const { return playPause_; }
    ImageButton* fastForwardButton() const { return fastForward_; }
    ImageButton* exitButton() const { return exit_; }

    // Centred horizontally near the bottom of `screenGeometry`, from alpha 0 to 1.
    void fadeIn(const QRect& screenGeometry);
    void hideNow();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ImageButton* rewind_;
    ImageButton* playPause_;
    ImageButton* fastForward_;
    ImageButton* exit_;
    QPropertyAnimation* fade_;
};

}  // namespace tarvik
