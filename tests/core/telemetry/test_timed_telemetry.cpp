// Readings with their own times into the model's tenths, and MP4 walks over
// boxes that lie: what the other families' readers share.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <memory>
#include <string>

#include "cardgen/mp4_box_writer.h"
#include "core/telemetry/content_readers.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/timed_telemetry.h"

using namespace tarvik;
using namespace tarvik::cardgen;

TEST(TimedTelemetry, EachTenthTakesTheLatestReadingAtOrBeforeIt) {
    auto d = std::make_unique<OrvoClipData>();
    TimedTelemetry t;
    t.addG(0.0, 1, 2, 128);
    t.addG(0.1 + 0.2, 3, 3, 3);      // 0.30000000000000004 is tenth 3
    t.addG(0.25, 9, 9, 9);           // before the reading above, in file order after it
    t.addG(0.05, 5, 5, 5);           // lands on tenth 1
    t.addG(1000.0, 7, 7, 7);         // past 65 s: dropped
    t.addG(NAN, 8, 8, 8);            // no time: dropped
    t.addFix(0.2, {true, 37.5, 127.0, 36.4});
    t.addFix(0.4, {false, 1, 1, 1});  // the fix is lost
    t.addFix(0.5, {true, 95.0, 10, 10});  // not a place on earth: no fix
    t.addG(0.6, 2000, -2000, 0);     // clamped to the model's range
    t.extendTo(0.7);
    const int n = t.finish(*d);
    d->setClipDataCount(n);
    ASSERT_EQ(n, 7);
    const int gz[] = {128, 5, 5, 3, 3, 3, 0};
    for (int i = 0; i < n; ++i) EXPECT_EQ(d->getGz(i), gz[i]) << i;
    EXPECT_EQ(d->getGx(6), 512);
    EXPECT_EQ(d->getGy(6), -512);
    EXPECT_EQ(d->getGpsLat(1), 0.0f);  // before the first fix
    EXPECT_EQ(d->getGpsLat(2), 37.5f);
    EXPECT_EQ(d->getGpsSpeed(3), 36u);
    EXPECT_EQ(d->getGpsLat(4), 0.0f);
    EXPECT_EQ(d->getGpsLat(5), 0.0f);
    EXPECT_EQ(d->gpsDataCount(), 2);

    TimedTelemetry empty;
    empty.extendTo(10);
    EXPECT_EQ(empty.finish(*d), 0);
    EXPECT_EQ(d->gpsDataCount(), 0);
}

// Sizes of zero, past the end or of billions of entries end a walk at once,
// and the scans for blocks without an index give up early:
// a hostile file costs reads of a few headers, never of its claimed size.
TEST(TimedTelemetry, LyingBoxesEndTheWalkAtOnce) {
    auto d = std::make_unique<OrvoClipData>();
    auto time = [&](const std::string& bytes) {
        BoundedFile f(bytes.data(), bytes.size());
        const auto t0 = std::chrono::steady_clock::now();
        int n = 0;
        for (auto r : {readers::readGpmf, readers::readFreeGpsIndexed, readers::readFreeGpsScan,
                       readers::readFreeBoxLog, readers::readGpsRecordBox, readers::readNmeaTrack,
                       readers::readFreeGpsTs})
            n += r(f, *d);
        EXPECT_EQ(n, 0);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    };
    const std::string ftyp = box("ftyp", std::string("isom\0\0\0\0", 8));
    std::string huge;
    putBe32(huge, 1);
    huge += "stsz";
    putBe32(huge, 0);
    putBe32(huge, 0xffffffffu);  // entries claimed: four billion
    std::string lying;
    putBe32(lying, 0x7fffffff);  // a box far past the end
    lying += "moov";
    const std::string zeros(64 << 20, '\0');
    std::string packets;  // a transport stream of null packets only
    for (std::size_t i = 0; i < (64u << 20) / 188; ++i)
        packets += std::string("\x47\x1f\xff\x10", 4) + std::string(184, '\xff');
    const std::string cases[] = {
        zeros,                                              // a card area never written
        ftyp + zeros,                                       // a size of zero after the first box
        ftyp + lying + std::string(100, 'x'),
        ftyp + box("moov", box("trak", box("mdia", box("minf", box("stbl", huge))))),
        ftyp + box("mdat", std::string(32 << 20, 'f')),     // no block in the first 20 MB: the scan gives up
        ftyp + box("moov", box("gps ", std::string(8, '\xff') + std::string(64, '\xff'))),
        packets,                                            // no record in the first 20 MB: the packet walk gives up
    };
    for (const std::string& c : cases) EXPECT_LT(time(c), 0.5);
}
