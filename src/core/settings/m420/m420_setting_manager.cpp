#include "core/settings/m420/m420_setting_manager.h"

#include <algorithm>

#include "core/settings/m420/m420_model_types.h"

namespace tarvik {

namespace {
std::unique_ptr<M420SettingManager>& sharedSlot() {
    static std::unique_ptr<M420SettingManager> shared;
    return shared;
}
}  // namespace

bool m420FieldFromName(std::string_view name, M420Field* out) {
    auto it = std::find(kM420FieldNames.begin(), kM420FieldNames.end(), name);
    if (it == kM420FieldNames.end()) return false;
    *out = static_cast<M420Field>(it - kM420FieldNames.begin());
    return true;
}

M420SettingManager::M420SettingManager()
    : modelNameList_{"K310",     "M420",  "Q610",    "Q810",        "Q810 UK",  "M640",     "Q260",
                     "Q630",     "Q650",  "Q850",    "M670",        "M60",      "MB20",     "M120",
                     "QV20",     "MV20",  "M900",    "M900MAX",     "MB600",    "RQ-T4-ZN", "M30",
                     "M240",     "MB240", "Q970",    "DVR-M900MAX", "DVR-M240", "DVR-N530", "DVR-N510",
                     "DVR-N570"},
      settingByteSizeList_(kM420FieldWidths.begin(), kM420FieldWidths.end()) {
    settingVariableList_.reserve(kM420FieldCount);
    for (int i = 0; i < kM420FieldCount; ++i) settingVariableList_.push_back(static_cast<M420Field>(i));
}

M420SettingManager& M420SettingManager::SharedM420SettingManager() {
    auto& slot = sharedSlot();
    if (!slot) slot = std::make_unique<M420SettingManager>();
    return *slot;
}

void M420SettingManager::ChagneM420SettingManager(std::unique_ptr<M420SettingManager> manager) {
    sharedSlot() = std::move(manager);
}

int M420SettingManager::getSettingVariableCount() const {
    using namespace m420model;
    switch (modelType_) {
    case Q810:
    case Q810UK: return firmwareVersionInt_ < 17 ? 68 : 78;
    case M640: return 79;
    case Q630: case Q650: case Q850: case M670: case M60: case MB20: case QV20: case MV20: case MB600:
        return 81;
    case M900: return 92;
    case M120: case RQ_T4_ZN: case M30: return 93;
    case M240: case MB240: return 96;
    case M900MAX: return 99;
    case Q970: return 102;
    case DVR_M900MAX: case DVR_M240: return 113;
    case Newer: return 116;
    default: return 60;  // K310, M420, Q610, Q260 and anything unknown
    }
}

int M420SettingManager::getSaveDataSize() const {
    int n = std::min(getSettingVariableCount(), static_cast<int>(settingByteSizeList_.size()));
    int sum = 0;
    for (int i = 0; i < n; ++i) sum += settingByteSizeList_[i];
    return sum;
}

int M420SettingManager::offsetFromValue(M420Field field) const {
    auto it = std::find(settingVariableList_.begin(), settingVariableList_.end(), field);
    if (it == settingVariableList_.end()) return 0;
    int sum = 0;
    for (auto i = 0; i < it - settingVariableList_.begin(); ++i) sum += settingByteSizeList_[i];
    return sum;
}

int M420SettingManager::offsetFromValue(std::string_view fieldName) const {
    M420Field f;
    return m420FieldFromName(fieldName, &f) ? offsetFromValue(f) : 0;
}

std::string M420SettingManager::valueText(M420Field f) const {
    return isIntegerField(f) ? std::to_string(intValue(f)) : textValue(f);
}

}  // namespace tarvik
