#include "core/telemetry/free_gps_record.h"

#include <cmath>
#include <cstdint>
#include <cstring>

#include "core/telemetry/mp4_boxes.h"
#include "core/telemetry/timed_telemetry.h"

namespace tarvik::readers {

namespace {

using mp4::le32;

float leFloat(const unsigned char* p) {
    const std::uint32_t u = le32(p);
    float f;
    std::memcpy(&f, &u, 4);
    return f;
}

double leDouble(const unsigned char* p) {
    std::uint64_t u = le32(p) | std::uint64_t{le32(p + 4)} << 32;
    double d;
    std::memcpy(&d, &u, 8);
    return d;
}

double fromDegreesMinutes(double v) {
    const double d = std::floor(v / 100.0);
    return d + (v - d * 100.0) / 60.0;
}

}  // namespace

FreeGpsRecord parseFreeGpsRecord(const unsigned char* r, const unsigned char* refined, TimedFix& fix) {
    if (le32(r) > 23 || le32(r + 4) > 59 || le32(r + 8) > 59) return FreeGpsRecord::Unknown;
    const char status = static_cast<char>(r[24]), ns = static_cast<char>(r[25]), ew = static_cast<char>(r[26]);
    if (status == 'V') return FreeGpsRecord::NoFix;
    if (status != 'A' || (ns != 'N' && ns != 'S') || (ew != 'E' && ew != 'W')) return FreeGpsRecord::Unknown;
    double lat = leFloat(r + 28), lng = leFloat(r + 32);
    if (refined) {
        const double lat2 = leDouble(refined), lng2 = leDouble(refined + 16);
        if (std::fabs(lat2 - lat) < 0.001 && std::fabs(lng2 - lng) < 0.001) lat = lat2, lng = lng2;
    }
    if (!(lat > 0) || !(lng > 0)) return FreeGpsRecord::Unknown;
    fix.valid = true;
    fix.lat = fromDegreesMinutes(lat) * (ns == 'S' ? -1 : 1);
    fix.lng = fromDegreesMinutes(lng) * (ew == 'W' ? -1 : 1);
    fix.kmh = leFloat(r + 36) * 1.852;
    return FreeGpsRecord::Fix;
}

}  // namespace tarvik::readers
