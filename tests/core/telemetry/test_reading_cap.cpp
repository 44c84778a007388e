// An AVI second holds at most sixty readings; later ones in the same second
// are dropped before resampling, so they change nothing.
#include <gtest/gtest.h>

#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/telemetry_readers.h"
#include "test_bytes.h"

using namespace tarvik;
using tarvik::test::Avi;

TEST(ReadingCap, ReadingsPastSixtyInASecondChangeNothing) {
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
