#include "core/settings/m420/m420_time_zones.h"

#include <charconv>

namespace tarvik::m420pane {

namespace {
int numberAt(std::string_view s) {
    int v = 0;
    const char* b = s.data();
    if (!s.empty() && s.front() == '+') ++b;  // from_chars takes no plus sign
    std::from_chars(b, s.data() + s.size(), v);
    return v;
}
}  // namespace

int gmtOffsetFromDesc(std::string_view desc) {
    if (desc.size() != 9) return 0;
    const int hours = numberAt(desc.substr(3, 3));
    const int minutes = numberAt(desc.substr(7, 2));
    // "-09:30" is minus nine and a half hours, not minus eight and a half.
    const bool negative = hours < 0 || desc[3] == '-';
    return hours * 60 + (negative ? -minutes : minutes);
}

const std::vector<std::string>& gmtDescList() {
    static const std::vector<std::string> list = {
        "UTC-12:00", "UTC-11:00", "UTC-10:00", "UTC-09:30", "UTC-09:00", "UTC-08:00", "UTC-07:00", "UTC-06:00",
        "UTC-05:00", "UTC-04:30", "UTC-04:00", "UTC-03:30", "UTC-03:00", "UTC-02:00", "UTC-01:00", "UTC",
        "UTC+01:00", "UTC+02:00", "UTC+03:00", "UTC+03:30", "UTC+04:00", "UTC+04:30", "UTC+05:00", "UTC+05:30",
        "UTC+05:45", "UTC+06:00", "UTC+06:30", "UTC+07:00", "UTC+08:00", "UTC+09:00", "UTC+09:30", "UTC+10:00",
        "UTC+10:30", "UTC+11:00", "UTC+11:30", "UTC+12:00", "UTC+12:45", "UTC+13:00", "UTC+14:00"};
    return list;
}

const std::vector<int>& gmtHourList() {
    static const std::vector<int> list = [] {
        std::vector<int> out;
        for (const auto& d : gmtDescList()) out.push_back(gmtOffsetFromDesc(d));
        return out;
    }();
    return list;
}

const std::vector<std::string>& timezoneNameList() {
    static const std::vector<std::string> list = {
        "Samoa Standard Time", "New Zealand Standard Time", "Central Pacific Standard Time",
        "E. Australia Standard Time", "AUS Central Standard Time", "Korea Standard Time",
        "Singapore Standard Time", "SE Asia Standard Time", "Myanmar Standard Time",
        "Central Asia Standard Time", "Nepal Standard Time", "India Standard Time", "West Asia Standard Time",
        "Afghanistan Standard Time", "Arabian Standard Time", "Iran Standard Time", "E. Africa Standard Time",
        "E. Europe Standard Time", "W. Europe Standard Time", "GMT Standard Time", "Azores Standard Time",
        "Mid-Atlantic Standard Time", "E. South America Standard Time", "Newfoundland Standard Time",
        "SA Western Standard Time", "Eastern Standard Time", "Central Standard Time", "Mountain Standard Time",
        "Pacific Standard Time", "Alaskan Standard Time", "Hawaiian Standard Time", "Dateline Standard Time"};
    return list;
}

}  // namespace tarvik::m420pane
