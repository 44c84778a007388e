// The five clip readers on hand-made files, through the loaders the player uses.
#include <gtest/gtest.h>

#include <string>

#include "core/telemetry/krt_clip_name.h"
#include "core/telemetry/orvo_clip_data.h"
#include "test_bytes.h"

using namespace tarvik;
using tarvik::test::Avi;
using tarvik::test::TempDir;

namespace {
std::string textChunk(const std::string& tag, const std::string& text) {
    std::string s = tag;
    tarvik::test::put32(s, static_cast<std::uint32_t>(text.size() + 1));
    return s + text + '\0' + (text.size() % 2 == 0 ? std::string(1, '\0') : std::string());
}
}  // namespace

TEST(ClipData, SentinelsAndRanges) {
    OrvoClipData d;
    d.storeSample(0, 1, 2, 3, 4.5f, 6.5f, 7);
    d.storeSample(649, 9, 9, 9, 1, 1, 1);
    d.storeSample(650, 5, 5, 5, 5, 5, 5);  // beyond the storage: ignored
    EXPECT_EQ(d.getGx(0), OrvoClipData::kNoG);  // count 0: nothing valid yet
    d.setClipDataCount(1);
    EXPECT_EQ(d.getGz(0), 3);
    EXPECT_EQ(d.getGpsLng(0), 6.5f);
    // index == count, negative, and 650 even with a count that would allow it
    EXPECT_EQ(d.getGx(1), -512);
    EXPECT_EQ(d.getGy(-1), -512);
    EXPECT_EQ(d.getGpsLat(1), 512.0f);
    EXPECT_EQ(d.getGpsSpeed(1), 1024u);
    d.setClipDataCount(700);
    EXPECT_EQ(d.getGx(649), 9);
    EXPECT_EQ(d.getGx(650), -512);
    int x, y, z;
    float lat, lng;
    unsigned sp;
    d.getClipDataWithIndex(650, x, y, z, lat, lng, sp);
    EXPECT_EQ(x, -512);
    EXPECT_EQ(z, -512);
    EXPECT_EQ(lat, 512.0f);
    EXPECT_EQ(sp, 1024u);
    d.getClipDataWithIndex(0, x, y, z, lat, lng, sp);
    EXPECT_EQ(y, 2);
    EXPECT_EQ(sp, 7u);
}

TEST(ClipData, NmeaCoordinates) {
    for (const char* unusable : {"", "4807" /* no point */, ".5" /* point at 0 */, "1.5" /* point at 1 */})
        EXPECT_EQ(OrvoClipData::cal_string(unusable), 0u) << unusable;
    EXPECT_NEAR(OrvoClipData::cal_string("4807.038") / 1e6, 48.1173, 1e-5);
    EXPECT_NEAR(OrvoClipData::cal_string("01131.000") / 1e6, 11.516667, 1e-5);
    EXPECT_NEAR(OrvoClipData::cal_string("12658.9800") / 1e6, 126.983, 1e-5);
    EXPECT_NEAR(OrvoClipData::cal_string("30.5") / 1e6, 30.5 / 60.0, 1e-6);  // minutes only
}

