#include <cstdio>

#include "cli/commands.h"

namespace tarvik::cli {

int cardCommand(int, char**) {
    std::fprintf(stderr, "tarvik card: not available yet\n");
    return 1;
}

}  // namespace tarvik::cli
