// The subtitle track's cue list and the dashboard's two look-ups.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <random>

#include "core/telemetry/subtitle_data.h"
#include "test_bytes.h"

using namespace tarvik;

namespace {
std::string cue(int n, const std::string& start, const std::string& body, const char* nl = "\n") {
    return std::to_string(n) + nl + start + " --> 00:59:59,999" + nl + body + nl + nl;
}
}  // namespace

TEST(SubtitleTrack, CueTimesAndRecords) {
    // The hour is ignored; cue times are summed in single precision, so 16.3 s
    // falls just short of 16300 ms.
    for (auto [line, cts] : {std::pair{"00:00:01,500 --> 00:00:02,000", 1500u}, {"01:02:03,000 --> 01:02:04,000", 123000u},
                             {"x 00:00:01,5-->1", 1500u}, {"00:00:16,300 --> 00:00:16,400", 16299u}})
        EXPECT_EQ(SubtitleEntry::entryWithTime(line)->cts, cts) << line;
    EXPECT_FALSE(SubtitleEntry::entryWithTime("00:00:01.500 --> 00:00:02,000"));
    EXPECT_FALSE(SubtitleEntry::entryWithTime("00:00:01,500 -> 00:00:02,000"));
    // A line that stops right after "-->" or after the comma: nothing past the line may count.
    const std::string buffer = "00:00:01,500 -->1\n00:00:01,7";
    EXPECT_FALSE(SubtitleEntry::entryWithTime(std::string_view(buffer).substr(0, 16)));
    EXPECT_FALSE(SubtitleEntry::entryWithTime(std::string_view(buffer).substr(18, 9)));

    SubtitleEntry e;
    EXPECT_EQ(e.gx(), -512);
    EXPECT_EQ(e.lat, 512.0f);
    EXPECT_EQ(e.speed, 1024u);
    e.parseSensor({"gsensor", "700", "-900", "5"});
    EXPECT_EQ(e.gx(), 512);
    EXPECT_EQ(e.gy(), -512);
    EXPECT_EQ(e.gz(), 5);
    e.parseSensor({"gsensor", "1"});  // short: skipped
    EXPECT_EQ(e.gz(), 5);
    e.parseSensorI({"gsensori", "2", "256", "-64", "63", "1289"});  // 128 counts per g, rounded half away
    EXPECT_EQ(e.gx(), -64);
    EXPECT_EQ(e.gz(), 512);
    e.parseSensorI({"gsensori", "0", "256", "1", "1", "1"});  // zero divisor: unchanged
    EXPECT_EQ(e.gx(), -64);
    e.parseSensorI({"gsensori", "4", "256", "3", "0", "0"});  // 64 counts per g: 6
    EXPECT_EQ(e.gx(), 6);
    e.parseGprmc({"GPRMC", "1", "V", "4807.038", "N", "01131.000", "E", "10"});
    EXPECT_EQ(e.lat, 512.0f);
    e.parseGprmc({"GNRMC", "1", "A", "4807.038", "N", "01131.000", "W", "10"});
    EXPECT_NEAR(e.lat, 48.1173f, 1e-4);
    EXPECT_NEAR(e.lng, -11.516667f, 1e-4);
    EXPECT_EQ(e.speed, 19u);
    EXPECT_EQ(SubtitleEntry::degree("4", "N"), 0.0f);
    EXPECT_EQ(SubtitleEntry::degree("4807.038", ""), 0.0f);
    EXPECT_NEAR(SubtitleEntry::degree("4807.038", "S"), -48.1173f, 1e-4);
}

