#pragma once
// Camera model types: the index of the model's name in the manager's model
// list, -1 when no camera was recognised.

#include <cstdint>

namespace tarvik::m420model {

inline constexpr std::int64_t Unknown = -1;
inline constexpr std::int64_t K310 = 0, M420 = 1, Q610 = 2, Q810 = 3, Q810UK = 4, M640 = 5, Q260 = 6,
                              Q630 = 7, Q650 = 8, Q850 = 9, M670 = 10, M60 = 11, MB20 = 12, M120 = 13,
                              QV20 = 14, MV20 = 15, M900 = 16, M900MAX = 17, MB600 = 18, RQ_T4_ZN = 19,
                              M30 = 20, M240 = 21, MB240 = 22, Q970 = 23, DVR_M900MAX = 24,
                              DVR_M240 = 25, Newer = 26;
inline constexpr int Count = 29;  // entries of the model list (26..28 detect as Newer)

// Which settings window a model type opens.
enum class SettingsPane { ModelPicker, Krt, Web, Native };

constexpr SettingsPane settingsPaneFor(std::int64_t type) {
    if (type == Unknown) return SettingsPane::ModelPicker;
    if (type == Q260) return SettingsPane::Krt;
    if (type == M900 || type == M900MAX || (type >= M30 && type <= Newer)) return SettingsPane::Web;
    return SettingsPane::Native;
}

}  // namespace tarvik::m420model
