#include "ui/shell/catalogue_controller.h"

#include <QFile>
#include <QFileDialog>
#include <QItemSelectionModel>
#include <QLabel>
#include <QShortcut>
#include <QTableView>

#include "ui/shell/clip_list_model.h"
#include "ui/shell/main_window.h"
#include "ui/controls/image_button.h"
#include "ui/l10n/orvo_languages.h"

namespace tarvik {

namespace {
const char* const kFilterKeys[5] = {"파일_전체", "파일_상시", "파일_모션", "파일_이벤트", "파일_수동"};
}

CatalogueController::CatalogueController(const MainWindowViews& views, QObject* parent)
    : QObject(parent),
      v_(views),
      model_(new ClipListModel(catalogue_, this)),
      filterButtons_{views.fileListAllButton_OEM, views.fileListAlwaysButton_OEM, views.fileListMotionButton_OEM,
                     views.fileListEventButton_OEM, views.fileListManualButton_OEM} {
    v_.fileListTableView->setModel(model_);
    connect(model_, &ClipListModel::rowsAvailable, this, [this](bool any) {
        v_.fileListRemoveButton_OEM->setEnabled(any);
        v_.saveFileButton->setEnabled(any);
    });
    for (ImageButton* b : filterButtons_)
        connect(b, &QAbstractButton::clicked, this, [this, b] { videoFileFilterTouched(b); });
    connect(v_.selectFolderButton, &QAbstractButton::clicked, this, &CatalogueController::selectFolderButtonTouched);
    connect(v_.fileListRemoveButton_OEM, &QAbstractButton::clicked, this,
            &CatalogueController::removeFileButtonTouched);
    connect(v_.fileListTableView, &QTableView::doubleClicked, this, &CatalogueController::videoFileListDoubleClicked);
    // Keyboard users choose a folder with Ctrl+O and a recording type with
    // Ctrl+1 to Ctrl+5. Enter on the list comes through the window's key
    // router: the view's `activated` also fires on a double-click, which
    // would load every clip twice.
    auto* open = new QShortcut(QKeySequence::Open, v_.mainWindow);
    connect(open, &QShortcut::activated, this, &CatalogueController::selectFolderButtonTouched);
    for (int i = 0; i < 5; ++i) {
        auto* key = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + i)), v_.mainWindow);
        ImageButton* b = filterButtons_[i];
        connect(key, &QShortcut::activated, this, [this, b] { videoFileFilterTouched(b); });
    }
    model_->reload();
}

void CatalogueController::showRoot() {
    v_.selectedDirTextField_OEM->setText(
        QFile::decodeName(QByteArray::fromStdString(catalogue_.selectedVideoDirectoryUrl())));
}

void CatalogueController::refreshVideoFileListWithURL(const std::string& dir) {
    catalogue_.refreshVideoFileListWithURL(dir);
    showScan();
}

void CatalogueController::refreshVideoFileList() {
    catalogue_.refreshVideoFileList();
    showScan();
}

void CatalogueController::showScan() {
    showRoot();
    reloadTable();
    // The clip that plays keeps its place in a refreshed list; otherwise the
    // first clip is selected, not played: playing waits for the user.
    const int playing = model_->playingRow();
    if (catalogue_.hasRows()) v_.fileListTableView->selectRow(playing >= 0 ? playing : 0);
}

void CatalogueController::clearVideoFileList() {
    catalogue_.clear();
    v_.selectedDirTextField_OEM->clear();
    reloadTable();
}

void CatalogueController::reloadTable() {
    model_->reload();
    const int playing = model_->playingRow();
    if (playing >= 0) v_.fileListTableView->selectRow(playing);
}

void CatalogueController::setPlayingClip(const QByteArray& clip) { model_->setPlayingClip(clip); }

void CatalogueController::initializeFileSortingButtons() {
    for (ImageButton* b : filterButtons_) b->setTitleColor(Qt::white);
}

void CatalogueController::setVideoFileFilterWithButton(QObject* button) {
    for (unsigned i = 0; i < filterButtons_.size(); ++i)
        if (filterButtons_[i] == button) catalogue_.setVideoFileFilterGroupA(i);
    const unsigned selected = catalogue_.videoFileFilterGroupA();
    for (unsigned i = 0; i < filterButtons_.size(); ++i) {
        ImageButton* b = filterButtons_[i];
        // The selected filter shows its highlighted image for good; the others
        // go back to reacting to the pointer.
        b->setAllowAutoMouseEventImage(i != selected);
        b->setImage(i == selected ? "sorting_btn_60_2" : "sorting_btn_60_1");
    }
}

void CatalogueController::applyVideoFileFilter() { catalogue_.applyVideoFileFilter(); }

void CatalogueController::videoFileFilterTouched(QObject* button) {
    setVideoFileFilterWithButton(button);
    applyVideoFileFilter();
    reloadTable();
}

void CatalogueController::applyLanguageSettings() {
    for (int i = 0; i < 5; ++i) {
        filterButtons_[i]->setText(tr_k(kFilterKeys[i]));
        filterButtons_[i]->setToolTip(QString("%1 (Ctrl+%2)").arg(tr_k(kFilterKeys[i])).arg(i + 1));
    }
    v_.selectFolderButton->setToolTip(tr_k("열기"));
}

int CatalogueController::selectedRow() const {
    const QModelIndexList rows = v_.fileListTableView->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void CatalogueController::chooseFolder(const std::string& dir) { refreshVideoFileListWithURL(dir); }

void CatalogueController::selectFolderButtonTouched() {
    QFileDialog panel(v_.mainWindow, tr_k("열기"));
    panel.setFileMode(QFileDialog::Directory);
    panel.setOption(QFileDialog::ShowDirsOnly, true);
    panel.setOption(QFileDialog::DontUseNativeDialog, true);  // so the button texts can be set
    panel.setLabelText(QFileDialog::Accept, tr_k("열기"));
    panel.setLabelText(QFileDialog::Reject, tr_k("취소"));
    // Start where the clips come from: the card's folder, when one is open.
    if (!catalogue_.selectedVideoDirectoryUrl().empty())
        panel.setDirectory(QFile::decodeName(QByteArray::fromStdString(catalogue_.selectedVideoDirectoryUrl())));
    if (panel.exec() != QDialog::Accepted || panel.selectedFiles().isEmpty()) return;
    chooseFolder(QFile::encodeName(panel.selectedFiles().constLast()).toStdString());
}

void CatalogueController::removeFileButtonTouched() {
    const int row = selectedRow();
    if (row < 0 || row >= catalogue_.rowCount()) return;
    if (deleter_.deleteRow(v_.mainWindow, catalogue_, row) == ClipDeleter::Outcome::Trashed) refreshVideoFileList();
}

void CatalogueController::videoFileListDoubleClicked() {
    const int row = selectedRow();
    if (row >= 0) emit playVideoWithIdx(row);
}

}  // namespace tarvik
