#include "core/telemetry/nmea_sentences.h"

#include <cmath>
#include <cstdlib>
#include <string>

namespace tarvik::nmea {

namespace {

constexpr std::size_t kMaxFields = 24;

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

// A number made only of digits, at most one point and a leading sign.
bool number(std::string_view s, double& v) {
    if (s.empty() || s.size() > 20) return false;
    bool digit = false, point = false;
    for (std::size_t i = 0; i < s.size(); ++i) {
        const char c = s[i];
        if (c >= '0' && c <= '9') digit = true;
        else if (c == '.' && !point) point = true;
        else if (c == '-' && i == 0) continue;
        else return false;
    }
    if (!digit) return false;
    v = std::strtod(std::string(s).c_str(), nullptr);
    return true;
}

// ddmm.mmmm (or dddmm.mmmm) to degrees; 0 < minutes < 60.
bool degrees(std::string_view s, char hemi, char positive, char negative, double& out) {
    double v;
    if (!number(s, v) || v < 0 || (hemi != positive && hemi != negative)) return false;
    const double d = std::floor(v / 100.0);
    const double m = v - d * 100.0;
    if (m >= 60.0) return false;
    out = (d + m / 60.0) * (hemi == positive ? 1.0 : -1.0);
    return true;
}

double timeOfDay(std::string_view s) {
    double v;
    for (std::size_t i = 0; i < 6 && i < s.size(); ++i)
        if (s[i] < '0' || s[i] > '9') return -1;
    if (s.size() < 6 || !number(s, v)) return -1;
    const int h = (s[0] - '0') * 10 + (s[1] - '0');
    const int m = (s[2] - '0') * 10 + (s[3] - '0');
    const double sec = v - std::floor(v / 100.0) * 100.0;
    if (h > 23 || m > 59 || sec >= 61.0) return -1;
    return h * 3600.0 + m * 60.0 + sec;
}

}  // namespace

std::optional<Sentence> parse(std::string_view line) {
    if (line.size() < 7 || line[0] != '$') return std::nullopt;
    // Checksum, when the sentence has one: XOR of the bytes between '$' and '*'.
    std::string_view body = line.substr(1);
    const std::size_t star = body.find('*');
    if (star != std::string_view::npos) {
        if (star + 3 > body.size()) return std::nullopt;
        const int hi = hexDigit(body[star + 1]), lo = hexDigit(body[star + 2]);
        unsigned char sum = 0;
        for (std::size_t i = 0; i < star; ++i) sum ^= static_cast<unsigned char>(body[i]);
        if (hi < 0 || lo < 0 || sum != (hi << 4 | lo)) return std::nullopt;
        body = body.substr(0, star);
    }
    std::string_view f[kMaxFields];
    std::size_t n = 0;
    for (std::size_t at = 0; n < kMaxFields;) {
        const std::size_t comma = body.find(',', at);
        f[n++] = body.substr(at, comma == std::string_view::npos ? std::string_view::npos : comma - at);
        if (comma == std::string_view::npos) break;
        at = comma + 1;
    }
    if (f[0].size() != 5) return std::nullopt;
    const std::string_view kind = f[0].substr(2);
    Sentence s;
    auto hemi = [&](std::size_t i) { return f[i].size() == 1 ? f[i][0] : '\0'; };
    if (kind == "RMC" && n >= 8) {
        s.rmc = true;
        s.secondOfDay = timeOfDay(f[1]);
        if (f[2] == "A") {
            double kn = 0;
            s.fix.valid = degrees(f[3], hemi(4), 'N', 'S', s.fix.lat) && degrees(f[5], hemi(6), 'E', 'W', s.fix.lng) &&
                          (f[7].empty() || number(f[7], kn));
            s.fix.kmh = kn * 1.852;
        } else if (f[2] != "V") {
            return std::nullopt;
        }
    } else if (kind == "GGA" && n >= 7) {
        s.secondOfDay = timeOfDay(f[1]);
        double quality;
        if (!number(f[6], quality)) return std::nullopt;
        if (quality > 0)
            s.fix.valid = degrees(f[2], hemi(3), 'N', 'S', s.fix.lat) && degrees(f[4], hemi(5), 'E', 'W', s.fix.lng);
    } else {
        return std::nullopt;
    }
    if (!s.fix.valid) s.fix = TimedFix{};
    return s;
}

void MomentMerger::add(double seconds, const Sentence& s) {
    if (!pending_) {
        pending_ = true;
        time_ = seconds;
        fix_ = TimedFix{};
    }
    if (s.rmc) {
        const double kmh = s.fix.kmh;
        if (s.fix.valid || !fix_.valid) fix_ = s.fix;
        fix_.kmh = s.fix.valid ? kmh : 0;
    } else if (s.fix.valid && !fix_.valid) {
        fix_ = s.fix;
        fix_.kmh = 0;
    }
}

double DayClock::since(double secondOfDay) {
    if (first_ < 0) first_ = secondOfDay;
    double d = secondOfDay - first_;
    if (d < -43200) d += 86400;  // past midnight
    return d;
}

}  // namespace tarvik::nmea
