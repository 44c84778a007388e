#include <cstring>
#include <filesystem>

#include "cli/commands.h"

namespace tarvik::cli {

bool readCardArguments(int argc, char** argv, std::string& card, bool& json) {
    card.clear();
    json = false;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--json")) json = true;
        else if (card.empty() && argv[i][0] != '-') card = argv[i];
        else return false;
    }
    std::error_code ec;
    return !card.empty() && std::filesystem::is_directory(card, ec);
}

}  // namespace tarvik::cli
