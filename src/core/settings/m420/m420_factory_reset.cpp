#include "core/settings/m420/m420_factory_reset.h"

#include <memory>

#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"

namespace tarvik {

void resetM420SettingsToFactory() {
    M420SettingManager& current = M420SettingManager::SharedM420SettingManager();
    auto fresh = std::make_unique<M420SettingManager>();
    fresh->setSettingDirPath(current.settingDirPath());
    fresh->setModelType(current.modelType());
    if (fresh->loadDefaultDataFromDefaultCfgFile()) {
        // The firmware on the card did not change with the reset.
        fresh->setVersion(current.version());
        fresh->setFirmwareVersionInt(current.firmwareVersionInt());
        fresh->setDriving_guide_version(current.driving_guide_version());
        // Nor did the card's identity, which the pane needs to save.
        fresh->setSdcard_url(current.sdcard_url());
        fresh->setLocalID(current.localID());
        fresh->setModelName(current.modelName());
        fresh->setLanguages(current.languages());
        M420SettingManager::ChagneM420SettingManager(std::move(fresh));
        return;
    }
    using namespace m420model;
    switch (current.modelType()) {
    case K310: current.loadDefaultDataForK310(); break;
    case M420: current.loadDefaultDataForM420(); break;
    case Q610: current.loadDefaultDataForQ610(); break;
    case Q810: case Q810UK: current.loadDefaultDataForQ810(); break;
    case M640: current.loadDefaultDataForM640(); break;
    default: break;
    }
}

}  // namespace tarvik