TEST(ClipData, TailText) {
    TempDir dir;
    std::string lines;
    for (int i = 0; i < 5; ++i) lines += std::to_string(i) + ",37.5,-126.25,42,1,-2,130\n";
    lines += "x,0,0,0,4,5,6\n";                // a sample without position
    lines += "a,1,2,3,4,5\n";                  // 6 fields: skipped
    lines += "a,1,2,3,4,5,6,7\n";              // 8 fields: skipped
    // Short file: the text starts at byte 6, whatever the first six bytes are.
    OrvoClipData d;
    d.loadVideoFileCilpDataFromFilePath(dir.write("short.avi", "XXXXXX" + lines).string());
    EXPECT_EQ(d.clipDataCount(), 6);
    EXPECT_EQ(d.gpsDataCount(), 5);
    EXPECT_EQ(d.getGpsLng(0), -126.25f);
    EXPECT_EQ(d.getGpsSpeed(4), 42u);
    EXPECT_EQ(d.getGz(3), 130);
    EXPECT_EQ(d.getGx(5), 4);

    // Long file: the marker is searched only in the last 33006 bytes.
    const std::string before = "XXXXXX9,1,1,1,9,9,9\n";
    std::string big(40000, '\x01');
    d.loadVideoFileCilpDataFromFilePath(dir.write("long.avi", before + big + "QZRVT7" + lines).string());
    EXPECT_EQ(d.clipDataCount(), 6);
    // A marker further from the end is not looked for: the text starts at byte 6.
    std::string far = before + "QZRVT7" + lines + std::string(34000, '\n');
    EXPECT_EQ(d.getAllDataFromFileTail(dir.write("far.avi", far).string()), 7);
    // The 651st line is never read: a broken line after it changes nothing.
    std::string many = "QZRVT7";
    for (int i = 0; i < 650; ++i) many += "0,1,1,1,1,1,1\n";
    EXPECT_EQ(d.getAllDataFromFileTail(dir.write("many.avi", "XXXXXX" + many + "\xff\n").string()), 0);
    EXPECT_EQ(d.getAllDataFromFileTail(dir.write("many2.avi", "XXXXXX" + many + "0,1,1,1,1,1,1\n").string()), 650);
    // Not UTF-8: nothing.
    EXPECT_EQ(d.getAllDataFromFileTail(dir.write("bad.avi", "XXXXXX" + lines + "\xc3\x28").string()), 0);
    EXPECT_EQ(d.gpsDataCount(), 0);
}

TEST(ClipData, TextRecords) {
    TempDir dir;
    std::string f = "RIFF....AVI junk";
    for (int r = 0; r < 10; ++r) f += textChunk(r % 2 ? "03tx" : "02tx", "gsensor,1,-2,128");
    f += textChunk("02tx", "GPRMC,083000,A,3733.6700,N,12658.9800,E,10.0,90,211126");
    // "gsensor" cutting: position 3 decides, so "-128" keeps "-12" and "130x" keeps "1".
    f += textChunk("02tx", "gsensor,0,0,-128") + textChunk("02tx", "gsensor,0,0,130x");
    // "gsensori": counts per g = 256 / 2; the last field is cut after its digits.
    f += textChunk("02tx", "gsensori,2,256,64,-64,1289") + textChunk("02tx", "gsensori,2,256,900,0,12");
    f += textChunk("02tx", "gsensori,0,256,5,5,5");  // zero divisor: a reading of 0, 0, 0
    f += textChunk("02tx", "GNRMC,083001,V,,,,,,");
    f += textChunk("02tx", "gsensor,1,2") + textChunk("02tx", "$GPRMC,ignored");  // too short; wrong name
    OrvoClipData d;
    d.loadVideoFileCilpDataFromFilePath(dir.write("b.avi", f).string());
    ASSERT_EQ(d.clipDataCount(), 20);
    EXPECT_EQ(d.gpsDataCount(), 10);
    EXPECT_EQ(d.getGz(0), 128);
    EXPECT_EQ(d.getGy(9), -2);
    EXPECT_NEAR(d.getGpsLat(0), 37.5611667f, 1e-5);
    EXPECT_NEAR(d.getGpsLng(0), 126.983f, 1e-5);
    EXPECT_EQ(d.getGpsSpeed(0), 19u);
    // second 2: five readings stretched to ten: 0,0,1,1,2,2,3,3,4,4
    EXPECT_EQ(d.getGz(10), -12);
    EXPECT_EQ(d.getGz(12), 1);
    EXPECT_EQ(d.getGx(14), 64);
    EXPECT_EQ(d.getGy(14), -63);    // trunc(-64 + 0.5)
    EXPECT_EQ(d.getGz(14), 128);    // "1289" -> "128"
    EXPECT_EQ(d.getGx(16), 512);    // 900 counts clamp to 512
    EXPECT_EQ(d.getGz(16), 12);
    EXPECT_EQ(d.getGx(18), 0);
    EXPECT_EQ(d.getGpsLat(15), 0.0f);

    // Readings without any position record become one sample each.
    std::string lone = "RIFF....AVI " + textChunk("02tx", "gsensor,1,2,3") + textChunk("02tx", "gsensor,4,5,6");
    EXPECT_EQ(d.getM420AllDataFromFile(dir.write("lone.avi", lone).string()), 2);
    // A position record seen but no sample emitted: nothing.
    std::string late = "RIFF....AVI " + textChunk("02tx", "GPRMC,1,A,1.1,N,1.1,E,1") + textChunk("02tx", "gsensor,1,2,3");
    EXPECT_EQ(d.getM420AllDataFromFile(dir.write("late.avi", late).string()), 0);
    // A chunk of 256 bytes or more is not found: its second size byte is read as text.
    std::string longRec = "RIFF....AVI 02tx";
    tarvik::test::put32(longRec, 300);
    longRec += "gsensor,1,2,3" + std::string(287, '\0');
    EXPECT_EQ(d.getM420AllDataFromFile(dir.write("long.avi", longRec).string()), 0);

    // A clip of megabytes that the reader takes in windows: clusters of
    // records around every 64 KiB mark, so that window ends cut tags and texts
    // at many points, read as the same records packed together.
    std::string packed = "RIFF....AVI ", spread = packed;
    for (int m = 1; m < 64; ++m) {
        spread.resize((static_cast<std::size_t>(m) << 16) - 200 - m * m % 23, '\0');
        for (int r = 0; r < 12; ++r) {
            const std::string c = textChunk(r % 2 ? "03tx" : "02tx", "gsensor," + std::to_string(m * r % 97) + ",-2,1");
            packed += c;
            spread += c;
        }
        packed += textChunk("02tx", "GPRMC,083000,A,3733.6700,N,12658.9800,E,10.0,90,211126");
        spread += textChunk("02tx", "GPRMC,083000,A,3733.6700,N,12658.9800,E,10.0,90,211126");
    }
    OrvoClipData tight;
    tight.loadVideoFileCilpDataFromFilePath(dir.write("packed.avi", packed).string());
    d.loadVideoFileCilpDataFromFilePath(dir.write("spread.avi", spread).string());
    const int n = tight.clipDataCount();
    ASSERT_EQ(n, 630);
    ASSERT_EQ(d.clipDataCount(), n);
    for (int i = 0; i < n; ++i) {
        EXPECT_EQ(d.getGx(i), tight.getGx(i)) << i;
        EXPECT_EQ(d.getGz(i), tight.getGz(i)) << i;
        EXPECT_EQ(d.getGpsLat(i), tight.getGpsLat(i)) << i;
    }
}

