#pragma once
// The views playback drives, and nothing else of the window: the two player
// hosts, the tool bar, the seek slider and the dashboard. The window's layout
// builds them; playback only points at them.

class QLabel;
class QScrollArea;
class QSlider;
class QTableView;
class QWidget;

namespace tarvik {

class ImageButton;

struct PlaybackViews {
    // Parent of playback's dialogs and alerts.
    QWidget* window = nullptr;
    // Playback reads which clip is selected and moves the selection with it.
    QTableView* fileListTableView = nullptr;

    // Players.
    QScrollArea* bigMovieViewScrollView = nullptr;
    QWidget* bigMovieHost = nullptr;    // where the large player goes
    QWidget* smallMovieHost = nullptr;  // where the small player goes

    // Tool bar.
    QSlider* seekTimeSliderView = nullptr;
    QLabel* playTimeTextField = nullptr;
    ImageButton* playPrevFileButton = nullptr;
    ImageButton* rewindButton = nullptr;
    ImageButton* playPauseButton = nullptr;
    ImageButton* stopButton = nullptr;
    ImageButton* fastForwardButton = nullptr;
    ImageButton* playNextFileButton = nullptr;
    ImageButton* snapshotButton = nullptr;
    ImageButton* printButton = nullptr;
    ImageButton* saveFileButton = nullptr;
    ImageButton* videoScaleUpButton = nullptr;
    ImageButton* videoScaleDownButton = nullptr;
    ImageButton* resetVideoScaleButton = nullptr;
    ImageButton* videoRotateButton = nullptr;
    ImageButton* switchVideoButton = nullptr;
    ImageButton* fullscreenButton = nullptr;
    ImageButton* muteButton = nullptr;
    QSlider* volumeSliderView = nullptr;

    // Dashboard.
    QWidget* gravityGraphHost = nullptr;
    QWidget* speedMeterHost = nullptr;
    QWidget* mapCoverView = nullptr;
    QLabel* gpsImageView = nullptr;
    QLabel* earthImageView = nullptr;
    QLabel* shockCarImageView = nullptr;
    QLabel* gxTextField = nullptr;
    QLabel* gyTextField = nullptr;
    QLabel* gzTextField = nullptr;
    QLabel* latTextField = nullptr;
    QLabel* lngTextField = nullptr;
    QLabel* fileDateTextField = nullptr;
};

}  // namespace tarvik
