#pragma once
// The M420 settings pane without its screen: the position of every control,
// filled from the setting record (apply) and written back into it (save).
// Each model group's apply and save routine is this one pair run over the
// controls that group shows (m420_pane_features.h); a control that is hidden,
// or whose position maps to no value, leaves its record field alone.

#include <array>
#include <optional>

#include "core/settings/m420/m420_pane_features.h"

namespace tarvik {
class M420SettingManager;
}

namespace tarvik::m420pane {

inline constexpr int kNoPosition = -1;

struct PaneState {
    PaneState() { pos.fill(kNoPosition); }
    std::array<int, kControlCount> pos;
    int& operator[](Control c) { return pos[static_cast<std::size_t>(c)]; }
    int operator[](Control c) const { return pos[static_cast<std::size_t>(c)]; }
};

// The record value for a position; nothing when the position maps to none.
std::optional<int> recordValue(Control c, const PaneFeatures& f, int position);
// The position showing a record value; kNoPosition when none does.
int controlPosition(Control c, const PaneFeatures& f, int value);

// The features of the manager's card (model type and record length).
PaneFeatures paneFeaturesFor(const M420SettingManager& m);

PaneState applySettingData(const M420SettingManager& m, const PaneFeatures& f);
void saveSettingData(const PaneState& s, const PaneFeatures& f, M420SettingManager& m);

}  // namespace tarvik::m420pane