TEST(ClipData, SrtCues) {
    TempDir dir;
    std::string srt;
    for (int i = 0; i < 10; ++i) {
        srt += std::to_string(i + 1) + "\n00:00:0" + std::to_string(i / 10) + "," + std::to_string(i % 10) +
               "00 --> 00:00:01,000\n";
        srt += "gsensori,1,128," + std::to_string(i) + ",0,128";
        if (i == 9) srt += ";GPRMC,083000,A,4807.038,S,01131.000,W,0.0,,";
        srt += "\n\n";
    }
    srt += "11\n00:00:01,000 --> 00:00:01,100\nCAR,7,7,7\n\n";    // no reading pending: its own
    srt += "12\n00:00:01,100 --> 00:00:01,200\nCAR,8,8,8\n\n";    // one pending: a copy of it
    srt += "13\n00:00:01,200 --> 00:00:01,300\ndummy,1,2,3\n\n";
    srt += "14\n00:00:01,300 --> 00:00:01,400\nGNRMC,1,A,4807.038,N,01131.000,E,5.4,,\n\n";
    OrvoClipData d;
    const std::string path = dir.write("clip.srt", srt).string();
    d.loadVideoFileCilpDataFromFilePath(path);
    ASSERT_EQ(d.clipDataCount(), 20);
    EXPECT_EQ(d.gpsDataCount(), 20);
    EXPECT_EQ(d.getGx(3), 3);
    EXPECT_NEAR(d.getGpsLat(0), -48.1173f, 1e-4);
    EXPECT_NEAR(d.getGpsLng(0), -11.516667f, 1e-4);
    EXPECT_EQ(d.getGx(10), 7);
    EXPECT_EQ(d.getGx(19), 7);
    EXPECT_EQ(d.getGpsSpeed(19), 10u);

    // The extension test is exact: "SRT" goes to the clip readers and finds nothing.
    d.loadVideoFileCilpDataFromFilePath(dir.write("clip.SRT", srt).string());
    EXPECT_EQ(d.clipDataCount(), 0);
    // Empty and non-UTF-8 texts.
    EXPECT_EQ(d.getM420AllDataFromSrtFile(dir.write("e.srt", "").string()), 0);
    EXPECT_EQ(d.getM420AllDataFromSrtFile(dir.write("u.srt", srt + "\xff").string()), 0);
}

