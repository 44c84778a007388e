#include "core/telemetry/subtitle_entry.h"

#include <climits>
#include <cmath>
#include <string>

#include "core/telemetry/text_fields.h"

namespace tarvik {

namespace {

bool digit(char c) { return c >= '0' && c <= '9'; }

// Matches "dd:(dd):(dd(,d+))\s*-->\s*[0-9:.]+" at p; on success gives the
// minutes and the seconds-with-fraction texts.
bool timingAt(std::string_view s, std::size_t p, std::string_view& minutes, std::string_view& seconds) {
    if (p + 10 > s.size()) return false;
    if (!(digit(s[p]) && digit(s[p + 1]) && s[p + 2] == ':' && digit(s[p + 3]) && digit(s[p + 4]) &&
          s[p + 5] == ':' && digit(s[p + 6]) && digit(s[p + 7]) && s[p + 8] == ','))
        return false;
    std::size_t i = p + 9;
    if (i >= s.size() || !digit(s[i])) return false;
    while (i < s.size() && digit(s[i])) ++i;
    minutes = s.substr(p + 3, 2);
    seconds = s.substr(p + 6, i - (p + 6));
    while (i < s.size() && text::isSpace(static_cast<unsigned char>(s[i]))) ++i;
    if (s.substr(i, 3) != "-->") return false;
    i += 3;
    while (i < s.size() && text::isSpace(static_cast<unsigned char>(s[i]))) ++i;
    return i < s.size() && (digit(s[i]) || s[i] == ':' || s[i] == '.');
}

int clampToInt(float v) {
    if (!(v > -2147483648.0f)) return INT_MIN;
    if (v >= 2147483648.0f) return INT_MAX;
    return static_cast<int>(v);
}

}  // namespace

std::optional<SubtitleEntry> SubtitleEntry::entryWithTime(std::string_view line) {
    std::string_view minutes, seconds;
    for (std::size_t p = 0; p + 10 <= line.size(); ++p) {
        if (!timingAt(line, p, minutes, seconds)) continue;
        std::string sec(seconds);
        for (char& c : sec)
            if (c == ',') c = '.';
        SubtitleEntry e;
        // The hour is not part of the cue time: cue times wrap every hour.
        const float t = (static_cast<float>(text::intValue(minutes) * 60) + text::floatValue(sec)) * 1000.0f;
        e.cts = static_cast<std::uint32_t>(static_cast<std::uint64_t>(text::truncToInt64(t)));
        return e;
    }
    return std::nullopt;
}

void SubtitleEntry::parseSensor(const std::vector<std::string_view>& f) {
    if (f.size() < 4) return;
    setGx(text::intValue(f[1]));
    setGy(text::intValue(f[2]));
    setGz(text::intValue(f[3]));
}

void SubtitleEntry::parseSensorI(const std::vector<std::string_view>& f) {
    if (f.size() < 6) return;
    const int a = text::intValue(f[1]);
    const int b = text::intValue(f[2]);
    const int c = (a == 0 || (a == -1 && b == INT_MIN)) ? 0 : b / a;
    if (c == 0) return;
    auto scale = [&](std::string_view s) {
        const float r = std::roundf(static_cast<float>(text::intValue(s) * 128.0 / c));
        return static_cast<int>(static_cast<std::int16_t>(clampToInt(r)));
    };
    setGx(scale(f[3]));
    setGy(scale(f[4]));
    setGz(scale(f[5]));
}

void SubtitleEntry::parseGprmc(const std::vector<std::string_view>& f) {
    if (f.size() < 8 || f[2] != "A") return;
    lat = degree(f[3], f[4]);
    lng = degree(f[5], f[6]);
    const double kmh = std::round(static_cast<double>(text::floatValue(f[7])) * 1.852);
    speed = static_cast<std::uint32_t>(static_cast<std::uint64_t>(text::truncToInt64(kmh)));
}

float SubtitleEntry::degree(std::string_view value, std::string_view compass) {
    if (value.size() < 2 || compass.empty()) return 0.0f;
    const float v = text::floatValue(value);
    const float d = std::trunc(v / 100.0f);
    float r = (v - d * 100.0f) / 60.0f + d;
    if (compass[0] != 'E' && compass[0] != 'N') r = -r;
    return r;
}

}  // namespace tarvik
