#include "ui/shell/card_controller.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>

#include "core/device/external_memory.h"
#include "core/settings/krt/krt_setting_manager.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "ui/shell/catalogue_controller.h"
#include "ui/shell/main_window.h"
#include "ui/base/pane/setting_window.h"
#include "ui/device/select_device_view_controller.h"
#include "ui/device/select_flash_memory_view_controller.h"
#include "ui/settings/m420/m420_setting_view_controller.h"
#include "ui/controls/image_button.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/settings/web/format/memory_card_format.h"
#include "ui/settings/web/format/udisks2_card_formatter.h"
#include "ui/settings/web/web_setting_window_controller.h"
#include "ui/settings/krt/krt_setting_view_controller.h"

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

int CardController::showModal(OrvoViewController& pane, bool showTitleBar) {
    SettingWindow window(v_.mainWindow);
    return window.showModalWindow(v_.mainWindow, pane.view(), &pane, showTitleBar);
}

void CardController::showChosenCardModel() {
    M420SettingManager& m = manager();
    const auto type = m.modelType();
    if (type != m420model::Newer && type >= 0 && type < static_cast<std::int64_t>(m.modelNameList().size()))
        m.setModelName(m.modelNameList()[static_cast<std::size_t>(type)]);
    catalogue_.refreshVideoFileListWithURL(m.settingDirPath());
    v_.settingsButton->setEnabled(true);
    v_.modelTextField->setText(m.modelName().empty() ? tr_k("unknown") : QString::fromStdString(m.modelName()));
}

void CardController::openChosenCard(const std::string& root) {
    M420SettingManager& m = manager();
    // The named card, not the first recognised volume: the user chose it.
    m.loadVersionInfoForPath(root);
    switch (m420model::settingsPaneFor(m.modelType())) {
    case m420model::SettingsPane::ModelPicker:
        showSelectModelWindow();
        return;
    case m420model::SettingsPane::Krt:
        KRTSettingManager::SharedKRTSettingManager().loadData();
        showChosenCardModel();
        showSettingWindow_KRT();
        return;
    case m420model::SettingsPane::Web:
    case m420model::SettingsPane::Native:
        m.loadData();
        showChosenCardModel();
        showSettingWindow();
        return;
    }
}

void CardController::showSelectFlashMemoryWindow() {
    SelectFlashMemoryViewController picker;
    if (showModal(picker, true) != 1) return;
    openChosenCard(picker.selectedFlashMeoryUrl().value_or(""));
}

void CardController::showSelectModelWindow() {
    SelectDeviceViewController picker;
    M420SettingManager& m = manager();
    if (showModal(picker, true) != 1) {
        m.setSettingDirPath("");  // the card choice is dropped with the model
        return;
    }
    m.setModelType(picker.selectedModelType());
    if (m.modelType() == m420model::Q260) {
        KRTSettingManager::SharedKRTSettingManager().loadData();
        showSettingWindow_KRT();
        return;
    }
    if (m.modelType() == m420model::Q810UK) m.setLocalID(3);
    if (m.modelType() == m420model::Q810) m.setLocalID(0);
    m.loadData();
    showSettingWindow();
}

void CardController::showSettingWindow() {
    if (m420model::settingsPaneFor(manager().modelType()) == m420model::SettingsPane::Web) {
        showWebSettingWindow();
        return;
    }
    M420SettingViewController pane;
    connect(&pane, &M420SettingViewController::formatRequested, this, &CardController::formatCard);
    if (showModal(pane, false) == 1) updateModelInfo();
}

void CardController::showSettingWindow_KRT() {
    KRTSettingViewController pane;
    SettingWindow window;
    if (window.showModalWindow(v_.mainWindow, pane.view(), &pane, false) == 1) updateModelInfo();
}

void CardController::formatCard() {
    // The alerts belong over the settings window that asked for them.
    QWidget* window = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : v_.mainWindow;
    if (!format_) {
        format_ = new MemoryCardFormat(std::make_shared<UDisks2CardFormatter>(), this);
        connect(format_, &MemoryCardFormat::releaseCardRequested, this, &CardController::releaseCardRequested,
                Qt::DirectConnection);
        connect(format_, &MemoryCardFormat::formatFinished, this, [this] { updateModelInfo(); });
    }
    format_->formatMemoryCard(window, QString::fromStdString(manager().settingDirPath()));
}

void CardController::showWebSettingWindow() {
    if (WebSettingWindowController::instance()) return;  // one settings window at a time
    const M420SettingManager& m = manager();
    auto* window = new WebSettingWindowController(m.settingDirPath(), m.languages(), v_.mainWindow);
    connect(window, &WebSettingWindowController::formatRequested, this, &CardController::formatCard);
    window->centerInWindow(v_.mainWindow);
    window->beginModal();
}

}  // namespace tarvik