TEST(SubtitleTrack, LoadingKeepsOnlyClosedCues) {
    std::string lf = cue(1, "00:00:00,000", "gsensor,1,2,3;GPRMC,0,A,3733.67,N,12658.98,E,10,,") +
                     cue(2, "00:00:00,100", "dummy;gsensori,1,128,9,8,7") + "3\n00:00:00,200 --> x\ngsensor,5,5,5";
    SubtitleData d;
    int x = 0, y = 0, z = 0;
    float lat = 0, lng = 0;
    unsigned speed = 0;
    d.loadFromText(lf);
    ASSERT_EQ(d.cueCount(), 2u);  // the last cue has no blank line after it
    EXPECT_TRUE(d.getSensorAt(0, x, y, z));
    EXPECT_EQ(y, 2);
    EXPECT_EQ(d.getGpsAt(0, lat, lng, speed), 0);
    EXPECT_NEAR(lat, 37.561167f, 1e-5);
    EXPECT_TRUE(d.getSensorAt(1, x, y, z));
    EXPECT_EQ(z, 7);
    EXPECT_FALSE(d.getSensorAt(2, x, y, z));
    EXPECT_EQ(d.clipDataCount(), 0);

    // CR LF: the empty piece between CR and LF closes each cue before its data.
    std::string crlf = cue(1, "00:00:00,000", "gsensor,1,2,3", "\r\n") + cue(2, "00:00:00,100", "gsensor,4,5,6", "\r\n");
    d.loadFromText(crlf);
    ASSERT_EQ(d.cueCount(), 2u);
    EXPECT_TRUE(d.getSensorAt(1, x, y, z));
    EXPECT_EQ(x, -512);
    EXPECT_EQ(d.getGpsAt(1, lat, lng, speed), 2);

    d.loadFromText(lf + "\xff\xfe");
    EXPECT_TRUE(d.empty());
    d.loadFromPath("/nonexistent/clip.srt");
    EXPECT_TRUE(d.empty());
    tarvik::test::TempDir dir;
    auto loaded = SubtitleData::fromPath(dir.write("a.srt", crlf + lf).string());
    EXPECT_EQ(loaded->cueCount(), 4u);
    EXPECT_TRUE(loaded->getSensorAt(1, x, y, z));
    EXPECT_EQ(x, -512);  // the first cue at a time wins
}

TEST(SubtitleTrack, SensorLookUpIsExact) {
    SubtitleData d;
    d.loadFromText(cue(1, "00:00:01,500", "gsensor,1,2,3") + cue(2, "00:00:01,500", "gsensor,9,9,9") +
                   cue(3, "00:00:01,550", "gsensor,4,5,6"));
    int x = 77, y = 77, z = 77;
    EXPECT_FALSE(d.getSensorAt(14, x, y, z));
    EXPECT_EQ(x, 77);  // untouched on a miss
    EXPECT_TRUE(d.getSensorAt(15, x, y, z));
    EXPECT_EQ(x, 1);  // the first of two equal times
    EXPECT_EQ(z, 3);
    EXPECT_FALSE(d.getSensorAt(16, x, y, z));
}

TEST(SubtitleTrack, PositionLookUp) {
    const std::string fix1 = "GPRMC,0,A,3730.00,N,12700.00,E,";  // 37.5, 127.0
    const std::string fix2 = "GPRMC,0,A,3736.00,N,12706.00,E,";  // 37.6, 127.1
    SubtitleData d;
    float lat = 0, lng = 0;
    unsigned speed = 0;
    EXPECT_EQ(d.getGpsAt(0, lat, lng, speed), 2);  // no entries

    d.loadFromText(cue(1, "00:00:01,000", fix1 + "10.8") + cue(2, "00:00:01,500", "gsensor,1,1,1"));
    EXPECT_EQ(d.getGpsAt(10, lat, lng, speed), 0);
    EXPECT_NEAR(lat, 37.5f, 1e-5);
    EXPECT_EQ(speed, 20u);
    lat = 0;
    EXPECT_EQ(d.getGpsAt(14, lat, lng, speed), 1);  // 400 ms away: the cue's own values
    EXPECT_NEAR(lng, 127.0f, 1e-5);
    EXPECT_EQ(d.getGpsAt(20, lat, lng, speed), 2);  // exactly 1000 ms away never counts
    EXPECT_EQ(d.getGpsAt(25, lat, lng, speed), 2);

    // Two positioned cues: the nearer one displaces the other, which is then interpolated towards.
    d.loadFromText(cue(1, "00:00:01,000", fix1 + "0") + cue(2, "00:00:02,000", fix2 + "5.4"));
    EXPECT_EQ(d.getGpsAt(16, lat, lng, speed), 1);
    EXPECT_NEAR(lat, 37.56f, 1e-4);
    EXPECT_NEAR(lng, 127.06f, 1e-4);
    EXPECT_EQ(speed, 6u);  // 0 + (10 - 0) * 0.6
    // A speed at the top of the range (knots of -0.5 wrap round) stays there.
    d.loadFromText(cue(1, "00:00:01,000", fix1 + "-0.5") + cue(2, "00:00:02,000", fix2 + "-0.5"));
    EXPECT_EQ(d.getGpsAt(16, lat, lng, speed), 1);
    EXPECT_EQ(speed, 4294967295u);
    d.loadFromText(cue(1, "00:00:01,000", fix1 + "0") + cue(2, "00:00:02,000", fix2 + "5.4"));
    // Midway, both are 500 ms away: the first stays alone, so no interpolation.
    EXPECT_EQ(d.getGpsAt(15, lat, lng, speed), 1);
    EXPECT_NEAR(lat, 37.5f, 1e-5);
}

