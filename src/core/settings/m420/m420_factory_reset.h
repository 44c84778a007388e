#pragma once
// The settings pane's reset: the card's factory record (SETTING/default.cfg)
// replaces the shared manager, or, without a readable factory file, the
// built-in defaults of the model are loaded in place. Only memory changes;
// the card is written when the pane saves.

namespace tarvik {

void resetM420SettingsToFactory();

}  // namespace tarvik
