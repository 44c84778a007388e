#include "ui/device/select_device_view_controller.h"

#include <QComboBox>

#include "core/settings/m420/m420_setting_manager.h"

namespace tarvik {

SelectDeviceViewController::SelectDeviceViewController(QObject* parent)
    : PickerPane("Norvane 블랙박스 정보를 읽을 수 없습니다.\n모델명을 선택하면 기본 설정 값을 적용 할 수 있습니다.",
                 parent) {
    loadView();
}

void SelectDeviceViewController::loadView() {
    comboBox()->clear();
    for (const std::string& name : M420SettingManager::SharedM420SettingManager().modelNameList())
        comboBox()->addItem(QString::fromStdString(name));
    comboBox()->setCurrentIndex(0);
}

std::int64_t SelectDeviceViewController::selectedModelType() const { return comboBox()->currentIndex(); }

}  // namespace tarvik
