#pragma once
// The main window as the user opens it on a card, and what the window tests
// all ask of it: a clip's row, playing a row, the map page's state.

#include <QJsonDocument>
#include <QJsonObject>
#include <QTableView>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <filesystem>
#include <memory>
#include <string>

#include "core/library/clip_catalogue.h"
#include "ui/shell/catalogue_controller.h"
#include "ui/shell/main_window.h"
#include "ui/shell/main_window_controller.h"
#include "ui/shell/main_window_views.h"

namespace tarvik::test {

// Shown and on the card's folder; null when the window never came up.
inline std::unique_ptr<MainWindowController> openWindowOn(const std::filesystem::path& card) {
    auto window = std::make_unique<MainWindowController>();
    window->showMainWindow();
    if (!QTest::qWaitForWindowExposed(window->mainWindow())) return nullptr;
    window->catalogue().chooseFolder(card.string());
    return window;
}

inline int rowOf(MainWindowController& w, const std::string& name) {
    const auto& list = w.catalogue().catalogue().filteredVideoFileList();
    for (size_t i = 0; i < list.size(); ++i)
        if (ClipCatalogue::fileName(list[i]) == name) return static_cast<int>(i);
    return -1;
}

// As a double-click on the row.
inline void playRow(MainWindowController& w, int row) {
    w.views().fileListTableView->selectRow(row);
    w.catalogue().videoFileListDoubleClicked();
}

// What a script of the page returns, as JSON; empty when the page does not answer.
inline QJsonObject pageJson(QWebEngineView* view, const QString& script) {
    QJsonObject state;
    bool done = false;
    view->page()->runJavaScript("JSON.stringify(" + script + ")", [&](const QVariant& v) {
        state = QJsonDocument::fromJson(v.toString().toUtf8()).object();
        done = true;
    });
    if (!QTest::qWaitFor([&] { return done; }, 5000)) qWarning("the page did not answer %s", qPrintable(script));
    return state;
}

inline QJsonObject mapState(QWebEngineView* view) { return pageJson(view, "window.mapState ? mapState() : {}"); }

}  // namespace tarvik::test
