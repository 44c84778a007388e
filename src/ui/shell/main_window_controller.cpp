#include "ui/shell/main_window_controller.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QSlider>
#include <QTableView>
#include <QTimer>

#include "core/settings/krt/krt_setting_manager.h"
#include "ui/shell/card_controller.h"
#include "ui/shell/catalogue_controller.h"
#include "ui/shell/key_table_router.h"
#include "ui/shell/main_window.h"
#include "ui/shell/main_window_layout.h"
#include "ui/shell/main_window_texts.h"
#include "ui/shell/preferences_menu_controller.h"
#include "ui/base/prefs/notification_center.h"
#include "ui/base/alert/settings_alert_box.h"
#include "ui/shell/splash_window.h"
#include "ui/controls/image_button.h"
#include "ui/controls/image_library.h"
#include "ui/device/mount_watcher.h"
#include "ui/library/incident/incident_features.h"
#include "ui/library/playback/seek_slider_controller.h"
#include "ui/library/trips/trip_features.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/l10n/qt_dialog_translations.h"
#include "ui/library/playback/fullscreen_controller.h"
#include "ui/library/playback/playback_controller.h"
#include "ui/library/player/orvo_av_view.h"

namespace tarvik {

MainWindowController::MainWindowController(QObject* parent) : QObject(parent) {
    auto* window = new MainWindow;
    v_ = MainWindowLayout::build(window);
    window->setWindowTitle("Tarvik Viewer");
    window->setWindowIcon(QIcon(ImageLibrary::pixmap("tarvik_viewer_icon", QSize(128, 128))));
    v_.quitMenuItem->setText(QString("Quit %1").arg("Tarvik Viewer"));
    connect(v_.quitMenuItem, &QAction::triggered, this, [this] { appExitButtonTouched(); });
    connect(v_.appExitButton, &QAbstractButton::clicked, this, [this] { appExitButtonTouched(); });
    connect(v_.appMinimizeButton, &QAbstractButton::clicked, this, [this] { appMinimizeButtonTouched(); });
    connect(window, &MainWindow::resized, this, &MainWindowController::windowDidResize);

    splash_ = std::make_unique<SplashWindow>();
    const QPixmap splash = ImageLibrary::pixmap("VT7_pcviewer_splash_mac.png");
    if (!splash.isNull()) {
        splash_->splashImagView()->setPixmap(splash);
        splash_->resize(splash.size());
    } else {
        splash_->resize(600, 340);
    }

    alertBox_ = std::make_unique<SettingsAlertBox>(window);
    // The factory settings of the KRT family ship inside the program.
    QFile factory(":/settings/default_Q260.cfg");
    if (factory.open(QIODevice::ReadOnly)) KRTSettingManager::setFactoryDefaultsText(factory.readAll().toStdString());

    catalogue_ = new CatalogueController(v_, this);
    prefsMenu_ = new PreferencesMenuController(v_.mainMenu, this);
    card_ = new CardController(v_, *catalogue_, this);
    connect(catalogue_, &CatalogueController::playVideoWithIdx, this, &MainWindowController::playVideoWithIdx);
    // ---- playback: the players, the dashboard and the tool bar ----
    playback_ = new PlaybackController(v_, catalogue_->catalogue(), this);
    catalogue_->deleter().setPlayingCheck([this](const std::string& p) { return playback_->currentVideoUrl() == p; });
    connect(this, &MainWindowController::playVideoWithIdx, playback_, &PlaybackController::playVideoWithIdx);
    connect(playback_, &PlaybackController::enableVideoControlsRequested, this,
            &MainWindowController::enableVideoControls);
    connect(playback_, &PlaybackController::movieViewCoversNeedUpdate, this,
            &MainWindowController::updateMovieViewCoverScrren);
    connect(playback_, &PlaybackController::playingClipChanged, catalogue_, &CatalogueController::setPlayingClip);
    connect(card_, &CardController::pauseVideoRequested, playback_, &PlaybackController::pauseVideo);
    connect(card_, &CardController::releaseCardRequested, playback_, &PlaybackController::releaseCard,
            Qt::DirectConnection);
    new KeyTableRouter(window, v_.fileListTableView, [this] { catalogue_->videoFileListDoubleClicked(); }, this);
    // ---- end of playback ----
    trips_ = new TripFeatures(v_.fileListTableView, catalogue_->catalogue(), *playback_, window, this);
    trips_->addMenuTo(v_.mainMenu);
    incident_ = new IncidentFeatures(v_.seekTimeSliderView, v_.toolbarButtons, window, [this] {
        const SeekSliderController& s = playback_->seekSlider();
        return IncidentFeatures::playingAt(playback_->currentVideoUrl(), s.currentSliderValue(), s.maxSliderValue());
    }, [this] { return catalogue_->catalogue().selectedVideoDirectoryUrl(); }, this);
    incident_->addMenuTo(v_.mainMenu);
    trips_->setExtraCommands([this](QMenu& m, const Trip* t) { incident_->addCommands(m, t, trips_->selectedClips()); });

    auto& center = NotificationCenter::shared();
    connect(&center, &NotificationCenter::refreshLanguage, this, &MainWindowController::refreshLanguageHandler);
    connect(&center, &NotificationCenter::refreshSpeedUnit, this, &MainWindowController::refreshSpeedUnitHandler);
    mountWatcher_ = new MountWatcher(this);
    connect(mountWatcher_, &MountWatcher::mountsChanged, this, &MainWindowController::volumeMountHandler);

    window->setKeyEventDelegate(this);
    v_.seekTimeSliderView->setRange(0, 0);
    applyLanguageSettings();
    QMetaObject::invokeMethod(
        this, [this] { catalogue_->videoFileFilterTouched(v_.fileListAllButton_OEM); }, Qt::QueuedConnection);
    enableVideoControls(false);
    updateMovieViewCoverScrren();
}

MainWindowController::~MainWindowController() {
    alertBox_.reset();
    delete v_.mainWindow;
}

void MainWindowController::start(int splashMilliseconds) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    splash_->move(screen.center() - splash_->rect().center());
    splash_->show();
    QTimer::singleShot(splashMilliseconds, this, &MainWindowController::showMainWindow);
}

