#pragma once
// The time-zone choices of the M420 settings pane: the texts offered, their
// offsets in minutes and the zone names stored beside them. The two lists are
// paired by index although they run in opposite directions and differ in
// length; the cameras have always been written that way.

#include <string>
#include <string_view>
#include <vector>

namespace tarvik::m420pane {

const std::vector<std::string>& gmtDescList();       // 39 entries, "UTC-12:00" .. "UTC+14:00"
const std::vector<int>& gmtHourList();               // offset of each entry of gmtDescList, minutes
const std::vector<std::string>& timezoneNameList();  // 32 entries

// "UTC+05:45" -> 345, "UTC-09:30" -> -570; anything not nine characters long -> 0.
int gmtOffsetFromDesc(std::string_view desc);

}  // namespace tarvik::m420pane
