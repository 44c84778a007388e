#pragma once
// The localisation keys of each pane control: its caption and its choices.

#include <QStringList>

#include "core/settings/m420/m420_pane_features.h"

namespace tarvik {

struct M420ControlLabels {
    const char* captionKey;
    QStringList choiceKeys;  // radio buttons or fixed combo items; empty otherwise
};

// features decides the choices that vary by model (parking mode rows, frame rates).
M420ControlLabels m420ControlLabels(m420pane::Control c, const m420pane::PaneFeatures& features);

}  // namespace tarvik
