#pragma once
// The files the players open for a clip of the card, large view first:
// the card's own files, or for a two-camera AVI its streams split into the
// Documents folder. None when the clip cannot be played.

#include <optional>
#include <string>
#include <vector>

namespace tarvik {

std::optional<std::vector<std::string>> cardClipFiles(const std::string& clip);

}  // namespace tarvik
