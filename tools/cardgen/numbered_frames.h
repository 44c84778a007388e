#pragma once
// Clips whose every frame shows its own number, and the reading of that
// number back from one row of pixels of what a player drew: how two views
// are seen to show the same moment. The number is ten stripes across the
// picture, least significant first, bright for a one and grey for a zero.

#include <filesystem>

namespace tarvik::cardgen {

constexpr int kNumberBits = 10;

// Frame N of the clip shows the number N + first; with a sine sound track.
bool makeNumberedClip(const std::filesystem::path& path, int fps, double seconds, int first, int width = 320,
                      int height = 180);

// The number in one row of 8-bit grey pixels across a picture, -1 when the
// row shows none (black, a picture half drawn). The picture is what is not
// black, so black bars around it do not matter.
int numberInRow(const unsigned char* row, int width);

}  // namespace tarvik::cardgen
