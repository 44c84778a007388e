#pragma once
// Which files the players open for a clip the user chose. The card's own
// files are played as they are: only an AVI holding both cameras in one file
// still needs a conversion to split it into two pictures.

#include <string>
#include <vector>

namespace tarvik {

struct PlayableFiles {
    // Large view first. Empty when the clip holds no picture or cannot be
    // opened (the unsupported-file alert).
    std::vector<std::string> files;
    bool needsConversion = false;
};

// An MP4 brings its front/rear partner when that file exists; any other
// kind of file is handed to the player unchanged.
PlayableFiles playableFilesOf(const std::string& clipPath);

}  // namespace tarvik
