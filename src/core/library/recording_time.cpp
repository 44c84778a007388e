#include "core/library/recording_time.h"

#include <cstdio>

namespace tarvik {

namespace {

bool digits(std::string_view s, std::size_t at, std::size_t n, int& value) {
    if (at + n > s.size()) return false;
    value = 0;
    for (std::size_t i = at; i < at + n; ++i) {
        if (s[i] < '0' || s[i] > '9') return false;
        value = value * 10 + (s[i] - '0');
    }
    return true;
}

bool plausible(int y, int mo, int d, int h, int mi, int se) {
    static const int days[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return y >= 2000 && y <= 2099 && mo >= 1 && mo <= 12 && d >= 1 && d <= days[mo - 1] && h <= 23 && mi <= 59 &&
           se <= 59;
}

}  // namespace

std::string recordingTimeText(std::string_view name) {
    for (std::size_t i = 0; i + 15 <= name.size(); ++i) {
        if (i > 0 && name[i - 1] >= '0' && name[i - 1] <= '9') continue;  // a longer number is not a date
        int y, mo, d, h, mi, se;
        if (!digits(name, i, 4, y) || !digits(name, i + 4, 2, mo) || !digits(name, i + 6, 2, d)) continue;
        if (name[i + 8] != '_') continue;
        if (!digits(name, i + 9, 2, h) || !digits(name, i + 11, 2, mi) || !digits(name, i + 13, 2, se)) continue;
        if (!plausible(y, mo, d, h, mi, se)) continue;
        char out[32];
        std::snprintf(out, sizeof out, "%04d-%02d-%02d %02d:%02d:%02d", y, mo, d, h, mi, se);
        return out;
    }
    return {};
}

}  // namespace tarvik