void MainWindowController::showMainWindow() {
    MainWindow* w = v_.mainWindow;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size(std::min(1280, screen.width()), std::min(820, screen.height()));
    w->resize(size.expandedTo(w->minimumSize()));
    w->move(screen.center() - w->rect().center());
    w->show();
    w->raise();
    w->activateWindow();
    splash_->hide();
    QMetaObject::invokeMethod(this, &MainWindowController::buildMapAndMenus, Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &MainWindowController::openStartFolder, Qt::QueuedConnection);
}

void MainWindowController::buildMapAndMenus() {
    v_.fileListRemoveButton_OEM->setVisible(true);
    prefsMenu_->buildMenus();
    v_.mainVersionLabel->setText(QString("Ver %1").arg(QCoreApplication::applicationVersion()));
    v_.mainVersionLabel->show();
    windowDidResize();
}

void MainWindowController::openStartFolder() {
    if (startFolderOpened_) return;
    startFolderOpened_ = true;
    QString folder = startFolder_;
    bool fallback = false;
    if (folder.isEmpty() && !card_->updateModelInfo()) {
        folder = fallbackFolder_;
        fallback = !folder.isEmpty();
    }
    if (!folder.isEmpty()) catalogue_->chooseFolder(QFile::encodeName(folder).toStdString());
    if (fallback) card_->showFolderModel(QFile::encodeName(folder).toStdString());
    // An empty list alone would look like a card without clips.
    if (!startFolder_.isEmpty() && !QFileInfo(startFolder_).isDir()) {
        auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Tarvik Viewer"),
                                    tr_k("The folder %1 does not exist.").arg(QDir::toNativeSeparators(startFolder_)),
                                    QMessageBox::Ok, v_.mainWindow);
        box->setObjectName("missingFolderAlert");
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setWindowModality(Qt::WindowModal);
        box->open();
    }
    emit startedUp();
}

