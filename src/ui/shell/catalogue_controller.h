#pragma once
// The clip list's share of the main window: scanning the card or a chosen
// folder, the five recording-type filters, removal, and handing a
// double-clicked row to playback.

#include <QObject>
#include <array>
#include <string>

#include "core/library/clip_catalogue.h"
#include "ui/shell/clip_deleter.h"
#include "ui/shell/main_window_views.h"

namespace tarvik {

class ClipListModel;

class CatalogueController : public QObject {
    Q_OBJECT
public:
    CatalogueController(const MainWindowViews& views, QObject* parent = nullptr);

    ClipCatalogue& catalogue() { return catalogue_; }
    const ClipCatalogue& catalogue() const { return catalogue_; }

    void refreshVideoFileListWithURL(const std::string& dir);
    void refreshVideoFileList();
    // The card is unknown: no root, no clips.
    void clearVideoFileList();
    void initializeFileSortingButtons();
    void setVideoFileFilterWithButton(QObject* button);
    void applyVideoFileFilter();
    void reloadTable();
    void applyLanguageSettings();
    std::string takeBigVideoURL(int row) const { return catalogue_.takeBigVideoURL(row); }
    int selectedRow() const;
    // Marks the clip that plays; a refreshed list selects it again.
    void setPlayingClip(const QByteArray& clip);
    ClipDeleter& deleter() { return deleter_; }

    // The folder chooser, without the dialog: what choosing dir does.
    void chooseFolder(const std::string& dir);

public slots:
    void videoFileFilterTouched(QObject* button);
    void selectFolderButtonTouched();
    void removeFileButtonTouched();
    void videoFileListDoubleClicked();

signals:
    // playVideoWithIdx: the row of the filtered list to play from its start.
    void playVideoWithIdx(int row);

private:
    void showRoot();
    void showScan();

    const MainWindowViews& v_;
    ClipCatalogue catalogue_;
    ClipListModel* model_;
    ClipDeleter deleter_;
    std::array<class ImageButton*, 5> filterButtons_;
};

}  // namespace tarvik
