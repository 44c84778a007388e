// Every clip layout the card generator writes, read back by the viewer's
// readers: real ffmpeg clips, real files, the real subtitle extraction.
#include <gtest/gtest.h>

#include <cmath>

#include "cardgen/avi_text_chunks.h"
#include "cardgen/card_plan.h"
#include "cardgen/telemetry_encoders.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/second_resampler.h"
#include "core/telemetry/subtitle_data.h"
#include "core/util/process_runner.h"
#include "test_bytes.h"

using namespace tarvik;
using namespace tarvik::cardgen;
namespace fs = std::filesystem;

namespace {

constexpr int kSeconds = 6;
// Seconds 42..47 of the drive: braking, standing, and the tunnel from second 44 on.
constexpr int kOffset = 42;

struct Expected {
    DriveG g;
    DriveFix fix;
};

// "gsensori" values come back through trunc(v + 0.5): negative ones 1/128 g higher.
DriveG asReadFromGsensori(DriveG g) {
    auto r = [](int v) { return static_cast<int>(std::trunc(static_cast<float>(v) + 0.5f)); };
    return {r(g.x), r(g.y), r(g.z)};
}

std::vector<Expected> expectedSamples(const std::vector<TelemetrySecond>& secs, DriveG (*asRead)(DriveG) = nullptr) {
    std::vector<Expected> out;
    for (const auto& s : secs) {
        std::size_t idx[10];
        const int n = SecondResampler::pick(s.readings.size(), idx);
        for (int j = 0; j < n; ++j) out.push_back({asRead ? asRead(s.readings[idx[j]]) : s.readings[idx[j]], s.fix});
    }
    return out;
}

void expectSamples(const OrvoClipData& d, const std::vector<Expected>& want, const char* what) {
    ASSERT_EQ(d.clipDataCount(), static_cast<int>(want.size())) << what;
    int withFix = 0;
    for (int i = 0; i < d.clipDataCount(); ++i) {
        const Expected& e = want[i];
        EXPECT_EQ(d.getGx(i), e.g.x) << what << " sample " << i;
        EXPECT_EQ(d.getGy(i), e.g.y) << what << " sample " << i;
        EXPECT_EQ(d.getGz(i), e.g.z) << what << " sample " << i;
        EXPECT_NEAR(d.getGpsLat(i), e.fix.valid ? e.fix.lat : 0.0, 2e-5) << what << " sample " << i;
        EXPECT_NEAR(d.getGpsLng(i), e.fix.valid ? e.fix.lng : 0.0, 2e-5) << what << " sample " << i;
        EXPECT_EQ(d.getGpsSpeed(i), static_cast<unsigned>(e.fix.valid ? e.fix.kmh : 0)) << what << " sample " << i;
        withFix += e.fix.valid;
    }
    EXPECT_EQ(d.gpsDataCount(), withFix) << what;
    EXPECT_GT(withFix, 0) << what;
    EXPECT_LT(withFix, d.clipDataCount()) << what << ": the tunnel should be in the clip";
}

ClipPlan plan(const std::string& name, TelemetryFormat t, int offset = kOffset) {
    ClipPlan c;
    c.relPath = name;
    c.video.width = 64;
    c.video.height = 36;
    c.video.fps = 10;
    c.video.seconds = kSeconds;
    c.telemetry = t;
    c.driveOffsetSeconds = offset;
    return c;
}

// Decodes every frame; a patched AVI must still play from start to end.
int decodedFrames(const fs::path& clip) {
    ProcessResult r = ProcessRunner::run(ffmpegProgram(), {"-v", "error", "-i", clip.string(), "-map", "0:v:0",
                                                           "-f", "framemd5", "-"},
                                         std::chrono::minutes(1));
    if (r.exitCode != 0) return -1;
    int frames = 0;
    for (std::size_t p = 0; (p = r.output.find("\n0,", p)) != std::string::npos; ++p) ++frames;
    return frames;
}

}  // namespace

