// Clips of other camera families, written by the card generator from the
// public layouts, read back through the reader choice the player, the trips
// and the command share: every sample's time, position, speed and G.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <functional>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

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

std::string slurp(const std::filesystem::path& p) {
    std::ifstream f(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

std::unique_ptr<OrvoClipData> read(const std::filesystem::path& clip) {
    auto d = std::make_unique<OrvoClipData>();
    readClipTelemetry(clip.string(), *d);
    return d;
}

struct Family {
    const char* name;
    OtherLayout layout;
    bool hasG;
    const char* ext = ".mp4";
};

const Family kFamilies[] = {
    {"gpmf_gps5", OtherLayout::Gpmf, true},
    {"gpmf_gps9", OtherLayout::Gpmf9, true},
    {"free_gps_indexed", OtherLayout::FreeGpsIndexed, false},
    {"free_gps_scanned", OtherLayout::FreeGpsScanned, false},
    {"free_gps_ts", OtherLayout::FreeGpsTs, false, ".ts"},
    {"free_gps_ts_unlisted", OtherLayout::FreeGpsTsUnlisted, false, ".TS"},
    {"free_box_log", OtherLayout::FreeBoxLog, true},
    {"gps_record_box", OtherLayout::GpsRecordBox, false},
    {"nmea_track", OtherLayout::NmeaTrack, false},
    {"side_files", OtherLayout::SideFiles, true},
};

}  // namespace

TEST(OtherCameras, EveryFamilyReadsBackWhatWasWritten) {
    TempDir dir;
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
            return slurp(plain);
        };
    };
    // A plain transport stream with units of its own on the cameras' PID.
    auto withTsUnits = [&](std::vector<std::string> units, bool listed) {
        return [units, listed, &dir](std::string) {
            const auto plain = dir.path / "plain.ts";
            EXPECT_TRUE(makeVideo(smallVideo(), plain));
            EXPECT_TRUE(addTsPrivateStream(plain, listed ? 0x0101 : 0x0300, units, listed));
            return slurp(plain);
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
        const std::string changed = c.change(slurp(clip));
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
