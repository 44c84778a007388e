#pragma once
// Temporary files an interrupted settings write left on the card: each is a
// hidden full copy of a settings file, removed by the next write of that file.

#include <string>
#include <vector>

namespace tarvik {

// Paths of such leftovers in the card's root and the folders right under it
// (where every settings file lives), sorted.
std::vector<std::string> findWriteLeftovers(const std::string& root);

}  // namespace tarvik
