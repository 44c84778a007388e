#include "ui/app/card_controller.h"

#include <QLabel>
#include <QMessageBox>

#include "core/device/external_memory.h"
#include "core/settings/krt/krt_setting_manager.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "ui/app/catalogue_controller.h"
#include "ui/app/main_window.h"
#include "ui/controls/image_button.h"
#include "ui/l10n/orvo_languages.h"

namespace tarvik {

namespace {
M420SettingManager& manager() { return M420SettingManager::SharedM420SettingManager(); }
}  // namespace

CardController::CardController(const MainWindowViews& views, CatalogueController& catalogue, QObject* parent)
    : QObject(parent), v_(views), catalogue_(catalogue) {
    connect(v_.settingsButton, &QAbstractButton::clicked, this, &CardController::settingButtonTouched);
}

bool CardController::updateModelInfo() {
    M420SettingManager& m = manager();
    m.loadVersionInfo();
    const auto type = m.modelType();
    if (type == m420model::Unknown) {
        catalogue_.clearVideoFileList();
        v_.settingsButton->setEnabled(false);
        v_.modelTextField->setText(tr_k("unknown"));
        return false;
    }
    // A newer camera names itself; for the others the model list does.
    if (type != m420model::Newer && type >= 0 && type < static_cast<std::int64_t>(m.modelNameList().size()))
        m.setModelName(m.modelNameList()[static_cast<std::size_t>(type)]);
    catalogue_.refreshVideoFileListWithURL(m.sdcard_url());
    v_.settingsButton->setEnabled(true);
    v_.modelTextField->setText(m.modelName().empty() ? tr_k("unknown") : QString::fromStdString(m.modelName()));
    return true;
}

void CardController::showFolderModel(const std::string& folder) {
    M420SettingManager& m = manager();
    const std::int64_t type = m.loadModelTypeWithSDPath(folder);
    if (type == m420model::Unknown) return;
    const bool listed = type != m420model::Newer && type >= 0 && type < static_cast<std::int64_t>(m.modelNameList().size());
    const std::string name = listed ? m.modelNameList()[static_cast<std::size_t>(type)] : m.modelName();
    if (!name.empty()) v_.modelTextField->setText(QString::fromStdString(name));
}

void CardController::settingButtonTouched() {
    emit pauseVideoRequested();
    M420SettingManager& m = manager();
    if (m.settingDirPath().empty() || !isEXteranlMemoryWithURL(m.settingDirPath())) {
        showSelectFlashMemoryWindow();
        return;
    }
    m.loadVersionInfo();
    switch (m420model::settingsPaneFor(m.modelType())) {
    case m420model::SettingsPane::ModelPicker:
        showSelectModelWindow();
        break;
    case m420model::SettingsPane::Krt:
        KRTSettingManager::SharedKRTSettingManager().loadData();
        updateModelInfo();
        showSettingWindow_KRT();
        break;
    case m420model::SettingsPane::Web:
        if (m.modelType() == m420model::Newer) {
            m.loadLanguages();
            showWebSettingWindow();
            break;
        }
        [[fallthrough]];
    case m420model::SettingsPane::Native:
        m.loadData();
        updateModelInfo();
        showSettingWindow();
        break;
    }
}

void CardController::notYetAvailable(const QString& what) {
    QMessageBox box(QMessageBox::Information, "Tarvik Viewer",
                    tr("%1 is not available in this version of Tarvik Viewer.").arg(what), QMessageBox::Ok,
                    v_.mainWindow);
    box.setWindowModality(Qt::WindowModal);
    box.exec();
}

void CardController::showSelectFlashMemoryWindow() { notYetAvailable(tr("Choosing the memory card")); }

void CardController::showSelectModelWindow() { notYetAvailable(tr("Choosing the camera model")); }

void CardController::showSettingWindow() {
    if (m420model::settingsPaneFor(manager().modelType()) == m420model::SettingsPane::Web) {
        showWebSettingWindow();
        return;
    }
    notYetAvailable(tr("Editing the camera's settings"));
}

void CardController::showSettingWindow_KRT() { notYetAvailable(tr("Editing the camera's settings")); }

void CardController::showWebSettingWindow() { notYetAvailable(tr("The camera's settings page")); }

}  // namespace tarvik
