// Layout: ExifTool's QuickTimeStream.pl (ParseTag, top-level "GPS " box of
// 36-byte little-endian records): Unix seconds at 8, km/h x 1000 at 12, N/S
// letter at 16, ddmm.mmm x 1000 at 17, E/W letter at 21, dddmm.mmm x 1000 at 22.
#include <algorithm>
#include <cmath>
#include <string>

#include "core/telemetry/content_readers.h"
#include "core/telemetry/mp4_boxes.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/timed_telemetry.h"

namespace tarvik::readers {

namespace {
constexpr std::size_t kRecord = 36;
constexpr std::size_t kMaxRecords = 4096;

double fromDegreesMinutes(double v) {
    const double d = std::floor(v / 100.0);
    return d + (v - d * 100.0) / 60.0;
}
}  // namespace

int readGpsRecordBox(const BoundedFile& file, OrvoClipData& out) {
    TimedTelemetry timed;
    for (const mp4::Box& box : mp4::topLevel(file)) {
        if (!box.is("GPS ")) continue;
        const std::string data = mp4::payload(file, box, kRecord * kMaxRecords);
        const auto* p = reinterpret_cast<const unsigned char*>(data.data());
        static const unsigned char kZero[kRecord] = {};
        long long first = -1;
        for (std::size_t at = 0; at + kRecord <= data.size(); at += kRecord) {
            const unsigned char* r = p + at;
            if (std::equal(r, r + kRecord, kZero)) break;  // the unused rest of the box
            const char ns = static_cast<char>(r[16]), ew = static_cast<char>(r[21]);
            const double lat = mp4::le32(r + 17) / 1e3, lng = mp4::le32(r + 22) / 1e3;
            // A record of another layout (letters elsewhere, minutes past 60) is not read as this one.
            if ((ns != 'N' && ns != 'S') || (ew != 'E' && ew != 'W') || std::fmod(lat, 100.0) >= 60.0 ||
                std::fmod(lng, 100.0) >= 60.0)
                continue;
            const long long secs = mp4::le32(r + 8);
            if (first < 0) first = secs;
            TimedFix fix;
            fix.valid = lat != 0 || lng != 0;
            fix.lat = fromDegreesMinutes(lat) * (ns == 'S' ? -1 : 1);
            fix.lng = fromDegreesMinutes(lng) * (ew == 'W' ? -1 : 1);
            fix.kmh = mp4::le32(r + 12) / 1e3;
            const double t = static_cast<double>(secs - first);
            timed.addFix(t, fix);
            timed.extendTo(t + 1.0);
        }
        break;
    }
    return timed.finish(out);
}

}  // namespace tarvik::readers
