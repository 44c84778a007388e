// The installed ExifTool reads the same generated clips: where it reports a
// position, the viewer's sample of that moment agrees with it.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <algorithm>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "cardgen/other_camera_layouts.h"
#include "core/media/clip_telemetry_reading.h"
#include "core/telemetry/orvo_clip_data.h"
#include "test_bytes.h"

using namespace tarvik;
using namespace tarvik::cardgen;
using tarvik::test::TempDir;

namespace {

struct Reported {
    double t;  // seconds from the clip's start
    double lat, lng, kmh;
};

double number(const std::string& s) { return s.empty() || s == "-" ? NAN : std::strtod(s.c_str(), nullptr); }

// Seconds of the day of "YYYY:MM:DD hh:mm:ss[.sss][Z]".
double clock(const std::string& s) {
    int y, mo, d, h, mi;
    double sec;
    if (std::sscanf(s.c_str(), "%d:%d:%d %d:%d:%lf", &y, &mo, &d, &h, &mi, &sec) != 6) return NAN;
    return h * 3600 + mi * 60 + sec;
}

// Every position of every embedded document. A document may hold several
// (GPMF: ten a second), spread evenly over its sample's duration.
std::vector<Reported> exiftool(const std::filesystem::path& clip, bool speedInMetresPerSecond, const char* ee) {
    const std::string cmd = std::string("exiftool ") + ee + " -n -a -s -G3 -q -q -SampleTime -SampleDuration -GPSDateTime -GPSLatitude "
                            "-GPSLongitude -GPSSpeed '" + clip.string() + "' 2>/dev/null";
    struct Doc {
        double time = NAN, duration = 0, clock = NAN;
        std::vector<double> lat, lng, speed;
    };
    std::map<int, Doc> docs;
    FILE* p = popen(cmd.c_str(), "r");
    if (!p) return {};
    char line[512];
    while (std::fgets(line, sizeof line, p)) {
        int doc;
        char tag[64], value[256];
        if (std::sscanf(line, "[Doc%d] %63s : %255[^\n]", &doc, tag, value) != 3) continue;
        Doc& d = docs[doc];
        const std::string t = tag;
        if (t == "SampleTime") d.time = number(value);
        else if (t == "SampleDuration") d.duration = number(value);
        else if (t == "GPSDateTime") d.clock = clock(value);
        else if (t == "GPSLatitude") d.lat.push_back(number(value));
        else if (t == "GPSLongitude") d.lng.push_back(number(value));
        else if (t == "GPSSpeed") d.speed.push_back(number(value) * (speedInMetresPerSecond ? 3.6 : 1.0));
    }
    pclose(p);
    std::vector<Reported> out;
    double firstClock = NAN;
    int index = 0;
    for (const auto& [n, d] : docs) {
        if (std::isnan(firstClock)) firstClock = d.clock;
        // Without a time of its own a document is the next second's record.
        const double start = !std::isnan(d.time) ? d.time : !std::isnan(d.clock) ? d.clock - firstClock : index;
        ++index;
        const std::size_t m = std::min({d.lat.size(), d.lng.size(), d.speed.size()});
        for (std::size_t j = 0; j < m; ++j)
            if (d.lat[j] != 0 || d.lng[j] != 0) out.push_back({start + j * d.duration / m, d.lat[j], d.lng[j], d.speed[j]});
    }
    return out;
}

}  // namespace

TEST(OtherCamerasExifTool, PositionsAndSpeedsAgree) {
    if (std::system("exiftool -ver >/dev/null 2>&1") != 0) GTEST_SKIP() << "exiftool is not installed";
    // The families this ExifTool reads (not GPS9 nor NMEA in a text track).
    struct Family {
        const char* name;
        OtherLayout layout;
        bool metresPerSecond;
        const char* ext = ".mp4";
        const char* ee = "-ee";  // -ee3: the transport streams' PIDs left out of the program map too
    };
    const Family families[] = {
        {"gpmf", OtherLayout::Gpmf, true},
        {"free_gps_indexed", OtherLayout::FreeGpsIndexed, false},
        {"free_gps_scanned", OtherLayout::FreeGpsScanned, false},
        {"free_gps_ts_unlisted", OtherLayout::FreeGpsTsUnlisted, false, ".ts", "-ee3"},
        {"free_box_log", OtherLayout::FreeBoxLog, false},
        {"gps_record_box", OtherLayout::GpsRecordBox, false},
    };
    TempDir dir;
    VideoSpec v;
    v.width = 64;
    v.height = 36;
    v.fps = 10;
    v.seconds = 12;
    for (const Family& fam : families) {
        SCOPED_TRACE(fam.name);
        const auto clip = dir.path / (std::string(fam.name) + fam.ext);
        std::string log;
        ASSERT_TRUE(writeOtherCameraClip(fam.layout, v, 30, clip, nullptr, &log)) << log;
        auto d = std::make_unique<OrvoClipData>();
        readClipTelemetry(clip.string(), *d);
        const std::vector<Reported> rows = exiftool(clip, fam.metresPerSecond, fam.ee);
        ASSERT_GE(rows.size(), 10u);
        for (const Reported& r : rows) {
            const int i = static_cast<int>(std::floor(r.t * 10 + 1e-6));
            SCOPED_TRACE(r.t);
            ASSERT_LT(i, d->clipDataCount());
            EXPECT_NEAR(d->getGpsLat(i), r.lat, 1e-5);
            EXPECT_NEAR(d->getGpsLng(i), r.lng, 1e-5);
            EXPECT_NEAR(d->getGpsSpeed(i), r.kmh, 0.5);
        }
    }
}
