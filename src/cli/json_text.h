#pragma once
// A JSON string literal for bytes from the card (control characters escaped).
#include <string>
#include <string_view>

namespace tarvik::cli {
std::string jsonText(std::string_view s);
}
