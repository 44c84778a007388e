// The byte layouts of the other families' telemetry, from their public
// descriptions: GoPro's GPMF format description, ExifTool's QuickTime tag
// documentation and source (freeGPS, "GPS " records, the free box logs), the
// 3gf grammar of synalysis/Grammars, and NMEA 0183.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "cardgen/mp4_box_writer.h"
#include "cardgen/other_camera_layouts.h"

namespace tarvik::cardgen {

namespace {

constexpr int kClockStart = 8 * 3600 + 30 * 60;  // the drive starts at 08:30:00
constexpr long long kUnixStart = 1795249800;      // 2026-11-21 08:30:00 UTC
constexpr double kScal = 418.0;                   // ACCL counts per m/s^2
constexpr double kGravity = 9.80665;

std::string format(const char* fmt, auto... args) {
    char buf[256];
    std::snprintf(buf, sizeof buf, fmt, args...);
    return buf;
}

// Degrees as NMEA's ddmm.mmmmm text, and the degrees that text says.
std::string nmeaAngle(double v, int degreeDigits, double& written) {
    const double a = std::fabs(v);
    int deg = static_cast<int>(a);
    double min = std::round((a - deg) * 60.0 * 1e5) / 1e5;
    if (min >= 60.0) ++deg, min -= 60.0;
    written = (deg + min / 60.0) * (v < 0 ? -1 : 1);
    return format(degreeDigits == 2 ? "%02d%08.5f" : "%03d%08.5f", deg, min);
}

// Degrees as ddmm.mmmm held in some other form: the value, and its degrees.
double degreesMinutes(double v) {
    const double a = std::fabs(v);
    const int deg = static_cast<int>(a);
    return deg * 100.0 + (a - deg) * 60.0;
}
double fromDegreesMinutes(double v) {
    const double d = std::floor(v / 100.0);
    return d + (v - d * 100.0) / 60.0;
}

void putLeFloat(std::string& s, float f) {
    std::uint32_t u;
    std::memcpy(&u, &f, 4);
    putLe32(s, u);
}

// One GPMF item: key, type, structure size, repeat, data padded to 4 bytes.
std::string klv(const char* key, char type, std::size_t structSize, std::size_t repeat, const std::string& data) {
    std::string s(key, 4);
    s += type;
    s += static_cast<char>(structSize);
    putBe16(s, static_cast<std::uint16_t>(repeat));
    s += data;
    s.append((4 - data.size() % 4) % 4, '\0');
    return s;
}

}  // namespace

std::string nmeaSentence(const std::string& body) {
    unsigned char sum = 0;
    for (char c : body) sum ^= static_cast<unsigned char>(c);
    return "$" + body + format("*%02X", sum);
}

std::string gpmfSecond(int driveSecond, bool gps9, WrittenTelemetry* written, double clipSecond) {
    std::string gps, fixType, accl;
    const int kGpsRate = 10, kAcclRate = 50;
    bool anyFix = false;
    for (int i = 0; i < kGpsRate; ++i) {
        const double t = driveSecond + static_cast<double>(i) / kGpsRate;
        const DriveFix f = driveFix(t);
        const auto lat = static_cast<std::int32_t>(f.valid ? std::lround(f.lat * 1e7) : 0);
        const auto lng = static_cast<std::int32_t>(f.valid ? std::lround(f.lng * 1e7) : 0);
        const auto speed = static_cast<std::int32_t>(f.valid ? std::lround(f.kmh / 3.6 * 1000) : 0);
        anyFix = anyFix || f.valid;
        for (std::int32_t v : {lat, lng, std::int32_t{35000}, speed, speed / 10}) putBe32(gps, static_cast<std::uint32_t>(v));
        if (gps9) {
            putBe32(gps, 9456);                                            // days since 2000
            putBe32(gps, static_cast<std::uint32_t>((kClockStart + t) * 1000));  // ms of the day
            putBe16(gps, 150);                                             // DOP x 100
            putBe16(gps, f.valid ? 3 : 0);                                 // fix
        }
        if (written)
            written->fixes.push_back({clipSecond + static_cast<double>(i) / kGpsRate, f.valid, lat / 1e7, lng / 1e7,
                                      speed / 1000.0 * 3.6});
    }
    for (int i = 0; i < kAcclRate; ++i) {
        const double t = driveSecond + static_cast<double>(i) / kAcclRate;
        const DriveG g = driveG(t);
        std::int16_t raw[3];
        const int axes[3] = {g.x, g.y, g.z};
        for (int k = 0; k < 3; ++k) {
            raw[k] = static_cast<std::int16_t>(std::lround(axes[k] / 128.0 * kGravity * kScal));
            putBe16(accl, static_cast<std::uint16_t>(raw[k]));
        }
        if (written) {
            auto back = [](std::int16_t r) { return r / kScal / kGravity * 128.0; };
            written->gs.push_back({clipSecond + static_cast<double>(i) / kAcclRate, back(raw[0]), back(raw[1]), back(raw[2])});
        }
    }
    std::string scal;
    for (std::uint32_t v : {10000000u, 10000000u, 1000u, 1000u, 100u, 1u, 1000u, 100u, 1u}) putBe32(scal, v);
    std::string gpsStream = klv("STNM", 'c', 1, 9, "GPS (Lat.");
    if (gps9) {
        gpsStream += klv("TYPE", 'c', 1, 9, "lllllllSS");
        gpsStream += klv("SCAL", 'l', 4, 9, scal);
        gpsStream += klv("GPS9", '?', 32, kGpsRate, gps);
    } else {
        putBe32(fixType, anyFix ? 3 : 0);
        gpsStream += klv("GPSF", 'L', 4, 1, fixType);
        gpsStream += klv("SCAL", 'l', 4, 5, scal.substr(0, 20));
        gpsStream += klv("GPS5", 'l', 20, kGpsRate, gps);
    }
    std::string acclScal;
    putBe16(acclScal, static_cast<std::uint16_t>(kScal));
    const std::string acclStream = klv("SCAL", 's', 2, 1, acclScal) + klv("ACCL", 's', 6, kAcclRate, accl);
    std::string dvid;
    putBe32(dvid, 1);
    // Nested items: structure size 4, repeat the payload's size in words.
    auto nest = [](const char* key, const std::string& inner) { return klv(key, 0, 4, inner.size() / 4, inner); };
    return nest("DEVC", klv("DVID", 'L', 4, 1, dvid) + nest("STRM", gpsStream) + nest("STRM", acclStream));
}

std::string freeGpsBlock(int driveSecond, WrittenTelemetry* written, double clipSecond) {
    const DriveFix f = driveFix(driveSecond);
    std::string b;
    putBe32(b, 0x8000);
    b += "freeGPS ";
    putLe32(b, 0x4c);
    b.resize(0x30, '\0');
    const int clock = kClockStart + driveSecond;
    for (int v : {clock / 3600 % 24, clock / 60 % 60, clock % 60, 26, 11, 21}) putLe32(b, static_cast<std::uint32_t>(v));
    b += f.valid ? 'A' : 'V';
    b += f.lat >= 0 ? 'N' : 'S';
    b += f.lng >= 0 ? 'E' : 'W';
    b += '\0';
    const float lat = static_cast<float>(f.valid ? degreesMinutes(f.lat) : 0);
    const float lng = static_cast<float>(f.valid ? degreesMinutes(f.lng) : 0);
    const float knots = static_cast<float>(f.valid ? f.kmh / 1.852 : 0);
    putLeFloat(b, lat);
    putLeFloat(b, lng);
    putLeFloat(b, knots);
    putLeFloat(b, 90.0f);
    b.resize(0x8000, '\0');
    if (written)
        written->fixes.push_back({clipSecond, f.valid, fromDegreesMinutes(lat) * (f.lat < 0 ? -1 : 1),
                                  fromDegreesMinutes(lng) * (f.lng < 0 ? -1 : 1), static_cast<double>(knots) * 1.852});
    return b;
}

std::string freeGpsTsRecord(int driveSecond, bool head, WrittenTelemetry* written, double clipSecond) {
    std::string r;
    if (head) {
        r = std::string("\x01\x00\xff\x00", 4) + "0123456789abcdef\n";
        r.resize(164, '\0');
    }
    // Through the track, then 12 bytes the public dumps show after it.
    return r + freeGpsBlock(driveSecond, written, clipSecond).substr(0x30, 44) + std::string(12, '\0');
}

std::string gpsRecord(int driveSecond, WrittenTelemetry* written, double clipSecond) {
    const DriveFix f = driveFix(driveSecond);
    const auto lat = static_cast<std::uint32_t>(f.valid ? std::lround(degreesMinutes(f.lat) * 1e3) : 0);
    const auto lng = static_cast<std::uint32_t>(f.valid ? std::lround(degreesMinutes(f.lng) * 1e3) : 0);
    const auto speed = static_cast<std::uint32_t>(f.valid ? std::lround(f.kmh * 1e3) : 0);
    std::string r;
    putLe32(r, 1);
    putLe32(r, 1);
    putLe32(r, static_cast<std::uint32_t>(kUnixStart + driveSecond));
    putLe32(r, speed);
    r += f.lat >= 0 ? 'N' : 'S';
    putLe32(r, lat);
    r += f.lng >= 0 ? 'E' : 'W';
    putLe32(r, lng);
    r.resize(36, '\0');
    if (written)
        written->fixes.push_back({clipSecond, f.valid, fromDegreesMinutes(lat / 1e3) * (f.lat < 0 ? -1 : 1),
                                  fromDegreesMinutes(lng / 1e3) * (f.lng < 0 ? -1 : 1), speed / 1e3});
    return r;
}

std::string nmeaLog(int driveOffset, int seconds, long long startMs, WrittenTelemetry* written) {
    std::string s;
    for (int i = 0; i < seconds; ++i) {
        const DriveFix f = driveFix(driveOffset + i);
        const int clock = kClockStart + driveOffset + i;
        const std::string time = format("%02d%02d%02d.00", clock / 3600 % 24, clock / 60 % 60, clock % 60);
        const std::string code = "[" + std::to_string(startMs + i * 1000LL) + "]";
        WrittenFix w{static_cast<double>(i), f.valid, 0, 0, 0};
        if (f.valid) {
            const std::string lat = nmeaAngle(f.lat, 2, w.lat), lng = nmeaAngle(f.lng, 3, w.lng);
            const std::string knots = format("%.3f", f.kmh / 1.852);
            w.kmh = std::strtod(knots.c_str(), nullptr) * 1.852;
            const std::string ns = f.lat >= 0 ? "N" : "S", ew = f.lng >= 0 ? "E" : "W";
            s += code + nmeaSentence("GPRMC," + time + ",A," + lat + "," + ns + "," + lng + "," + ew + "," + knots +
                                     ",90.0,211126,,,A") + "\n";
            s += code + nmeaSentence("GPGGA," + time + "," + lat + "," + ns + "," + lng + "," + ew +
                                     ",1,08,0.9,35.0,M,18.0,M,,") + "\n";
        } else {
            s += code + nmeaSentence("GPRMC," + time + ",V,,,,,,,211126,,,N") + "\n";
            s += code + nmeaSentence("GPGGA," + time + ",,,,,0,00,99.9,,,,,,") + "\n";
        }
        if (written) written->fixes.push_back(w);
    }
    return s;
}

std::string gTable(int driveOffset, int seconds, WrittenTelemetry* written) {
    std::string s;
    for (int i = 0; i < seconds * 10; ++i) {
        const DriveG g = driveG(driveOffset + i / 10.0);
        putBe32(s, static_cast<std::uint32_t>(i * 100));
        for (int v : {g.z, g.y, g.x}) putBe16(s, static_cast<std::uint16_t>(static_cast<std::int16_t>(v)));
        if (written) written->gs.push_back({i / 10.0, static_cast<double>(g.x), static_cast<double>(g.y), static_cast<double>(g.z)});
    }
    return s;
}

}  // namespace tarvik::cardgen
