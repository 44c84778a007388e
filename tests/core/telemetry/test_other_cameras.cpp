// Clips of other camera families, written by the card generator from the
// public layouts, read back through the reader choice the player, the trips
// and the command share: every sample's time, position, speed and G, checked
// against ExifTool's reading of the same clips where it reads them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <functional>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "cardgen/mp4_box_writer.h"
#include "cardgen/other_camera_layouts.h"
#include "cardgen/ts_private_stream.h"
#include "core/media/clip_telemetry_reading.h"
#include "core/telemetry/orvo_clip_data.h"
#include "test_bytes.h"

using namespace tarvik;
using namespace tarvik::cardgen;
using tarvik::test::TempDir;

namespace {

constexpr int kFrom = 40;     // the clips cross the tunnel (seconds 44 to 50 of the drive)
constexpr int kSeconds = 14;

VideoSpec smallVideo() {
    VideoSpec v;
    v.width = 64;
    v.height = 36;
    v.fps = 10;
    v.seconds = kSeconds;
    return v;
}

template <typename T>
const T* latestAt(const std::vector<T>& v, double t) {
    const T* best = nullptr;
    for (const T& e : v)
        if (e.t <= t + 1e-6 && (!best || e.t >= best->t)) best = &e;
    return best;
}

std::unique_ptr<OrvoClipData> read(const std::filesystem::path& clip) {
    auto d = std::make_unique<OrvoClipData>();
    readClipTelemetry(clip.string(), *d);
    return d;
}

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

struct Family {
    const char* name;
    OtherLayout layout;
    bool hasG;
    const char* ext;
    // How the installed ExifTool is asked for the family's positions (-ee3:
    // also a transport stream's PIDs that the program map leaves out); none
    // for the layouts it does not read.
    const char* exiftoolOption;
    bool exiftoolMetresPerSecond;
};

const Family kFamilies[] = {
    {"gpmf_gps5", OtherLayout::Gpmf, true, ".mp4", "-ee", true},
    {"gpmf_gps9", OtherLayout::Gpmf9, true, ".mp4", nullptr, false},
    {"free_gps_indexed", OtherLayout::FreeGpsIndexed, false, ".mp4", "-ee", false},
    {"free_gps_scanned", OtherLayout::FreeGpsScanned, false, ".mp4", "-ee", false},
    {"free_gps_ts", OtherLayout::FreeGpsTs, false, ".ts", nullptr, false},
    {"free_gps_ts_unlisted", OtherLayout::FreeGpsTsUnlisted, false, ".TS", "-ee3", false},
    {"free_box_log", OtherLayout::FreeBoxLog, true, ".mp4", "-ee", false},
    {"gps_record_box", OtherLayout::GpsRecordBox, false, ".mp4", "-ee", false},
    {"nmea_track", OtherLayout::NmeaTrack, false, ".mp4", nullptr, false},
    {"side_files", OtherLayout::SideFiles, true, ".mp4", nullptr, false},
};

}  // namespace

