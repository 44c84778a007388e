// tarvik-viewer [--folder PATH] [--demo-card PATH] [--settings CARD] [--screenshot FILE]
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimer>
#include <algorithm>
#include <clocale>
#include <optional>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

#include "core/app/viewer_preferences.h"
#include "core/library/conversion/utils.h"
#include "ui/shell/application_style.h"
#include "ui/shell/card_controller.h"
#include "ui/shell/main_window.h"
#include "ui/shell/main_window_controller.h"
#include "ui/base/prefs/qsettings_store.h"

#ifndef TARVIK_VERSION
#define TARVIK_VERSION "0.0.0"
#endif

namespace {

struct ViewerOptions {
    QString folder, demo, settings, shot;
};

// Reads the command line. --help and --version are answered before any
// window or display is needed, on the arguments as given; everything else is
// read once the application has taken Qt's own options (-platform, -style, ...)
// away. A usage error ends with status 2.
std::optional<ViewerOptions> readCommandLine(const QStringList& arguments, bool answerHelpOnly) {
    QCommandLineParser cli;
    cli.setApplicationDescription("Views the clips, driving data and settings of a dash camera's memory card.");
    const QCommandLineOption help = cli.addHelpOption();
    const QCommandLineOption version = cli.addVersionOption();
    const QCommandLineOption folder("folder", "Open PATH as if it had been chosen as the clip folder.", "PATH");
    const QCommandLineOption demo("demo-card", "Open PATH when no camera card is found.", "PATH");
    const QCommandLineOption shot("screenshot", "Write a picture of the main window to FILE once it is up, then quit.",
                                  "FILE");
    const QCommandLineOption settings("settings",
                                      "Open the settings of the memory card at CARD once the window is up.", "CARD");
    cli.addOptions({folder, demo, settings, shot});
    const bool parsed = cli.parse(arguments);
    // The program's name, not the path it was started by (or, without an
    // application yet, a placeholder).
    QString helpText = cli.helpText();
    helpText.replace(QRegularExpression("^Usage: \\S+"), "Usage: tarvik-viewer");
    if (parsed && cli.isSet(help)) {
        std::fputs(qPrintable(helpText), stdout);
        std::exit(0);
    }
    if (parsed && cli.isSet(version)) {
        std::printf("tarvik-viewer %s\n", TARVIK_VERSION);
        std::exit(0);
    }
    // Qt's own options have one dash (-platform, -style); an unknown one with
    // two is ours to refuse, display or not.
    bool unknownLong = false;
    for (const QString& name : cli.unknownOptionNames())
        unknownLong = unknownLong || arguments.contains("--" + name) ||
                      std::any_of(arguments.begin(), arguments.end(),
                                  [&name](const QString& a) { return a.startsWith("--" + name + "="); });
    if (answerHelpOnly && !unknownLong) return std::nullopt;
    if (!parsed || !cli.positionalArguments().isEmpty()) {
        const QString error = parsed ? "unexpected argument " + cli.positionalArguments().first() : cli.errorText();
        std::fprintf(stderr, "tarvik-viewer: %s\n\n%s", qPrintable(error), qPrintable(helpText));
        std::exit(2);
    }
    auto path = [&cli](const QCommandLineOption& o) { return cli.isSet(o) ? QDir(cli.value(o)).absolutePath() : QString(); };
    return ViewerOptions{path(folder), path(demo), path(settings), cli.value(shot)};
}

QStringList givenArguments(int argc, char** argv) {
    QStringList list;
    for (int i = 0; i < argc; ++i) list << QString::fromLocal8Bit(argv[i]);
    return list;
}

}  // namespace

int main(int argc, char** argv) {
    // The web engine's sandbox cannot run for the superuser and the engine
    // would abort instead; the map page is our own, so run it unsandboxed then.
    if (geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // The players draw in their own GL contexts and hand textures to the window's.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    readCommandLine(givenArguments(argc, argv), true);
    QApplication app(argc, argv);
    QApplication::setApplicationName("Tarvik Viewer");
    QApplication::setOrganizationName("Tarvik");
    QApplication::setApplicationVersion(TARVIK_VERSION);
    QApplication::setApplicationDisplayName("Tarvik Viewer");
    // libmpv parses numbers with the C library and needs the C convention.
    std::setlocale(LC_NUMERIC, "C");
    const ViewerOptions options = *readCommandLine(QCoreApplication::arguments(), false);

    tarvik::applyApplicationStyle(app);
    tarvik::ViewerPreferences(tarvik::QSettingsStore::shared()).initializeLanguageSetting();

    tarvik::MainWindowController controller;
    if (!options.folder.isEmpty()) controller.setStartFolder(options.folder);
    if (!options.demo.isEmpty()) controller.setFallbackFolder(options.demo);
    if (!options.shot.isEmpty()) {
        const QString file = options.shot;
        QObject::connect(&controller, &tarvik::MainWindowController::startedUp, &app, [&controller, file] {
            QTimer::singleShot(1500, [&controller, file] {
                controller.mainWindow()->grab().save(file);
                QApplication::quit();
            });
        });
    }
    if (!options.settings.isEmpty()) {
        const QString card = options.settings;
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
