#include "core/settings/m420/setting_time_file.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <system_error>

#include "core/util/atomic_file.h"

namespace tarvik {

namespace fs = std::filesystem;

namespace {

bool isLeap(int y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

int daysIn(int year, int month) {
    static constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeap(year) ? 29 : days[month - 1];
}

// 1..maxDigits decimal digits, nothing else.
bool number(std::string_view s, std::size_t maxDigits, int* out) {
    if (s.empty() || s.size() > maxDigits) return false;
    int v = 0;
    for (char c : s) {
        if (c < '0' || c > '9') return false;
        v = v * 10 + (c - '0');
    }
    *out = v;
    return true;
}

}  // namespace

std::string formatSettingTime(const SettingTime& t) {
    const int off = t.utcOffsetMinutes < 0 ? -t.utcOffsetMinutes : t.utcOffsetMinutes;
    char buf[64];
    std::snprintf(buf, sizeof buf, "%04d,%02d,%02d,%02d,%02d,%02d,%c%02d%02d", t.year, t.month, t.day, t.hour,
                  t.minute, t.second, t.utcOffsetMinutes < 0 ? '-' : '+', off / 60, off % 60);
    return buf;
}

std::optional<SettingTime> parseSettingTime(std::string_view text) {
    std::string_view parts[7];
    std::size_t n = 0, start = 0;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        if (i == text.size() || text[i] == ',') {
            if (n == 7) return std::nullopt;
            parts[n++] = text.substr(start, i - start);
            start = i + 1;
        }
    }
    if (n != 7) return std::nullopt;
    SettingTime t;
    if (!number(parts[0], 4, &t.year) || !number(parts[1], 2, &t.month) || !number(parts[2], 2, &t.day) ||
        !number(parts[3], 2, &t.hour) || !number(parts[4], 2, &t.minute) || !number(parts[5], 2, &t.second))
        return std::nullopt;
    if (t.month < 1 || t.month > 12 || t.day < 1 || t.day > daysIn(t.year, t.month) || t.hour > 23 ||
        t.minute > 59 || t.second > 59)
        return std::nullopt;
    std::string_view z = parts[6];
    int hh, mm;
    if (z.size() != 5 || (z[0] != '+' && z[0] != '-') || !number(z.substr(1, 2), 2, &hh) ||
        !number(z.substr(3, 2), 2, &mm) || hh > 18 || mm > 59)
        return std::nullopt;
    t.utcOffsetMinutes = (z[0] == '-' ? -1 : 1) * (hh * 60 + mm);
    return t;
}

SettingTime currentSettingTime() {
    std::time_t now = std::time(nullptr);
    std::tm tm{};
    localtime_r(&now, &tm);
    return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, std::min(tm.tm_sec, 59),
            static_cast<int>(tm.tm_gmtoff / 60)};
}

std::string settingTimeFilePath(const std::string& root) {
    return (fs::path(root) / "SETTING" / "time.dat").string();
}

bool writeSettingTimeFile(const std::string& root, const SettingTime& t) {
    if (root.empty()) return false;
    std::error_code ec;
    fs::create_directories(fs::path(root) / "SETTING", ec);
    return writeFileAtomically(settingTimeFilePath(root), formatSettingTime(t));
}

std::optional<SettingTime> readSettingTimeFile(const std::string& root) {
    if (root.empty()) return std::nullopt;
    std::string text;
    std::size_t size = 0;
    if (!readFileHead(settingTimeFilePath(root), 64, &text, &size) || size > 64) return std::nullopt;
    return parseSettingTime(text);
}

bool removeSettingTimeFile(const std::string& root) {
    if (root.empty()) return true;
    std::error_code ec;
    fs::remove(settingTimeFilePath(root), ec);
    return !fs::exists(settingTimeFilePath(root), ec);
}

}  // namespace tarvik
