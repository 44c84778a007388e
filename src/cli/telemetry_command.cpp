#include <cstdio>

#include "cli/commands.h"

namespace tarvik::cli {

int telemetryCommand(int, char**) {
    std::fprintf(stderr, "tarvik telemetry: not available yet\n");
    return 1;
}

}  // namespace tarvik::cli
