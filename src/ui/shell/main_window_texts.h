#pragma once
// The tool tips of the main window's icon buttons, in the current language:
// an icon alone does not say what a button does.

namespace tarvik {

struct MainWindowViews;
class FullscreenControlBar;

namespace MainWindowTexts {
// Sets every icon button's tool tip; the key that does the same follows in brackets.
void applyToolTips(const MainWindowViews& views, FullscreenControlBar* bar);
}  // namespace MainWindowTexts

}  // namespace tarvik
