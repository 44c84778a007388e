#pragma once
// Builds the main window's views: the window's "interface file". The tool bar
// and dashboard are laid out on a design 1024 points wide and kept centred by
// MainWindowLayout::centreGroups; everything above them stretches.

#include "ui/shell/main_window_views.h"

namespace tarvik {

class MainWindowLayout {
public:
    static constexpr int kDesignWidth = 1024;
    static constexpr int kTitleHeight = 36;
    static constexpr int kToolbarHeight = 64;
    static constexpr int kDashboardHeight = 196;

    // Creates every view inside window.
    static MainWindowViews build(MainWindow* window);

    // The horizontal offset that centres the 1024-point design in a window of
    // this width, truncated toward zero; -512 without a window.
    static int centringOffset(const QWidget* window);

    // Places the stretching areas and centres the four fixed-width groups.
    static void layOut(const MainWindowViews& v);
};

}  // namespace tarvik
