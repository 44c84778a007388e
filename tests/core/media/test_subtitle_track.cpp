// The in-process subtitle-track reader against what ffmpeg extracts from the
// same generated clips, and against broken files.
#include <gtest/gtest.h>


#include "../telemetry/test_bytes.h"
#include "cardgen/telemetry_encoders.h"
#include "cardgen/video_maker.h"
#include "core/media/media_probe.h"
#include "core/media/subtitle_track.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"
#include "core/util/process_runner.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {

fs::path clipWithTrack(const test::TempDir& dir, const std::string& name, const std::string& srt) {
    cardgen::VideoSpec spec;
    spec.width = 64;
    spec.height = 36;
    spec.seconds = 7;
    if (!srt.empty()) spec.subtitleSrt = dir.write(name + ".in.srt", srt);
    const fs::path clip = dir.path / (name + ".mp4");
    std::string log;
    EXPECT_TRUE(cardgen::makeVideo(spec, clip, &log)) << log;
    return clip;
}

void expectSameData(const OrvoClipData& a, const OrvoClipData& b) {
    ASSERT_EQ(a.clipDataCount(), b.clipDataCount());
    EXPECT_EQ(a.gpsDataCount(), b.gpsDataCount());
    for (int i = 0; i < OrvoClipData::kCapacity; ++i) {
        int ax, ay, az, bx, by, bz;
        float alat, alng, blat, blng;
        unsigned as, bs;
        a.getClipDataWithIndex(i, ax, ay, az, alat, alng, as);
        b.getClipDataWithIndex(i, bx, by, bz, blat, blng, bs);
        ASSERT_TRUE(ax == bx && ay == by && az == bz && alat == blat && alng == blng && as == bs) << "sample " << i;
    }
}

}  // namespace

// Cue for cue what `ffmpeg -c:s text` writes, so every reader sees the same
// telemetry: plain and CR LF tracks, multi-line cues, gaps between cues.
TEST(SubtitleTrackReader, SameCuesAsFfmpegExtraction) {
    test::TempDir dir;
    const auto drive = cardgen::driveSeconds(0, 6, 10, cardgen::quantizeText);
    const std::string oddCues =
        "1\n00:00:00,000 --> 00:00:00,500\ngsensori,1,2,3,0,0;\nGPRMC,083000.000,A,3733.9900,N,12658.6800,E,21.5\n\n"
        "2\n00:00:02,250 --> 00:00:02,300\nCAR,5,-6,7\n\n"
        "3\n00:00:03,000 --> 00:00:04,000\n{braces} \\ and ümlauts\n\n";
    int n = 0;
    for (const std::string& track : {cardgen::srtTrack(drive), cardgen::srtTrack(drive, true), oddCues}) {
        SCOPED_TRACE(n);
        const fs::path clip = clipWithTrack(dir, "clip" + std::to_string(n++), track);
        const fs::path srt = dir.path / (clip.stem().string() + ".srt");
        ProcessResult r = ProcessRunner::run(cardgen::ffmpegProgram(),
                                             {"-v", "error", "-i", clip.string(), "-vn", "-an", "-c:s", "text", srt.string()},
                                             std::chrono::minutes(1));
        ASSERT_EQ(r.exitCode, 0) << r.output;

        const auto text = SubtitleTrack::srtText(clip.string());
        ASSERT_TRUE(text.has_value());
        EXPECT_EQ(*text, test::readBytes(srt));

        OrvoClipData viaFfmpeg, inProcess;
        viaFfmpeg.loadVideoFileCilpDataFromFilePath(srt.string());
        SubtitleData cues;
        ASSERT_TRUE(SubtitleTrack::load(clip.string(), inProcess, &cues));
        expectSameData(viaFfmpeg, inProcess);
        const auto expected = SubtitleData::fromPath(srt.string());
        ASSERT_EQ(cues.cueCount(), expected->cueCount());
        // Every look-up the dashboard makes answers the same.
        for (unsigned t = 0; t < 700; ++t) {
            int ax = 0, ay = 0, az = 0, bx = 0, by = 0, bz = 0;
            ASSERT_EQ(cues.getSensorAt(t, ax, ay, az), expected->getSensorAt(t, bx, by, bz)) << t;
            EXPECT_TRUE(ax == bx && ay == by && az == bz) << t;
            float alat = 0, alng = 0, blat = 0, blng = 0;
            unsigned as = 0, bs = 0;
            ASSERT_EQ(cues.getGpsAt(t, alat, alng, as), expected->getGpsAt(t, blat, blng, bs)) << t;
            EXPECT_TRUE(alat == blat && alng == blng && as == bs) << t;
        }
        if (n == 1) {
            EXPECT_EQ(inProcess.clipDataCount(), 60);
        }
    }
}

// Broken or foreign input gives the neutral value, and a load clears what an
// earlier clip left behind.
TEST(SubtitleTrackReader, NeutralOnBrokenInput) {
    test::TempDir dir;
    const fs::path good = clipWithTrack(dir, "good", cardgen::srtTrack(cardgen::driveSeconds(0, 6, 10, cardgen::quantizeText)));
    const std::string bytes = test::readBytes(good);
    std::string garbage(1 << 16, '\0');
    for (std::size_t i = 0; i < garbage.size(); ++i) garbage[i] = static_cast<char>(i * 2654435761u >> 13);
    const fs::path broken[] = {dir.write("half.mp4", bytes.substr(0, bytes.size() / 2)),
                               dir.write("head.mp4", bytes.substr(0, 40)), dir.write("empty.mp4", ""),
                               dir.write("noise.mp4", garbage), dir.path / "missing.mp4"};
    OrvoClipData data;
    SubtitleData cues;
    for (const fs::path& p : broken) {
        ASSERT_TRUE(SubtitleTrack::load(good.string(), data, &cues));
        ASSERT_EQ(data.clipDataCount(), 60);
        EXPECT_FALSE(SubtitleTrack::load(p.string(), data, &cues)) << p;
        EXPECT_EQ(data.clipDataCount(), 0) << p;
        EXPECT_EQ(data.getGx(0), OrvoClipData::kNoG);
        EXPECT_TRUE(cues.empty());
        EXPECT_EQ(videoStreamCount(p.string()), -1) << p;
    }
    // A clip without a track opens fine and has no telemetry.
    const fs::path plain = clipWithTrack(dir, "plain", "");
    EXPECT_TRUE(SubtitleTrack::load(plain.string(), data, &cues));
    EXPECT_EQ(data.clipDataCount(), 0);
    EXPECT_EQ(SubtitleTrack::srtText(plain.string()), std::string());
    EXPECT_EQ(videoStreamCount(plain.string()), 1);
}
