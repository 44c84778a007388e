// tarvik-viewer [--folder PATH] [--demo-card PATH] [--settings CARD] [--screenshot FILE]
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTimer>
#include <clocale>
#include <unistd.h>

#include "core/app/viewer_preferences.h"
#include "core/library/conversion/utils.h"
#include "ui/app/application_style.h"
#include "ui/app/card_controller.h"
#include "ui/app/main_window.h"
#include "ui/app/main_window_controller.h"
#include "ui/app/prefs/qsettings_store.h"

#ifndef TARVIK_VERSION
#define TARVIK_VERSION "0.0.0"
#endif

int main(int argc, char** argv) {
    // The web engine's sandbox cannot run for the superuser and the engine
    // would abort instead; the map page is our own, so run it unsandboxed then.
    if (geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // The players draw in their own GL contexts and hand textures to the window's.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    QApplication::setApplicationName("Tarvik Viewer");
    QApplication::setOrganizationName("Tarvik");
    QApplication::setApplicationVersion(TARVIK_VERSION);
    QApplication::setApplicationDisplayName("Tarvik Viewer");
    // libmpv parses numbers with the C library and needs the C convention.
    std::setlocale(LC_NUMERIC, "C");

    QCommandLineParser cli;
    cli.setApplicationDescription("Views the clips, driving data and settings of a dash camera's memory card.");
    cli.addHelpOption();
    cli.addVersionOption();
    QCommandLineOption folder("folder", "Open PATH as if it had been chosen as the clip folder.", "PATH");
    QCommandLineOption demo("demo-card", "Open PATH when no camera card is found.", "PATH");
    QCommandLineOption shot("screenshot", "Write a picture of the main window to FILE once it is up, then quit.",
                            "FILE");
    QCommandLineOption settings("settings", "Open the settings of the memory card at CARD once the window is up.",
                                "CARD");
    cli.addOptions({folder, demo, settings, shot});
    cli.process(app);

    tarvik::applyApplicationStyle(app);
    tarvik::ViewerPreferences(tarvik::QSettingsStore::shared()).initializeLanguageSetting();

    tarvik::MainWindowController controller;
    if (cli.isSet(folder)) controller.setStartFolder(QDir(cli.value(folder)).absolutePath());
    if (cli.isSet(demo)) controller.setFallbackFolder(QDir(cli.value(demo)).absolutePath());
    if (cli.isSet(shot)) {
        const QString file = cli.value(shot);
        QObject::connect(&controller, &tarvik::MainWindowController::startedUp, &app, [&controller, file] {
            QTimer::singleShot(1500, [&controller, file] {
                controller.mainWindow()->grab().save(file);
                QApplication::quit();
            });
        });
    }
    if (cli.isSet(settings)) {
        const QString card = QDir(cli.value(settings)).absolutePath();
        QObject::connect(&controller, &tarvik::MainWindowController::startedUp, &app, [&controller, card] {
            // Queued: the settings run modally, after start-up has finished.
            QTimer::singleShot(0, &controller, [&controller, card] {
                controller.card().openChosenCard(QFile::encodeName(card).toStdString());
            });
        });
    }
    controller.start();
    const int status = app.exec();
    // Converted clips are a cache of this run only.
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    tarvik::Utils::RemoveDirectory(tarvik::Utils::GetWorkingDirectoryPath(QFile::encodeName(documents).toStdString()));
    return status;
}
