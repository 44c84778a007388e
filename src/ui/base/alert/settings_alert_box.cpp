#include "ui/base/alert/settings_alert_box.h"

#include <QMessageBox>
#include <QPushButton>

#include "ui/l10n/orvo_languages.h"

namespace tarvik {

void SettingsAlertBox::showSettingsAlert(const std::string& titleKey, const std::string& messageKey,
                                         const std::string& buttonKey) {
    QMessageBox box(window_);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle("Tarvik Viewer");
    box.setText(tr_k(QString::fromStdString(titleKey)));
    box.setInformativeText(tr_k(QString::fromStdString(messageKey)));
    box.addButton(tr_k(QString::fromStdString(buttonKey)), QMessageBox::AcceptRole);
    box.setWindowModality(Qt::WindowModal);
    box.exec();
}

}  // namespace tarvik
