#pragma once
// Every view of the main window, named as the controller knows them. Built
// once by MainWindowLayout; the controller and its helpers only point at them.
// Playback sees only its own part (PlaybackViews).

#include "ui/library/playback/playback_views.h"

class QLabel;
class QMenu;
class QMenuBar;
class QAction;
class QWidget;

namespace tarvik {

class ImageButton;
class MainWindow;

struct MainWindowViews : PlaybackViews {
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
    ImageButton* fileListAllButton_OEM = nullptr;
    ImageButton* fileListAlwaysButton_OEM = nullptr;
    ImageButton* fileListMotionButton_OEM = nullptr;
    ImageButton* fileListEventButton_OEM = nullptr;
    ImageButton* fileListManualButton_OEM = nullptr;
    ImageButton* selectFolderButton = nullptr;
    ImageButton* fileListRemoveButton_OEM = nullptr;

    // Players.
    QLabel* bigMovieCoverImageView = nullptr;
    QLabel* smallMovieCoverImageView = nullptr;

    // Tool bar.
    QWidget* toolbarBg3 = nullptr;
    QWidget* toolbarButtons = nullptr;

    // Dashboard.
    QWidget* dashBg3 = nullptr;
    QWidget* dashboardCtrls = nullptr;
};

}  // namespace tarvik