void MainWindowController::enableVideoControls(bool flag) {
    for (QWidget* c : std::initializer_list<QWidget*>{
             v_.snapshotButton, v_.printButton, v_.playPauseButton, v_.stopButton, v_.rewindButton,
             v_.fastForwardButton, v_.playPrevFileButton, v_.playNextFileButton, v_.videoScaleUpButton,
             v_.videoScaleDownButton, v_.resetVideoScaleButton, v_.fullscreenButton, v_.videoRotateButton,
             v_.volumeSliderView, v_.seekTimeSliderView, v_.switchVideoButton, v_.muteButton, v_.bigMovieHost,
             v_.smallMovieHost})
        c->setEnabled(flag);
    for (QWidget* d : std::initializer_list<QWidget*>{v_.shockCarImageView, v_.earthImageView, v_.gpsImageView,
                                                      v_.speedMeterHost})
        d->setVisible(flag);
}

void MainWindowController::updateMovieViewCoverScrren() {
    // Until a player has a movie its cover stands in front of it.
    v_.bigMovieCoverImageView->setVisible(!(playback_ && playback_->bigMovieView()->hasMovie()));
    v_.smallMovieCoverImageView->setVisible(!(playback_ && playback_->smallMovieView()->hasMovie()));
}

void MainWindowController::windowDidResize() { MainWindowLayout::layOut(v_); }

void MainWindowController::applyLanguageSettings() {
    QMetaObject::invokeMethod(
        this,
        [this] {
            QtDialogTranslations::apply(OrvoLanguages::currentLanguageCode());
            prefsMenu_->applyLanguageSettings();
            catalogue_->applyLanguageSettings();
            MainWindowTexts::applyToolTips(v_, playback_->fullScreen().controlBar());
            // At start the card is looked for once the start folder is settled.
            if (startFolderOpened_) updateModelInfo();
            catalogue_->initializeFileSortingButtons();
        },
        Qt::QueuedConnection);
}

bool MainWindowController::updateModelInfo() { return card_->updateModelInfo(); }

void MainWindowController::appExitButtonTouched(QObject*) { QApplication::quit(); }

void MainWindowController::appMinimizeButtonTouched(QObject*) { v_.mainWindow->showMinimized(); }

void MainWindowController::goHomepageButtonTouched(QObject*) {}

void MainWindowController::refreshLanguageHandler() { applyLanguageSettings(); }

void MainWindowController::refreshSpeedUnitHandler() {}

void MainWindowController::volumeMountHandler() { updateModelInfo(); }

// ---- playback: keyboard commands carried out by PlaybackController ----
void MainWindowController::fullscreenButtonTouched(QObject* sender) { playback_->fullscreenButtonTouched(sender); }
void MainWindowController::playPauseButtonTouched(QObject* sender) { playback_->playPauseButtonTouched(sender); }
void MainWindowController::hideFullScreenMovie(QObject*) { playback_->hideFullScreenMovie(); }
void MainWindowController::rewindButtonTouched(QObject* sender) { playback_->rewindButtonTouched(sender); }
void MainWindowController::fastForwardButtonTouched(QObject* sender) { playback_->fastForwardButtonTouched(sender); }
void MainWindowController::volumeDown(QObject*) { playback_->volumeDown(); }
void MainWindowController::volumeUp(QObject*) { playback_->volumeUp(); }
void MainWindowController::markIncidentIn(QObject*) { incident_->marks().markIn(); }
void MainWindowController::markIncidentOut(QObject*) { incident_->marks().markOut(); }
// ---- end of playback commands ----

}  // namespace tarvik
