#pragma once
// When a clip was recorded, read from its file name: cameras name clips after
// the moment recording began (20261121_083000_F.mp4). Viewers of an incident
// want that moment in plain figures beside the picture.

#include <string>
#include <string_view>

namespace tarvik {

// "2026-11-21 08:30:00" for a name holding 8 date digits, an underscore and 6
// time digits that make a real date and time; "" otherwise.
std::string recordingTimeText(std::string_view fileName);

}  // namespace tarvik
