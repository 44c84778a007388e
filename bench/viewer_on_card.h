#pragma once
// The viewer as the playback benchmarks run it: a home of its own (its
// preferences and Documents folder stay out of the user's account), the main
// window shown, a card folder chosen and the map page loaded, so that
// nothing of the start-up competes with what is timed.

#include <QWindow>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "event_wait.h"
#include "core/library/clip_catalogue.h"
#include "ui/library/playback/dashboard_widgets.h"
#include "ui/library/playback/playback_controller.h"
#include "ui/shell/catalogue_controller.h"
#include "ui/shell/main_window.h"
#include "ui/shell/main_window_controller.h"
#include "ui/telemetry/map_controller.h"

namespace tarvik::bench {

// Before the application exists.
inline void useOwnHome(const std::filesystem::path& home) {
    std::filesystem::create_directories(home);
    setenv("HOME", home.c_str(), 1);
    setenv("XDG_CONFIG_HOME", (home / ".config").c_str(), 1);
}

// The row of the clip named `clipName` in the list of `card`, -1 when the list does not show it.
inline int showViewerOn(MainWindowController& window, const std::filesystem::path& card, const std::string& clipName) {
    using Clock = std::chrono::steady_clock;
    window.showMainWindow();
    // The splash goes first; the list exists once the main window is up.
    const auto shownDeadline = Clock::now() + std::chrono::seconds(30);
    while (!(window.mainWindow()->isVisible() && window.mainWindow()->windowHandle() &&
             window.mainWindow()->windowHandle()->isExposed()) &&
           Clock::now() < shownDeadline)
        runEventsFor(20);
    window.catalogue().chooseFolder(card.string());
    int row = -1;
    const auto& list = window.catalogue().catalogue().filteredVideoFileList();
    for (std::size_t i = 0; i < list.size(); ++i)
        if (ClipCatalogue::fileName(list[i]) == clipName) row = static_cast<int>(i);
    const auto pageDeadline = Clock::now() + std::chrono::seconds(60);
    while (window.playback().dashboardWidgets().mapController &&
           !window.playback().dashboardWidgets().mapController->isPageReady() && Clock::now() < pageDeadline)
        runEventsFor(20);
    return row;
}

}  // namespace tarvik::bench
