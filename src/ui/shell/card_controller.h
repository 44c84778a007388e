#pragma once
// The card's identity in the main window: which camera wrote the card, its
// clips scanned when it is recognised, and the way to its settings.

#include <QObject>
#include <string>

#include "ui/shell/main_window_views.h"

namespace tarvik {

class CatalogueController;
class MemoryCardFormat;

class CardController : public QObject {
    Q_OBJECT
public:
    CardController(const MainWindowViews& views, CatalogueController& catalogue, QObject* parent = nullptr);

    // Looks for the card among the mounted volumes and shows its model; a
    // recognised card's clips replace the list. True when a model is known.
    bool updateModelInfo();
    // A folder opened in place of a card (the demo card) shows the model it
    // names, as the command line's card report does; the settings button
    // stays with the real card.
    void showFolderModel(const std::string& folder);

    // The settings windows, by model type.
    void settingButtonTouched();
    void showSelectFlashMemoryWindow();
    void showSelectModelWindow();
    void showSettingWindow();
    void showSettingWindow_KRT();
    void showWebSettingWindow();

    // Takes root as the card the user named (picker or command line) and
    // runs what follows that choice: model picker, KRT pane or settings window.
    void openChosenCard(const std::string& root);

public slots:
    // The settings pane's format button.
    void formatCard();

signals:
    // Playback pauses before a settings window opens.
    void pauseVideoRequested();
    // Formatting is about to start: playback must stop and let go of the card's files.
    void releaseCardRequested();

private:
    // Shows the manager's model and the card's clips without searching the volumes.
    void showChosenCardModel();
    // Runs a pane modally over the main window with the given title bar; its result.
    int showModal(class OrvoViewController& pane, bool showTitleBar);

    const MainWindowViews& v_;
    CatalogueController& catalogue_;
    MemoryCardFormat* format_ = nullptr;
};

}  // namespace tarvik
