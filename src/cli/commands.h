#pragma once
// Sub-commands of `tarvik`, each given what the command line said. The
// command line itself is read in command_line.cpp.

#include <string>
#include <vector>

namespace tarvik::cli {

struct TelemetryOptions {
    std::string clip;
    std::string format = "csv";  // csv, gpx, geojson, kml
    bool krt = false;
    bool verbose = false;
};

struct CardOptions {
    std::string path;  // "" for the mounted card
    bool json = false;
};

// `trips` and `check`: a card's folder, which must exist.
struct CardFolderOptions {
    std::string card;
    bool json = false;
    bool verbose = false;
};

struct SettingsOptions {
    enum class Action { Show, Set, Export, Apply } action = Action::Show;
    std::string card;
    bool json = false;
    bool dryRun = false;
    std::vector<std::string> assignments;  // NAME=VALUE, for Set
    std::string profile;                   // for Apply
    std::vector<std::string> cards;        // for Apply
};

struct ExportOptions {
    std::string card, from, to, out;
    std::string layout = "side";
    int crf = 20;
    bool overlay = false, mph = false, routeInset = false;
    bool verbose = false;
};

int telemetryCommand(const TelemetryOptions& o);
int cardCommand(const CardOptions& o);
int settingsCommand(const SettingsOptions& o);
int tripsCommand(const CardFolderOptions& o);
int checkCommand(const CardFolderOptions& o);
int exportCommand(const ExportOptions& o);

// Unless asked for, FFmpeg keeps quiet: a card of damaged clips would
// otherwise bury the answer under one complaint per clip.
void setLibraryLogging(bool verbose);

}  // namespace tarvik::cli