namespace {
// The dashboard's position look-up as a walk over every cue in file order:
// what the kept-per-tenth look-up must answer for any track in time order.
struct RefCue {
    std::uint32_t cts;
    float lat, lng;
    std::uint32_t speed;
};
int referenceGps(const std::vector<RefCue>& cues, unsigned t, float& lat, float& lng, unsigned& speed) {
    const std::int64_t target = static_cast<std::int64_t>(t) * 100;
    const RefCue *a = nullptr, *b = nullptr;
    std::int64_t da = 1000;
    for (const RefCue& e : cues) {
        if (e.lat == SubtitleEntry::kNoPosition) continue;
        if (e.cts == target) {
            lat = e.lat, lng = e.lng, speed = e.speed;
            return 0;
        }
        const std::int64_t d = std::llabs(static_cast<std::int64_t>(e.cts) - target);
        if (d < da) b = a, a = &e, da = d;
    }
    if (!a) return 2;
    if (!b) {
        lat = a->lat, lng = a->lng, speed = a->speed;
        return 1;
    }
    const float f = static_cast<float>(target - a->cts) / static_cast<float>(static_cast<std::int64_t>(b->cts) - a->cts);
    lat = (b->lat - a->lat) * f + a->lat;
    lng = (b->lng - a->lng) * f + a->lng;
    const float v = (static_cast<float>(b->speed) - static_cast<float>(a->speed)) * f + static_cast<float>(a->speed);
    speed = v > 0.0f ? static_cast<unsigned>(std::trunc(v)) : 0u;
    return 1;
}
}  // namespace

TEST(SubtitleTrack, KeptCuesAnswerAsAWalkOverAllCues) {
    // Random tracks in time order: sparse and dense, repeated times, cues
    // without a position, gaps longer than the 1000 ms reach.
    std::mt19937 rng(7);
    for (int round = 0; round < 40; ++round) {
        std::vector<RefCue> cues;
        std::string text;
        std::uint32_t ms = rng() % 300;
        const std::uint32_t step = 1 + rng() % (round % 2 ? 40 : 700);
        for (int i = 0; i < 400; ++i) {
            if (rng() % 5) ms += rng() % step;  // else the same time again
            char start[32];
            std::snprintf(start, sizeof start, "00:%02u:%02u,%03u", ms / 60000 % 100, ms / 1000 % 60, ms % 1000);
            const bool positioned = rng() % 3 != 0;
            const unsigned lat = 3700 + rng() % 90, lng = 12600 + rng() % 90, knots = rng() % 50;
            const std::string body = positioned ? "GPRMC,0,A," + std::to_string(lat) + ".00,N," + std::to_string(lng) +
                                                      ".00,E," + std::to_string(knots)
                                                : "gsensor,1,2,3";
            text += cue(i, start, body);
            auto e = SubtitleEntry::entryWithTime(std::string(start) + " --> 1");
            if (positioned) {
                std::vector<std::string_view> f = {"GPRMC", "0", "A", "", "N", "", "E", ""};
                const std::string la = std::to_string(lat) + ".00", ln = std::to_string(lng) + ".00",
                                  kn = std::to_string(knots);
                f[3] = la, f[5] = ln, f[7] = kn;
                e->parseGprmc(f);
            }
            cues.push_back({e->cts, e->lat, e->lng, e->speed});
        }
        SubtitleData d;
        d.loadFromText(text);
        ASSERT_EQ(d.cueCount(), 400u);
        for (unsigned t = 0; t <= ms / 100 + 12; ++t) {
            float la = 0, ln = 0, ra = 0, rn = 0;
            unsigned sp = 0, rs = 0;
            const int got = d.getGpsAt(t, la, ln, sp), want = referenceGps(cues, t, ra, rn, rs);
            ASSERT_EQ(got, want) << "round " << round << " t " << t;
            if (want == 2) continue;
            ASSERT_EQ(la, ra) << "round " << round << " t " << t;
            ASSERT_EQ(ln, rn);
            ASSERT_EQ(sp, rs);
        }
    }
}
