#include "ui/library/playback/save_dialogs.h"

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

#include "ui/l10n/orvo_languages.h"

namespace tarvik {

QString QtSaveDialogs::savePath(QWidget* parent, const QString& proposedName) {
    QFileDialog panel(parent, tr_k("저장"));
    panel.setAcceptMode(QFileDialog::AcceptSave);
    panel.setFileMode(QFileDialog::AnyFile);
    panel.setOption(QFileDialog::DontUseNativeDialog, true);  // so the button texts can be set
    panel.setLabelText(QFileDialog::Accept, tr_k("저장"));
    panel.setLabelText(QFileDialog::Reject, tr_k("취소"));
    panel.setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    panel.selectFile(proposedName);
    if (panel.exec() != QDialog::Accepted || panel.selectedFiles().isEmpty()) return {};
    return panel.selectedFiles().constFirst();
}

bool QtSaveDialogs::setUpPrinter(QWidget* parent, QPrinter& printer) {
    QPrintDialog dialog(&printer, parent);
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace tarvik
