#include "ui/device/select_flash_memory_view_controller.h"

#include <QComboBox>
#include <QPushButton>
#include <filesystem>

#include "core/device/external_memory.h"
#include "core/device/volume_list.h"

namespace tarvik {

SelectFlashMemoryViewController::SelectFlashMemoryViewController(QObject* parent)
    : PickerPane("플래시 메모리를 선택해주세요.", parent) {
    loadView();
}

void SelectFlashMemoryViewController::loadView() {
    const std::vector<std::string> volumes = mountedVolumePaths();
    if (volumes.empty()) {
        okButton()->setEnabled(comboBox()->count() > 0);
        return;
    }
    diskVolumes_.clear();
    comboBox()->clear();
    for (const std::string& v : volumes) {
        if (!isEXteranlMemoryWithURL(v)) continue;
        diskVolumes_.push_back(v);
        comboBox()->addItem(QString::fromStdString(std::filesystem::path(v).filename().string()));
    }
    okButton()->setEnabled(comboBox()->count() > 0);
    if (comboBox()->count() > 0) comboBox()->setCurrentIndex(comboBox()->count() - 1);
}

std::optional<std::string> SelectFlashMemoryViewController::selectedFlashMeoryUrl() const {
    const int i = comboBox()->currentIndex();
    if (i < 0 || i >= static_cast<int>(diskVolumes_.size())) return std::nullopt;
    return diskVolumes_[static_cast<std::size_t>(i)];
}

}  // namespace tarvik