// And where the installed ExifTool reads the same clip, its positions and
// speeds agree with the viewer's samples of those moments.
TEST(OtherCameras, EveryFamilyReadsBackWhatWasWritten) {
    TempDir dir;
    const bool haveExiftool = std::system("exiftool -ver >/dev/null 2>&1") == 0;
    if (!haveExiftool) std::printf("exiftool is not installed: its comparison is left out\n");
    for (const Family& fam : kFamilies) {
        SCOPED_TRACE(fam.name);
        WrittenTelemetry w;
        std::string log;
        const auto clip = dir.path / (std::string(fam.name) + fam.ext);
        ASSERT_TRUE(writeOtherCameraClip(fam.layout, smallVideo(), kFrom, clip, &w, &log)) << log;
        const auto d = read(clip);
        ASSERT_EQ(d->clipDataCount(), kSeconds * 10);
        int withFix = 0, tunnel = 0;
        for (int i = 0; i < d->clipDataCount(); ++i) {
            SCOPED_TRACE(i);
            const WrittenFix* f = latestAt(w.fixes, i / 10.0);
            ASSERT_NE(f, nullptr);
            if (f->valid) {
                ++withFix;
                EXPECT_NEAR(d->getGpsLat(i), f->lat, 2e-6);
                EXPECT_NEAR(d->getGpsLng(i), f->lng, 4e-6);
                EXPECT_EQ(d->getGpsSpeed(i), static_cast<unsigned>(f->kmh + 0.5));
                // And what was written is the drive itself, to the layout's precision.
                const DriveFix truth = driveFix(kFrom + f->t);
                EXPECT_NEAR(f->lat, truth.lat, 1e-5);
                EXPECT_NEAR(f->lng, truth.lng, 1e-5);
            } else {
                ++tunnel;
                EXPECT_EQ(d->getGpsLat(i), 0.0f);
                EXPECT_EQ(d->getGpsLng(i), 0.0f);
                EXPECT_EQ(d->getGpsSpeed(i), 0u);
            }
            if (fam.hasG) {
                const WrittenG* g = latestAt(w.gs, i / 10.0);
                ASSERT_NE(g, nullptr);
                EXPECT_EQ(d->getGx(i), std::lround(g->x));
                EXPECT_EQ(d->getGy(i), std::lround(g->y));
                EXPECT_EQ(d->getGz(i), std::lround(g->z));
            }
        }
        EXPECT_EQ(d->gpsDataCount(), withFix);
        EXPECT_EQ(tunnel, 70);  // seven seconds without a fix

        if (!fam.exiftoolOption || !haveExiftool) continue;
        const std::vector<Reported> rows = exiftool(clip, fam.exiftoolMetresPerSecond, fam.exiftoolOption);
        // At least the seconds before the tunnel: ExifTool leaves a TS stream at its first record without a fix.
        ASSERT_GE(rows.size(), 4u);
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

// Bytes of one family in the place of another's, cut blocks and layouts of
// unknown or encrypted variants give no samples, or none with a position.
TEST(OtherCameras, LookalikesTruncationsAndUnknownVariantsGiveNothing) {
    TempDir dir;
    const std::string block = freeGpsBlock(kFrom);
    // Same-length changes to a generated clip.
    auto replaceAll = [](std::string s, const std::string& from, const std::string& to) {
        for (std::size_t at = s.find(from); at != std::string::npos; at = s.find(from, at + to.size()))
            s.replace(at, from.size(), to);
        return s;
    };
    // A plain clip with boxes added.
    auto withBoxes = [&](const std::function<void(Mp4BoxWriter&)>& add) {
        return [add, &dir](std::string) {
            const auto plain = dir.path / "plain.mp4";
            EXPECT_TRUE(makeVideo(smallVideo(), plain));
            Mp4BoxWriter w;
            EXPECT_TRUE(w.load(plain));
            add(w);
            EXPECT_TRUE(w.save(plain));
            return test::readBytes(plain);
        };
    };
    // A plain transport stream with units of its own on the cameras' PID.
    auto withTsUnits = [&](std::vector<std::string> units, bool listed) {
        return [units, listed, &dir](std::string) {
            const auto plain = dir.path / "plain.ts";
            EXPECT_TRUE(makeVideo(smallVideo(), plain));
            EXPECT_TRUE(addTsPrivateStream(plain, listed ? 0x0101 : 0x0300, units, listed));
            return test::readBytes(plain);
        };
    };
    const std::string record = freeGpsTsRecord(kFrom, false);
    std::string scrambled(84, '\0');  // a variant whose positions are enciphered
    scrambled.replace(44, 1, "A");
    scrambled.replace(52, 1, "N");
    scrambled.replace(60, 1, "E");
    struct Case {
        const char* name;
        OtherLayout layout;
        std::function<std::string(std::string)> change;
        bool keepsG;
        const char* ext = ".mp4";
    };
    const Case cases[] = {
        {"gps_box_of_blocks", OtherLayout::GpsRecordBox,
         withBoxes([&](Mp4BoxWriter& w) { w.addTopLevel(box("GPS ", block + block)); }), false},
        {"free_box_of_blocks", OtherLayout::FreeBoxLog,
         withBoxes([&](Mp4BoxWriter& w) { w.addTopLevel(box("free", box("gps ", block))); }), false},
        {"blocks_cut", OtherLayout::FreeGpsIndexed,
         withBoxes([&](Mp4BoxWriter& w) {
             std::string index;
             putBe32(index, 0);
             putBe32(index, 1);
             putBe32(index, static_cast<std::uint32_t>(w.nextOffset() + 8));
             putBe32(index, 80);  // too short to reach the position
             w.addTopLevel(box("mdat", block.substr(0, 80)));
             w.addToMoov(box("gps ", index));
         }), false},
        {"blocks_encrypted", OtherLayout::FreeGpsScanned,
         [](std::string s) {
             for (std::size_t at = s.find("freeGPS "); at != std::string::npos; at = s.find("freeGPS ", at + 1))
                 s.replace(at + 14, 8, "\xaa\xaa\xf2\xe1\xf0\xee\x54\x54");
             return s;
         }, false},
        {"gps9_unknown_type", OtherLayout::Gpmf9,
         [&](std::string s) { return replaceAll(s, "lllllllSS", "lllllllSL"); }, true},
        {"nmea_bad_checksums", OtherLayout::NmeaTrack,
         [](std::string s) {
             for (std::size_t at = s.find("*"); at != std::string::npos && at + 2 < s.size(); at = s.find("*", at + 1))
                 if (std::isxdigit(static_cast<unsigned char>(s[at + 1])) && std::isxdigit(static_cast<unsigned char>(s[at + 2])))
                     s[at + 1] = s[at + 1] == '0' ? '1' : '0';
             return s;
         }, false},
        {"truncated", OtherLayout::FreeGpsIndexed, [](std::string s) { return s.substr(0, s.size() / 2); }, false},
        {"ts_blocks_for_records", OtherLayout::FreeGpsTs, withTsUnits({block.substr(0, 300), block.substr(0, 300)}, true),
         false, ".ts"},
        {"ts_records_cut", OtherLayout::FreeGpsTsUnlisted,
         withTsUnits({record.substr(0, 36), record.substr(0, 36)}, false), false, ".ts"},
        {"ts_records_enciphered", OtherLayout::FreeGpsTsUnlisted, withTsUnits({scrambled, scrambled}, false), false,
         ".ts"},
        // The cameras' PID is taken only while no program map lists it as another kind of stream.
        {"ts_records_on_a_listed_video_pid", OtherLayout::FreeGpsTsUnlisted,
         [&](std::string s) {
             const std::string at = std::string("\x1b\xe1\x00", 3);  // H.264 on PID 0x100
             for (std::size_t i = s.find(at); i != std::string::npos; i = s.find(at, i + 1)) s[i + 2] = 0x00, s[i + 1] = '\xe3';
             return s;
         }, false, ".ts"},
        {"ts_sync_lost", OtherLayout::FreeGpsTsUnlisted, [](std::string s) { return s.replace(2 * 188, 1, "\x48"); },
         false, ".ts"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto clip = dir.path / (std::string(c.name) + c.ext);
        std::string log;
        ASSERT_TRUE(writeOtherCameraClip(c.layout, smallVideo(), kFrom, clip, nullptr, &log)) << log;
        const std::string changed = c.change(test::readBytes(clip));
        std::ofstream(clip, std::ios::binary | std::ios::trunc) << changed;
        const auto d = read(clip);
        EXPECT_EQ(d->gpsDataCount(), 0);
        if (c.keepsG) EXPECT_EQ(d->clipDataCount(), kSeconds * 10);
        else EXPECT_EQ(d->clipDataCount(), 0);
    }
}

// Side files are found beside any clip, whatever its container, and a G
// table alone still gives the graph.
TEST(OtherCameras, SideFilesBesideTheClip) {
    TempDir dir;
    WrittenTelemetry w;
    const auto clip = dir.write("20261121_084000_F.avi", "RIFF\0\0\0\0AVI ");
    std::ofstream(dir.path / "20261121_084000_F.3GF", std::ios::binary) << gTable(kFrom, 3, &w);
    auto d = read(clip);
    ASSERT_EQ(d->clipDataCount(), 30);
    EXPECT_EQ(d->gpsDataCount(), 0);
    EXPECT_EQ(d->getGz(29), std::lround(w.gs[29].z));
    std::ofstream(dir.path / "20261121_084000_F.nmea", std::ios::binary) << nmeaLog(kFrom, 3, 0);
    d = read(clip);
    EXPECT_EQ(d->gpsDataCount(), 30);
}
