#include "cardgen/telemetry_encoders.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tarvik::cardgen {

namespace {

std::string format(const char* fmt, auto... args) {
    char buf[256];
    std::snprintf(buf, sizeof buf, fmt, args...);
    return buf;
}

std::string nmeaAngle(double v, int degreeDigits) {
    const double a = std::fabs(v);
    const int deg = static_cast<int>(a);
    const double min = (a - deg) * 60.0;
    return degreeDigits == 2 ? format("%02d%07.4f", deg, min) : format("%03d%07.4f", deg, min);
}

std::string gText(const DriveG& g, bool gsensori) {
    // 256 counts over 2 g: 128 counts per g, so the raw counts are the values.
    return gsensori ? format("gsensori,2,256,%d,%d,%d", g.x, g.y, g.z) : format("gsensor,%d,%d,%d", g.x, g.y, g.z);
}

int clampInt(int v, int lo, int hi) { return std::min(hi, std::max(lo, v)); }

}  // namespace

std::string rmcSentence(const DriveFix& fix, int second, const std::string& name) {
    const int clock = 8 * 3600 + 30 * 60 + second;  // the drive starts at 08:30:00
    const std::string time = format("%02d%02d%02d.000", clock / 3600 % 24, clock / 60 % 60, clock % 60);
    if (!fix.valid) return name + "," + time + ",V,,,,,,,211126,,,N";
    return name + "," + time + ",A," + nmeaAngle(fix.lat, 2) + "," + (fix.lat >= 0 ? "N" : "S") + "," +
           nmeaAngle(fix.lng, 3) + "," + (fix.lng >= 0 ? "E" : "W") + "," + format("%.3f", fix.kmh / 1.852) +
           ",90.0,211126,,,A";
}

DriveG quantizeGeneralBinary(DriveG g) {
    return {clampInt(g.x, -127, 128), clampInt(g.y, -127, 128), clampInt(g.z, -127, 128)};
}

DriveG quantizeKrtBinary(DriveG g) {
    auto q = [](int v) { return clampInt(static_cast<int>(std::lround((v + 1280) / 10.0)), 0, 255) * 10 - 1280; };
    return {q(g.x), q(g.y), q(g.z)};
}

DriveG quantizeText(DriveG g) { return {g.x, g.y, clampInt(g.z, -99, 999)}; }

std::string tailText(const std::vector<TelemetrySecond>& secs) {
    std::string out = "QZRVT7";
    int i = 0;
    for (const auto& s : secs) {
        for (const auto& g : s.readings) {
            const double lat = s.fix.valid ? s.fix.lat : 0.0;
            const double lng = s.fix.valid ? s.fix.lng : 0.0;
            out += format("%d,%.6f,%.6f,%d,%d,%d,%d\n", i++, lat, lng, static_cast<int>(s.fix.kmh), g.x, g.y, g.z);
        }
    }
    return out;
}

std::vector<TextChunk> textRecordChunks(const std::vector<TelemetrySecond>& secs, const std::string& tag,
                                        bool gsensori) {
    std::vector<TextChunk> out;
    if (secs.empty()) return out;
    const int first = secs.front().second;
    for (const auto& s : secs) {
        const double t0 = s.second - first;
        const double n = static_cast<double>(s.readings.size());
        for (std::size_t r = 0; r < s.readings.size(); ++r)
            out.push_back({t0 + r / n, tag, gText(s.readings[r], gsensori) + '\0'});
        out.push_back({t0 + 0.999, tag, rmcSentence(s.fix, s.second, s.second % 2 ? "GNRMC" : "GPRMC") + '\0'});
    }
    return out;
}

std::vector<TextChunk> binaryChunks(const std::vector<TelemetrySecond>& secs, const std::string& tag, bool krt) {
    std::vector<TextChunk> out;
    if (secs.empty()) return out;
    const int first = secs.front().second;
    int noFix = 0;
    for (const auto& s : secs) {
        const double t0 = s.second - first;
        const double n = static_cast<double>(s.readings.size());
        for (std::size_t r = 0; r < s.readings.size(); ++r) {
            const DriveG& g = s.readings[r];
            std::string p(8, '\0');
            p[0] = 'M';
            if (krt) {
                p[1] = static_cast<char>((g.x + 1280) / 10);
                p[2] = static_cast<char>((g.y + 1280) / 10);
                p[3] = static_cast<char>((g.z + 1280) / 10);
                p[4] = p[5] = p[6] = 1;
            } else {
                p[1] = static_cast<char>(128 - g.x);
                p[2] = static_cast<char>(128 - g.y);
                p[3] = static_cast<char>(128 - g.z);
            }
            out.push_back({t0 + r / n, tag, p});
        }
        if (!krt && !s.fix.valid && noFix++ % 2 == 0) {
            out.push_back({t0 + 0.999, tag, std::string("T\0\0", 3)});
        } else {
            // Odd payload lengths exercise the pad byte.
            std::string text = rmcSentence(s.fix, s.second, s.second % 2 ? "G$GPRMC" : "$GPRMC");
            out.push_back({t0 + 0.999, tag, text + '\0'});
        }
    }
    return out;
}

std::string srtTrack(const std::vector<TelemetrySecond>& secs, bool crlf) {
    const char* nl = crlf ? "\r\n" : "\n";
    std::string out;
    if (secs.empty()) return out;
    const int first = secs.front().second;
    int cue = 0;
    auto stamp = [](long ms) {
        return format("%02ld:%02ld:%02ld,%03ld", ms / 3600000, ms / 60000 % 60, ms / 1000 % 60, ms % 1000);
    };
    for (const auto& s : secs) {
        for (std::size_t r = 0; r < s.readings.size(); ++r) {
            const long start = (s.second - first) * 1000L + static_cast<long>(r) * 1000L / static_cast<long>(s.readings.size());
            const long end = start + 1000L / static_cast<long>(s.readings.size());
            std::string body = gText(s.readings[r], true);
            if (r + 1 == s.readings.size()) body += ";" + rmcSentence(s.fix, s.second);
            out += std::to_string(++cue) + nl + stamp(start) + " --> " + stamp(end) + nl + body + nl + nl;
        }
    }
    return out;
}

}  // namespace tarvik::cardgen