TEST(ClipData, KrtChunks) {
    // Which clips the family's reader takes: the cameras' own spelling only.
    EXPECT_TRUE(isKrtClipName("Event_20261121_083000.avi"));
    EXPECT_TRUE(isKrtClipName("Manual_1.avi"));
    for (const char* other : {"Event_1.AVI", "rec_1.avi", "X_Rec_1.avi", "Rec_1.avi.mp4", "Park_", ".avi"})
        EXPECT_FALSE(isKrtClipName(other)) << other;
    Avi avi;
    std::string ok = "M";
    ok += static_cast<char>(128);  // 128 * 10 - 1280 = 0
    ok += static_cast<char>(141);
    ok += static_cast<char>(100);
    ok += std::string("\x01\x01\x01", 3);
    std::string off = ok;
    off[5] = 0;  // bytes 4..6 must all be 1
    avi.chunk("02tx", ok).chunk("02tx", off).chunk("03tx", std::string("T", 1));
    avi.nmea("$GPRMC,1,A,3733.67,N,12658.98,E,0,,,,");
    TempDir dir;
    const std::string path = dir.write("Rec_1.avi", avi.bytes).string();
    OrvoClipData d;
    d.loadVideoFileCilpDataFromFilePath_KRT(path);
    ASSERT_EQ(d.clipDataCount(), 10);
    EXPECT_EQ(d.getGx(9), 0);
    EXPECT_EQ(d.getGy(0), 130);
    EXPECT_EQ(d.getGz(0), -280);
    EXPECT_EQ(d.gpsDataCount(), 10);  // 'T' means nothing to this family
}

TEST(ClipData, HostileInputGivesNothing) {
    TempDir dir;
    OrvoClipData d;
    d.storeSample(0, 1, 1, 1, 1, 1, 1);
    d.setClipDataCount(1);
    d.setGpsDataCount(1);
    d.loadVideoFileCilpDataFromFilePath((dir.path / "missing.avi").string());
    EXPECT_EQ(d.clipDataCount(), 0);
    EXPECT_EQ(d.gpsDataCount(), 0);  // no stale route from the previous clip
    d.loadVideoFileCilpDataFromFilePath(dir.path.string());  // a folder
    EXPECT_EQ(d.clipDataCount(), 0);
    d.loadVideoFileCilpDataFromFilePath(dir.write("empty.avi", "").string());
    EXPECT_EQ(d.clipDataCount(), 0);
    EXPECT_EQ(d.getAllDataFromFile(dir.write("riff.avi", "RIFF\x10\0\0\0WAVE").string().c_str()), 0);
    EXPECT_EQ(d.getAllDataFromFile(nullptr), 0);

    // A chunk size far past the end: the payload is what the file has, no more.
    Avi avi;
    avi.gReading(0, 0, 0).nmea("$GPRMC,1,A,1.1,N,1.1,E,0");
    avi.bytes += "02tx";
    tarvik::test::put32(avi.bytes, 0xFFFFFFF0u);
    avi.bytes += "M";  // truncated reading: missing bytes read as 0 -> gx = 128
    const std::string path = dir.write("huge.avi", avi.bytes).string();
    EXPECT_EQ(d.getAllDataFromFile(path.c_str()), 20);
    // Every truncation of a valid stream parses without reading past its end.
    for (std::size_t n = 0; n < avi.bytes.size(); ++n) {
        const std::string cut = dir.write("cut.avi", avi.bytes.substr(0, n)).string();
        d.loadVideoFileCilpDataFromFilePath(cut);
        EXPECT_LE(d.clipDataCount(), 20);
        d.loadVideoFileCilpDataFromFilePath_KRT(cut);
        EXPECT_EQ(d.clipDataCount(), 0);
    }
}
