#pragma once
// Sub-commands of `tarvik`; argv[0] is the sub-command's own name.

#include <string>

namespace tarvik::cli {

// CARD [--json], CARD an existing folder; false on anything else.
bool readCardArguments(int argc, char** argv, std::string& card, bool& json);

int telemetryCommand(int argc, char** argv);
int cardCommand(int argc, char** argv);
int settingsCommand(int argc, char** argv);
int tripsCommand(int argc, char** argv);
int checkCommand(int argc, char** argv);

}  // namespace tarvik::cli
