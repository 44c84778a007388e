// The per-second resampling shared by the chunk and record readers, checked
// through real AVI chunk streams built in memory.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/second_resampler.h"
#include "core/telemetry/telemetry_readers.h"
#include "test_bytes.h"

using namespace tarvik;
using tarvik::test::Avi;

namespace {
std::vector<std::size_t> picked(std::size_t k) {
    std::size_t idx[10];
    int n = SecondResampler::pick(k, idx);
    return {idx, idx + n};
}
}  // namespace

TEST(Resampling, PicksTheReadingsOfEachTenth) {
    EXPECT_EQ(picked(30), (std::vector<std::size_t>{0, 2, 5, 8, 11, 14, 17, 20, 23, 26}));
    EXPECT_EQ(picked(4), (std::vector<std::size_t>{0, 0, 0, 1, 1, 2, 2, 2, 3, 3}));
    EXPECT_EQ(picked(10), (std::vector<std::size_t>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(picked(1), std::vector<std::size_t>(10, 0));
    EXPECT_TRUE(picked(0).empty());
    // 11 readings: 5.45 and 5.95 round to the same tenth, so reading 6 is the one dropped.
    EXPECT_EQ(picked(11), (std::vector<std::size_t>{0, 1, 2, 3, 4, 5, 7, 8, 9, 10}));
    for (std::size_t k : {11u, 59u, 60u, 1000u, 123457u}) {
        auto p = picked(k);
        ASSERT_EQ(p.size(), 10u) << k;
        EXPECT_EQ(p.front(), 0u);
        for (std::size_t j = 1; j < p.size(); ++j) EXPECT_LT(p[j - 1], p[j]) << k;
    }
}

TEST(Resampling, ThirtyReadingsInAnAviSecondGiveTenSamples) {
    Avi avi;
    for (int r = 0; r < 30; ++r) avi.gReading(r, 0, 0);  // gx = 128 - byte = 128 - r
    avi.nmea("$GPRMC,083000.000,A,4807.038,N,01131.000,W,10.0,,,,");
    OrvoClipData d;
    BoundedFile f(avi.bytes.data(), avi.bytes.size());
    ASSERT_EQ(readers::readAviChunks(f, readers::AviFamily::General, d), 10);
    d.setClipDataCount(10);
    const int expect[] = {0, 2, 5, 8, 11, 14, 17, 20, 23, 26};
    for (int j = 0; j < 10; ++j) EXPECT_EQ(d.getGx(j), 128 - expect[j]) << j;
    d.setClipDataCount(10);
    EXPECT_NEAR(d.getGpsLat(0), 48.1173f, 1e-4);
    EXPECT_NEAR(d.getGpsLng(9), -11.516667f, 1e-4);
    EXPECT_EQ(d.getGpsSpeed(5), 19u);  // 10 kn = 18.52 km/h, rounded half up
    EXPECT_EQ(d.gpsDataCount(), 10);
}

TEST(Resampling, LeftoversAndSecondsWithoutPosition) {
    // Four readings, a position, then three readings that only the end of the file closes.
    Avi avi;
    for (int r = 0; r < 4; ++r) avi.gReading(r, 0, 0);
    avi.nmea("$GPRMC,1,A,4807.038,N,01131.000,E,0,,,,");
    for (int r = 10; r < 13; ++r) avi.gReading(r, 0, 0);
    OrvoClipData d;
    BoundedFile f(avi.bytes.data(), avi.bytes.size());
    ASSERT_EQ(readers::readAviChunks(f, readers::AviFamily::General, d), 20);
    d.setClipDataCount(20);
    const int firstSecond[] = {0, 0, 0, 1, 1, 2, 2, 2, 3, 3};
    for (int j = 0; j < 10; ++j) EXPECT_EQ(d.getGx(j), 128 - firstSecond[j]);
    EXPECT_EQ(d.getGx(10), 128 - 10);
    EXPECT_EQ(d.getGx(19), 128 - 12);
    EXPECT_NEAR(d.getGpsLat(19), 48.1173f, 1e-4);  // the last position carries the leftover
    EXPECT_EQ(d.gpsDataCount(), 20);

    // A 'T' closes a second without position and forgets the held one;
    // a "V" sentence does the same.
    Avi t;
    t.gReading(0, 0, 0);
    t.nmea("$GPRMC,1,A,4807.038,N,01131.000,E,0,,,,");
    t.gReading(1, 0, 0);
    t.chunk("02tx", std::string("T", 1));
    t.gReading(2, 0, 0);
    t.nmea("G$GPRMC,1,V,,,,,,,,,");
    t.gReading(3, 0, 0);  // flushed at the end with the (reset) held state
    OrvoClipData e;
    BoundedFile g(t.bytes.data(), t.bytes.size());
    ASSERT_EQ(readers::readAviChunks(g, readers::AviFamily::General, e), 40);
    EXPECT_EQ(e.gpsDataCount(), 10);

    // Readings but no closing record at all: nothing was emitted, nothing to flush.
    Avi none;
    none.gReading(1, 2, 3);
    OrvoClipData z;
    BoundedFile h(none.bytes.data(), none.bytes.size());
    EXPECT_EQ(readers::readAviChunks(h, readers::AviFamily::General, z), 0);
}

TEST(Resampling, StopsAtTheCapacity) {
    Avi avi;
    for (int s = 0; s < 70; ++s) {
        avi.gReading(s, 0, 0);
        avi.nmea("$GPRMC,1,A,4807.038,N,01131.000,E,0,,,,");
    }
    OrvoClipData d;
    BoundedFile f(avi.bytes.data(), avi.bytes.size());
    EXPECT_EQ(readers::readAviChunks(f, readers::AviFamily::General, d), 650);
    d.setClipDataCount(650);
    EXPECT_EQ(d.getGx(649), 128 - 64);
    EXPECT_EQ(d.getGx(650), OrvoClipData::kNoG);
    EXPECT_EQ(d.gpsDataCount(), 650);
}

// An AVI second holds at most sixty readings; later ones in the same second
// are dropped before resampling, so they change nothing.
TEST(Resampling, ReadingsPastSixtyInASecondChangeNothing) {
    auto samples = [](int readings) {
        Avi avi;
        for (int r = 0; r < readings; ++r) avi.gReading(r, 0, 0);  // gx = 128 - r
        avi.nmea("$GPRMC,083000.000,A,4807.038,N,01131.000,W,10.0,,,,");
        OrvoClipData d;
        BoundedFile f(avi.bytes.data(), avi.bytes.size());
        const int n = readers::readAviChunks(f, readers::AviFamily::General, d);
        d.setClipDataCount(n);
        std::vector<int> gx;
        for (int i = 0; i < n; ++i) gx.push_back(d.getGx(i));
        return gx;
    };
    const std::vector<int> sixty = samples(60);
    ASSERT_EQ(sixty.size(), 10u);
    EXPECT_EQ(samples(61), sixty);
    EXPECT_EQ(samples(200), sixty);
    EXPECT_NE(samples(30), sixty);
}