TEST(WriterRoundTrip, EmbeddedLayouts) {
    test::TempDir dir;
    struct Case {
        ClipPlan clip;
        std::vector<TelemetrySecond> written;
        bool krt;
        DriveG (*asRead)(DriveG) = nullptr;
    };
    // The two offsets make the writer pick "03tx" (with "gsensori" records) and "02tx".
    const int odd = kOffset, even = kOffset + kSeconds;
    std::vector<Case> cases = {
        {plan("tail.avi", TelemetryFormat::TailText, even), driveSeconds(even, kSeconds, 10), false},
        {plan("records02.avi", TelemetryFormat::TextRecords, even), driveSeconds(even, kSeconds, 10, quantizeText), false},
        {plan("records03.avi", TelemetryFormat::TextRecords, odd), driveSeconds(odd, kSeconds, 10, quantizeText), false,
         asReadFromGsensori},
        {plan("chunks02.avi", TelemetryFormat::AviChunks, even), driveSeconds(even, kSeconds, 30, quantizeGeneralBinary), false},
        {plan("chunks03.avi", TelemetryFormat::AviChunks, odd), driveSeconds(odd, kSeconds, 30, quantizeGeneralBinary), false},
        {plan("Rec_krt.avi", TelemetryFormat::AviChunksKrt, even), driveSeconds(even, kSeconds, 20, quantizeKrtBinary), true},
        {plan("Event_krt.avi", TelemetryFormat::AviChunksKrt, odd), driveSeconds(odd, kSeconds, 20, quantizeKrtBinary), true},
    };
    for (auto& c : cases) {
        const fs::path clip = dir.path / c.clip.relPath;
        std::string log;
        ASSERT_TRUE(writeClip(c.clip, clip, &log)) << c.clip.relPath << ": " << log;
        OrvoClipData d;
        if (c.krt) d.loadVideoFileCilpDataFromFilePath_KRT(clip.string());
        else d.loadVideoFileCilpDataFromFilePath(clip.string());
        expectSamples(d, expectedSamples(c.written, c.asRead), c.clip.relPath.c_str());
        EXPECT_EQ(decodedFrames(clip), kSeconds * 10) << c.clip.relPath;
        if (c.clip.telemetry != TelemetryFormat::AviChunks && !c.krt) continue;
        // The chunk walk reads only what the index leaves between pictures;
        // without an index, or with one that does not fit the file, it walks
        // every header, and all three ways give the same samples.
        const std::string bytes = test::readBytes(clip);
        const std::size_t idx = bytes.rfind("idx1");
        ASSERT_NE(idx, std::string::npos);
        std::string noIndex = bytes, shifted = bytes;
        noIndex.replace(idx, 4, "JUNK");
        for (std::size_t e = idx + 8; e + 16 <= shifted.size(); e += 16) shifted[e + 8] = static_cast<char>(shifted[e + 8] + 2);
        for (const auto& [name, variant] : {std::pair{"no index", noIndex}, std::pair{"shifted index", shifted}}) {
            const fs::path other = dir.write(name + std::string(".avi"), variant);
            OrvoClipData o;
            if (c.krt) o.loadVideoFileCilpDataFromFilePath_KRT(other.string());
            else o.loadVideoFileCilpDataFromFilePath(other.string());
            expectSamples(o, expectedSamples(c.written, c.asRead), (c.clip.relPath + ", " + name).c_str());
        }
    }
}

TEST(WriterRoundTrip, SubtitleTrackThroughFfmpeg) {
    test::TempDir dir;
    ClipPlan c = plan("20261121_083000_F.mp4", TelemetryFormat::SrtTrack);
    const fs::path clip = dir.path / c.relPath;
    std::string log;
    ASSERT_TRUE(writeClip(c, clip, &log)) << log;
    // Extracted the way the player does.
    const fs::path srt = dir.path / "20261121_083000_F.srt";
    ProcessResult r = ProcessRunner::run(ffmpegProgram(), {"-i", clip.string(), "-vn", "-an", "-c:s", "text", srt.string()},
                                         std::chrono::minutes(1));
    ASSERT_EQ(r.exitCode, 0) << r.output;

    const auto written = driveSeconds(kOffset, kSeconds, 10, quantizeText);
    OrvoClipData d;
    d.loadVideoFileCilpDataFromFilePath(srt.string());
    expectSamples(d, expectedSamples(written, asReadFromGsensori), "srt");

    SubtitleData track;
    track.loadFromPath(srt.string());
    ASSERT_EQ(track.cueCount(), static_cast<std::size_t>(kSeconds * 10));
    for (unsigned t = 0; t < kSeconds * 10; ++t) {
        int x = 0, y = 0, z = 0;
        ASSERT_TRUE(track.getSensorAt(t, x, y, z)) << t;
        const DriveG& g = written[t / 10].readings[t % 10];
        EXPECT_EQ(x, g.x);
        EXPECT_EQ(z, std::min(512, g.z));
        float lat, lng;
        unsigned speed;
        const int found = track.getGpsAt(t, lat, lng, speed);
        if (t % 10 == 9 && written[t / 10].fix.valid) {
            EXPECT_EQ(found, 0) << t;
            EXPECT_NEAR(lat, written[t / 10].fix.lat, 2e-5);
        }
    }
}

TEST(WriterRoundTrip, ChunksLandBetweenTheFramesOfTheirTime) {
    test::TempDir dir;
    ClipPlan c = plan("plain.avi", TelemetryFormat::None);
    const fs::path clip = dir.path / c.relPath;
    ASSERT_TRUE(writeClip(c, clip, nullptr));
    std::vector<TextChunk> chunks = {{0.55, "02tx", "gsensor,1,2,3"}, {0.0, "03tx", "first"}, {99, "02tx", "last"}};
    std::string error;
    ASSERT_TRUE(addTextChunksToAvi(clip, chunks, 10, &error)) << error;
    const std::string bytes = test::readBytes(clip);
    const auto first = bytes.find("03tx"), mid = bytes.find("02tx"), last = bytes.find("02tx", mid + 1);
    ASSERT_NE(first, std::string::npos);
    ASSERT_NE(last, std::string::npos);
    EXPECT_LT(first, bytes.find("00dc", bytes.find("movi")));  // before the first frame
    // Six frames (0.0 .. 0.5 s) precede the 0.55 s chunk.
    int framesBefore = 0;
    for (std::size_t p = bytes.find("movi"); (p = bytes.find("00dc", p + 1)) < mid;) ++framesBefore;
    EXPECT_EQ(framesBefore, 6);
    EXPECT_LT(last, bytes.find("idx1"));
    EXPECT_EQ(decodedFrames(clip), kSeconds * 10);
    EXPECT_FALSE(addTextChunksToAvi(dir.write("x.avi", "not an avi"), chunks, 10, &error));
}
