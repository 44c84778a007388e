#pragma once
// The KRT family's clip names ("Rec_", "Event_", "Park_" or "Manual_" and
// ".avi", as the cameras write them): their telemetry needs that family's
// reader. One rule for the player, the trips and the command.

#include <string_view>

namespace tarvik {

bool isKrtClipName(std::string_view fileName);

}  // namespace tarvik
