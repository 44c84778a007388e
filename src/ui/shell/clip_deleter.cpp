#include "ui/shell/clip_deleter.h"

#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include "core/library/clip_catalogue.h"
#include "ui/l10n/orvo_languages.h"

namespace tarvik {

namespace {
QString fromBytes(const std::string& p) { return QFile::decodeName(QByteArray::fromStdString(p)); }
}  // namespace

bool QtDeleteDialogs::confirm(QWidget* parent, const QStringList& files) {
    QStringList names;
    for (const QString& f : files) names << QFileInfo(f).fileName();
    QMessageBox box(QMessageBox::Question, "Tarvik Viewer", tr_k("휴지통으로 옮길까요?"), QMessageBox::NoButton, parent);
    box.setInformativeText(names.join('\n'));
    QPushButton* yes = box.addButton(tr_k("삭제"), QMessageBox::DestructiveRole);
    box.setDefaultButton(box.addButton(tr_k("취소"), QMessageBox::RejectRole));
    box.exec();
    return box.clickedButton() == yes;
}

void QtDeleteDialogs::tell(QWidget* parent, const QString& message) {
    QMessageBox box(QMessageBox::Warning, "Tarvik Viewer", message, QMessageBox::Ok, parent);
    box.exec();
}

ClipDeleter::ClipDeleter(std::unique_ptr<DeleteDialogs> dialogs) : dialogs_(std::move(dialogs)) {}

QStringList ClipDeleter::filesOf(const ClipCatalogue& catalogue, int row) {
    if (row < 0 || row >= catalogue.rowCount()) return {};
    const std::string clip = catalogue.filteredVideoFileList()[static_cast<std::size_t>(row)];
    QStringList files{fromBytes(clip)};
    const std::string partner = ClipCatalogue::cameraPartnerPath(clip);
    if (!partner.empty() && QFileInfo::exists(fromBytes(partner))) files << fromBytes(partner);
    return files;
}

ClipDeleter::Outcome ClipDeleter::deleteRow(QWidget* parent, const ClipCatalogue& catalogue, int row) {
    const QStringList files = filesOf(catalogue, row);
    if (files.isEmpty()) return Outcome::Failed;
    for (const QString& f : files) {
        if (playing_ && playing_(QFile::encodeName(f).toStdString())) {
            dialogs_->tell(parent, tr_k("재생 중인 영상은 삭제할 수 없습니다."));
            return Outcome::Refused;
        }
    }
    if (!dialogs_->confirm(parent, files)) return Outcome::Declined;
    bool all = true;
    lastTrashed_.clear();
    for (const QString& f : files) {
        QString inTrash;
        if (QFile::moveToTrash(f, &inTrash)) lastTrashed_ << inTrash;
        else all = false;
    }
    if (!all) {
        dialogs_->tell(parent, tr_k("휴지통으로 옮기지 못했습니다."));
        return Outcome::Failed;
    }
    return Outcome::Trashed;
}

}  // namespace tarvik
