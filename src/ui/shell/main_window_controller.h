#pragma once
// The hub of the main window: it owns every view and the controllers that
// share the window's duties (clip list, card, preferences), runs the start-up
// sequence and answers the window's keyboard commands.

#include <QObject>
#include <QPointer>
#include <memory>

#include "ui/shell/main_window_views.h"

namespace tarvik {

class CardController;
class CatalogueController;
class IncidentFeatures;
class MainWindow;
class MountWatcher;
class PlaybackController;
class PreferencesMenuController;
class SettingsAlertBox;
class SplashWindow;
class TripFeatures;

class MainWindowController : public QObject {
    Q_OBJECT
public:
    explicit MainWindowController(QObject* parent = nullptr);
    ~MainWindowController() override;

    // Shows the splash, then the main window after two seconds.
    void start(int splashMilliseconds = 2000);
    // When no camera card is found at start, this folder is opened as if the
    // user had chosen it (the bundled demo card); empty for none.
    void setFallbackFolder(const QString& folder) { fallbackFolder_ = folder; }
    // Opens this folder at start whatever card is present.
    void setStartFolder(const QString& folder) { startFolder_ = folder; }

    const MainWindowViews& views() const { return v_; }
    MainWindow* mainWindow() const { return v_.mainWindow; }
    SplashWindow* splashWindow() const { return splash_.get(); }
    CatalogueController& catalogue() { return *catalogue_; }
    CardController& card() { return *card_; }
    PreferencesMenuController& preferencesMenu() { return *prefsMenu_; }
    PlaybackController& playback() { return *playback_; }
    TripFeatures& trips() { return *trips_; }
    IncidentFeatures& incident() { return *incident_; }

    void showMainWindow();
    void enableVideoControls(bool flag);
    void updateMovieViewCoverScrren();
    void windowDidResize();
    void applyLanguageSettings();
    bool updateModelInfo();

public slots:
    // Keyboard commands of the main window (see MainWindow::actionForKey).
    void appExitButtonTouched(QObject* sender = nullptr);
    void appMinimizeButtonTouched(QObject* sender = nullptr);
    void goHomepageButtonTouched(QObject* sender = nullptr);
    void refreshLanguageHandler();
    void refreshSpeedUnitHandler();
    void volumeMountHandler();

    // ---- playback: keyboard commands carried out by PlaybackController ----
    void fullscreenButtonTouched(QObject* sender = nullptr);
    void playPauseButtonTouched(QObject* sender = nullptr);
    void hideFullScreenMovie(QObject* sender = nullptr);
    void rewindButtonTouched(QObject* sender = nullptr);
    void fastForwardButtonTouched(QObject* sender = nullptr);
    void volumeDown(QObject* sender = nullptr);
    void volumeUp(QObject* sender = nullptr);
    void markIncidentIn(QObject* sender = nullptr);
    void markIncidentOut(QObject* sender = nullptr);
    // ---- end of playback commands ----

signals:
    // A row of the clip list should play from its start.
    void playVideoWithIdx(int row);
    void startedUp();

private:
    void buildMapAndMenus();
    void openStartFolder();

    MainWindowViews v_;
    std::unique_ptr<SplashWindow> splash_;
    CatalogueController* catalogue_ = nullptr;
    CardController* card_ = nullptr;
    PreferencesMenuController* prefsMenu_ = nullptr;
    MountWatcher* mountWatcher_ = nullptr;
    std::unique_ptr<SettingsAlertBox> alertBox_;
    PlaybackController* playback_ = nullptr;
    TripFeatures* trips_ = nullptr;
    IncidentFeatures* incident_ = nullptr;
    QString fallbackFolder_;
    QString startFolder_;
    bool startFolderOpened_ = false;
};

}  // namespace tarvik
