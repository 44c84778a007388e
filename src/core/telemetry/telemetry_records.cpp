#include "core/telemetry/telemetry_records.h"

#include <climits>
#include <cmath>

#include "core/telemetry/text_fields.h"

namespace tarvik::records {

using text::field;

namespace {

bool digitOrMinus(char c) { return c == '-' || (c >= '0' && c <= '9'); }

// The last G field sometimes runs into the bytes that follow it; only its
// first few characters count. The two record kinds cut differently, and both
// ways are what the cameras' files have always been read with.
int cutLastField(std::string_view s, bool countInOrder) {
    if (s.size() < 4) return text::intValue(s);
    std::size_t n = 0;
    if (countInOrder) {
        while (n < s.size() && digitOrMinus(s[n])) ++n;
    } else {
        n = digitOrMinus(s[3]) ? s.size() : 0;
    }
    const std::size_t take = n < 3 ? n + 1 : 3;
    return text::intValue(s.substr(0, take));
}

std::uint32_t toUint32(double v) {
    return static_cast<std::uint32_t>(static_cast<std::uint64_t>(text::truncToInt64(v)));
}

int scaled(int raw, int countsPerG) {
    const std::int32_t times128 = static_cast<std::int32_t>(static_cast<std::uint32_t>(raw) * 128u);
    const float v = std::trunc(static_cast<float>(times128) / static_cast<float>(countsPerG) + 0.5f);
    if (!(v > -512.0f)) return -512;  // also NaN
    if (v > 512.0f) return 512;
    return static_cast<int>(v);
}

}  // namespace

std::uint32_t nmeaToMicroDegrees(std::string_view t) {
    if (t.empty()) return 0;
    const std::size_t p = t.find('.');
    if (p == std::string_view::npos || p < 2) return 0;
    const int degrees = text::intValue(t.substr(0, p - 2));
    const float minutes = text::floatValue(t.substr(p - 2));
    const float deg = (static_cast<float>(degrees) + minutes / 60.0f) * 1e6f;
    return toUint32(static_cast<double>(deg));
}

std::uint32_t knotsToKmh(std::string_view knots) {
    const float k = text::floatValue(knots);
    const float kmh = static_cast<float>(static_cast<double>(k) * 1.852) + 0.5f;
    return toUint32(std::trunc(static_cast<double>(kmh)));
}

GpsFix gpsFix(const Fields& f, std::size_t base) {
    GpsFix fix;
    if (field(f, base + 2) != "A") return fix;
    auto firstByte = [&](std::size_t i) {
        std::string_view s = field(f, i);
        return s.empty() ? '\0' : s[0];
    };
    fix.lat = nmeaToMicroDegrees(field(f, base + 3));
    fix.ns = firstByte(base + 4);
    fix.lng = nmeaToMicroDegrees(field(f, base + 5));
    fix.ew = firstByte(base + 6);
    fix.speed = knotsToKmh(field(f, base + 7));
    return fix;
}

std::optional<GReading> gsensor(const Fields& f) {
    if (f.size() < 4) return std::nullopt;
    GReading g;
    g.x = static_cast<std::int16_t>(text::intValue(f[1]));
    g.y = static_cast<std::int16_t>(text::intValue(f[2]));
    g.z = static_cast<std::int16_t>(cutLastField(f[3], false));
    return g;
}

std::optional<GReading> gsensori(const Fields& f) {
    if (f.size() < 6) return std::nullopt;
    const int a = text::intValue(f[1]);
    const int b = text::intValue(f[2]);
    int c = 0;
    if (a != 0) c = (a == -1 && b == INT_MIN) ? INT_MIN : b / a;
    GReading g;
    if (c == 0) return g;
    g.x = static_cast<std::int16_t>(scaled(text::intValue(f[3]), c));
    g.y = static_cast<std::int16_t>(scaled(text::intValue(f[4]), c));
    g.z = static_cast<std::int16_t>(scaled(cutLastField(f[5], true), c));
    return g;
}

bool isPositionRecord(std::string_view name) { return name == "GPRMC" || name == "GNRMC"; }

}  // namespace tarvik::records
