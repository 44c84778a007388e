// tarvik: what the viewer knows about a card and its clips, from a terminal.
#include <cstdio>
#include <cstring>

#include "cli/commands.h"

namespace {
void usage() {
    std::fprintf(stderr,
                 "usage: tarvik telemetry CLIP [--format csv|gpx|geojson|kml]\n"
                 "       tarvik card [PATH] [--json]\n"
                 "       tarvik settings CARD [--json | set NAME=VALUE... | export]\n"
                 "       tarvik settings apply PROFILE.json CARD...\n"
                 "       tarvik trips CARD [--json]\n"
                 "       tarvik check CARD [--json]\n");
}
}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        usage();
        return 2;
    }
    if (!std::strcmp(argv[1], "telemetry")) return tarvik::cli::telemetryCommand(argc - 1, argv + 1);
    if (!std::strcmp(argv[1], "card")) return tarvik::cli::cardCommand(argc - 1, argv + 1);
    if (!std::strcmp(argv[1], "settings")) return tarvik::cli::settingsCommand(argc - 1, argv + 1);
    if (!std::strcmp(argv[1], "trips")) return tarvik::cli::tripsCommand(argc - 1, argv + 1);
    if (!std::strcmp(argv[1], "check")) return tarvik::cli::checkCommand(argc - 1, argv + 1);
    usage();
    return 2;
}
