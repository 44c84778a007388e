#include "core/library/recording_time.h"

#include <cstdio>
#include <ctime>

namespace tarvik {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool digits(std::string_view s, std::size_t at, std::size_t n, int& value) {
    if (at + n > s.size()) return false;
    value = 0;
    for (std::size_t i = at; i < at + n; ++i) {
        if (!isDigit(s[i])) return false;
        value = value * 10 + (s[i] - '0');
    }
    return true;
}

bool plausible(const RecordingMoment& m) {
    static const int days[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (m.year < 1970 || m.year > 2099 || m.month < 1 || m.month > 12 || m.day < 1 || m.day > days[m.month - 1] ||
        m.hour > 23 || m.minute > 59 || m.second > 59)
        return false;
    const bool leap = m.year % 4 == 0;  // 1970 to 2099
    return !(m.month == 2 && m.day == 29 && !leap);
}

// Offsets of month, day, hour and time digits after the year, per name shape.
struct Shape {
    std::size_t month, day, hour, length;
    int sep1, sep2;  // positions of '_' (-1: none)
};
constexpr Shape kShapes[] = {
    {4, 6, 9, 15, 8, -1},    // YYYYMMDD_HHMMSS
    {5, 7, 10, 16, 4, 9},    // YYYY_MMDD_HHMMSS
    {4, 6, 8, 14, -1, -1},   // YYYYMMDDHHMMSS
};

}  // namespace

std::int64_t RecordingMoment::secondsSinceEpoch() const {
    int y = year - (month <= 2);
    const int era = y / 400;
    const int yoe = y - era * 400;
    const int doy = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const int doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    const std::int64_t days = std::int64_t(era) * 146097 + doe - 719468;
    return days * 86400 + hour * 3600 + minute * 60 + second;
}

std::optional<RecordingMoment> recordingMomentFromName(std::string_view name) {
    for (std::size_t i = 0; i + 14 <= name.size(); ++i) {
        if (i > 0 && isDigit(name[i - 1])) continue;  // a longer number is not a date
        for (const Shape& s : kShapes) {
            if (i + s.length > name.size() || (i + s.length < name.size() && isDigit(name[i + s.length]))) continue;
            if ((s.sep1 >= 0 && name[i + s.sep1] != '_') || (s.sep2 >= 0 && name[i + s.sep2] != '_')) continue;
            RecordingMoment m{};
            if (!digits(name, i, 4, m.year) || !digits(name, i + s.month, 2, m.month) ||
                !digits(name, i + s.day, 2, m.day) || !digits(name, i + s.hour, 2, m.hour) ||
                !digits(name, i + s.hour + 2, 2, m.minute) || !digits(name, i + s.hour + 4, 2, m.second))
                continue;
            if (plausible(m)) return m;
        }
    }
    return std::nullopt;
}

std::string recordingTimeText(std::string_view name) {
    const auto m = recordingMomentFromName(name);
    if (!m) return {};
    char out[32];
    std::snprintf(out, sizeof out, "%04d-%02d-%02d %02d:%02d:%02d", m->year, m->month, m->day, m->hour, m->minute,
                  m->second);
    return out;
}

std::string recordingTimeText(std::int64_t t) {
    const std::time_t when = static_cast<std::time_t>(t);
    std::tm tm{};
    if (t < 0 || !gmtime_r(&when, &tm)) return {};
    char out[32];
    std::snprintf(out, sizeof out, "%04d-%02d-%02d %02d:%02d:%02d", tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday,
                  tm.tm_hour, tm.tm_min, tm.tm_sec);
    return out;
}

}  // namespace tarvik
