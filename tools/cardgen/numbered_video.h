#pragma once
// Clips whose every frame carries its own number, drawn by the real ffmpeg,
// so that a test can tell from a picture which frame it shows: ten stripes
// 32 pixels wide across a 320x180 picture, bright (235) for a one and grey
// (96) for a zero, lowest bit on the left; a 440 Hz tone as sound.

#include <filesystem>
#include <string>

namespace tarvik::cardgen {

inline constexpr int kNumberBits = 10;

// Frame N of the clip shows the number N + first.
bool makeNumberedClip(const std::filesystem::path& path, int fps, double seconds, int first,
                      std::string* log = nullptr);

// The number in one row of 8-bit grey pixels across a picture, -1 when it
// shows none (black, or between pictures). The picture is what is not black
// in the row, so the row may be a part of a larger frame.
int numberInRow(const unsigned char* row, int width);

}  // namespace tarvik::cardgen
