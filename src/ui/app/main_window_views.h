#pragma once
// Every view of the main window, named as the controller knows them. Built
// once by MainWindowLayout; the controller and its helpers only point at them.

class QAbstractButton;
class QLabel;
class QMenu;
class QMenuBar;
class QAction;
class QScrollArea;
class QSlider;
class QTableView;
class QWidget;

namespace tarvik {

class ImageButton;
class MainWindow;

struct MainWindowViews {
    MainWindow* mainWindow = nullptr;

    // Title strip and menus.
    QMenuBar* mainMenu = nullptr;
    QMenu* appMenu = nullptr;
    QAction* quitMenuItem = nullptr;
    QLabel* modelTextField = nullptr;
    QLabel* mainVersionLabel = nullptr;
    ImageButton* settingsButton = nullptr;
    ImageButton* goHomepageButton = nullptr;
    ImageButton* appMinimizeButton = nullptr;
    ImageButton* appExitButton = nullptr;

    // Clip list.
    QWidget* fileListControlView_OEM = nullptr;
    QLabel* selectedDirTextField_OEM = nullptr;
    QTableView* fileListTableView = nullptr;
    ImageButton* fileListAllButton_OEM = nullptr;
    ImageButton* fileListAlwaysButton_OEM = nullptr;
    ImageButton* fileListMotionButton_OEM = nullptr;
    ImageButton* fileListEventButton_OEM = nullptr;
    ImageButton* fileListManualButton_OEM = nullptr;
    ImageButton* selectFolderButton = nullptr;
    ImageButton* fileListRemoveButton_OEM = nullptr;
    ImageButton* saveFileButton = nullptr;

    // Players.
    QScrollArea* bigMovieViewScrollView = nullptr;
    QWidget* bigMovieHost = nullptr;    // where the large player goes
    QWidget* smallMovieHost = nullptr;  // where the small player goes
    QLabel* bigMovieCoverImageView = nullptr;
    QLabel* smallMovieCoverImageView = nullptr;

    // Tool bar.
    QWidget* toolbarBg3 = nullptr;
    QWidget* toolbarButtons = nullptr;
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
    ImageButton* videoScaleUpButton = nullptr;
    ImageButton* videoScaleDownButton = nullptr;
    ImageButton* resetVideoScaleButton = nullptr;
    ImageButton* videoRotateButton = nullptr;
    ImageButton* switchVideoButton = nullptr;
    ImageButton* fullscreenButton = nullptr;
    ImageButton* muteButton = nullptr;
    QSlider* volumeSliderView = nullptr;

    // Dashboard.
    QWidget* dashBg3 = nullptr;
    QWidget* dashboardCtrls = nullptr;
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
