#include "core/settings/m420/m420_pane_mapping.h"

#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/m420_time_zones.h"

namespace tarvik::m420pane {

std::optional<int> recordValue(Control c, const PaneFeatures& f, int p) {
    const ControlSpec& s = controlSpec(c);
    if (p < 0) return std::nullopt;
    switch (s.mapping) {
    case Mapping::Value:
        if (p < f.sliderMinimum(c) || p > f.sliderMaximum(c)) return std::nullopt;
        return p;
    case Mapping::Reversed3:
        if (p > 2) return std::nullopt;
        return 2 - p;
    case Mapping::Columns:
        if (p >= s.positions) return std::nullopt;
        return p + 1;
    case Mapping::RowOn:
        if (p > 1) return std::nullopt;
        return p == 0 ? 1 : 0;
    case Mapping::RowMiles:
    case Mapping::Check:
        if (p > 1) return std::nullopt;
        return p;
    case Mapping::MotionSensitivity:
        return p == 1 ? 1 : p == 2 ? 3 : p == 3 ? 5 : 3;
    case Mapping::TimeLimit:
        return timeLimitHours(f.timeLimitWith36Hours, p);
    case Mapping::SecurityLed:
        if (p > 3) return std::nullopt;
        return p == 3 ? 0 : p + 1;
    case Mapping::ParkingMode:
        if (f.parkingTimeLapse) {
            if (p > 2) return std::nullopt;
            return p == 0 ? 1 : p == 1 ? 2 : 0;
        }
        if (p > 1) return std::nullopt;
        return p == 0 ? 1 : 0;
    case Mapping::TimeZone:
        if (p >= static_cast<int>(gmtHourList().size())) return std::nullopt;
        return gmtHourList()[static_cast<std::size_t>(p)];
    case Mapping::Language:
    case Mapping::None:
        return std::nullopt;
    }
    return std::nullopt;
}

int controlPosition(Control c, const PaneFeatures& f, int value) {
    const ControlSpec& s = controlSpec(c);
    if (s.mapping == Mapping::MotionSensitivity)  // its save folds every stray position into 3
        return value == 1 ? 1 : value == 3 ? 2 : value == 5 ? 3 : kNoPosition;
    const int last = s.mapping == Mapping::Value || s.mapping == Mapping::TimeLimit ? f.sliderMaximum(c)
                     : s.mapping == Mapping::TimeZone                               ? s.positions - 1
                                                                                     : 3;
    for (int p = 0; p <= last; ++p)
        if (recordValue(c, f, p) == value) return p;
    return kNoPosition;
}

PaneFeatures paneFeaturesFor(const M420SettingManager& m) {
    return paneFeatures(m.modelType(), m.getSettingVariableCount());
}

PaneState applySettingData(const M420SettingManager& m, const PaneFeatures& f) {
    PaneState s;
    for (int i = 0; i < kControlCount; ++i) {
        const auto c = static_cast<Control>(i);
        const ControlSpec& spec = controlSpec(c);
        if (!f.isShown(c) || spec.mapping == Mapping::None) continue;
        const int value = m.intValue(spec.field);
        if (spec.mapping == Mapping::Language) {
            const auto& langs = m.languages();
            for (std::size_t k = 0; k < langs.size(); ++k)
                if (langs[k].first == value) s[c] = static_cast<int>(k);
            continue;
        }
        s[c] = controlPosition(c, f, value);
    }
    return s;
}

void saveSettingData(const PaneState& s, const PaneFeatures& f, M420SettingManager& m) {
    if (f.group == ModelGroup::None) return;
    if (f.productName) m.setProduct_name(f.productName);
    for (int i = 0; i < kControlCount; ++i) {
        const auto c = static_cast<Control>(i);
        const ControlSpec& spec = controlSpec(c);
        if (!f.isShown(c) || spec.mapping == Mapping::None) continue;
        const int p = s[c];
        if (spec.mapping == Mapping::Language) {
            const auto& langs = m.languages();
            if (p >= 0 && p < static_cast<int>(langs.size())) m.setCur_language(langs[static_cast<std::size_t>(p)].first);
            continue;
        }
        const std::optional<int> v = recordValue(c, f, p);
        if (!v) continue;
        m.setIntValue(spec.field, *v);
        // The zone name goes with the offset; past the end of the shorter
        // name list the card keeps the name it had.
        if (spec.mapping == Mapping::TimeZone && p < static_cast<int>(timezoneNameList().size()))
            m.setTz_key(timezoneNameList()[static_cast<std::size_t>(p)]);
    }
}

}  // namespace tarvik::m420pane
