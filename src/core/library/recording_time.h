#pragma once
// When a clip was recorded, read from its file name: cameras name clips after
// the moment recording began (20261121_083000_F.mp4, 2026_1121_083000_F.MP4,
// 20261121083000A.mp4). Viewers of an incident want that moment in plain
// figures beside the picture.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvik {

struct RecordingMoment {
    int year, month, day, hour, minute, second;
    // Seconds since 1970-01-01 of the moment taken as UTC.
    std::int64_t secondsSinceEpoch() const;
};

// The first run of digits in the name shaped as YYYYMMDD_HHMMSS,
// YYYY_MMDD_HHMMSS or YYYYMMDDHHMMSS that makes a real date and time.
std::optional<RecordingMoment> recordingMomentFromName(std::string_view fileName);

// "2026-11-21 08:30:00" for such a name; "" otherwise.
std::string recordingTimeText(std::string_view fileName);
// The same text for a time read as the camera's clock wrote it (a
// container's creation time, say), in seconds since 1970.
std::string recordingTimeText(std::int64_t secondsSinceEpoch);

}  // namespace tarvik
