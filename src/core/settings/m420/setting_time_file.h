#pragma once
// SETTING/time.dat asks the camera to set its clock: one line
// "yyyy,MM,dd,HH,mm,ss,Z" (Z the offset from UTC such as +0900) with no line
// end. Without the file the camera leaves its clock alone.

#include <optional>
#include <string>
#include <string_view>

namespace tarvik {

struct SettingTime {
    int year = 1970, month = 1, day = 1, hour = 0, minute = 0, second = 0;
    int utcOffsetMinutes = 0;  // +0900 is 540
    bool operator==(const SettingTime&) const = default;
};

std::string formatSettingTime(const SettingTime& t);
// Nothing unless the text is exactly the pattern with a valid date and time.
std::optional<SettingTime> parseSettingTime(std::string_view text);
// The current local time of this computer, with its offset.
SettingTime currentSettingTime();

// The file under a card root: root/SETTING/time.dat.
std::string settingTimeFilePath(const std::string& root);
// Writes the file (creating SETTING/), atomically; false on failure.
bool writeSettingTimeFile(const std::string& root, const SettingTime& t);
// The file's time; nothing when it is missing, too long or not the pattern.
std::optional<SettingTime> readSettingTimeFile(const std::string& root);
// Deletes the file if it is there; false only when it stays.
bool removeSettingTimeFile(const std::string& root);

}  // namespace tarvik
