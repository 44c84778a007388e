#include <algorithm>

#include "conversion_fixture.h"

namespace tarvik::testing {

namespace {
using L = ArgumentList;
}

TEST(PartnerRule, FirstMatchingRuleReplacesEveryOccurrence) {
    for (auto [clip, partner] : std::initializer_list<std::pair<const char*, const char*>>{
             {"/c/cont_rec/20261121_083000_F.mp4", "/c/cont_rec/20261121_083000_R.mp4"},
             {"/c/20261121_083000_R.mp4", "/c/20261121_083000_F.mp4"}, {"/c/x_F_BC.mp4", "/c/x_R_BC.mp4"},
             {"/c/x_R_BC.mp4", "/c/x_F_BC.mp4"}, {"/c/20261121_083000.mp4", ""}, {"/c/CAF.E/a_F.mp4", "/c/CAR.E/a_R.mp4"},
             {"/R./a_F.mp4", "/R./a_R.mp4"}})  // "F." wins over "R." even when "R." comes first
        EXPECT_EQ(ClipConverter::partnerPathOf(clip), partner) << clip;
}

// The viewer converts only clips of two picture streams (the rest play from
// the card as they are): two-camera AVIs, and an MP4 that holds two pictures,
// which takes the MP4 way below.
TEST_F(ConversionTest, TwoStreamAviEveryCaseOfTheTable) {
    struct Case { bool audio; const char* handler; const char* tag; };
    for (Case c : {Case{false, nullptr, nullptr}, Case{false, "AVC1", "avc1"}, Case{true, nullptr, nullptr},
                   Case{true, "AVC1", "avc1"}}) {
        SCOPED_TRACE(std::string("audio=") + (c.audio ? "1" : "0") + " handler=" + (c.handler ? c.handler : "H264"));
        cardgen::VideoSpec spec;
        spec.videoStreams = 2;
        spec.audio = c.audio;
        const std::string name = std::string("twin_") + (c.audio ? "a" : "n") + (c.handler ? "t" : "p") + ".avi";
        fs::path avi = makeClip(name, spec);
        if (c.handler) patchBytes(avi, 112, c.handler);
        runs.clear();
        auto files = recordingConverter().checkAndConvertVideo(avi.string());
        ASSERT_TRUE(files.has_value());
        ASSERT_EQ(files->size(), 2u);
        const fs::path folder = documents / "TarvikViewer" / "temp_video" /
                                (avi.stem().string() + "_" + std::to_string(fs::file_size(avi)));
        EXPECT_EQ((*files)[0], (folder / (avi.stem().string() + "_f.mov")).string());
        EXPECT_EQ((*files)[1], (folder / (avi.stem().string() + "_r.mov")).string());
        ASSERT_EQ(runs.size(), 3u);  // probe, front, rear
        EXPECT_EQ(runs[1], FfmpegCommandLines::twoStreamPicture(avi, 0, c.audio, Utils::GetAviType(avi), (*files)[0]));
        EXPECT_EQ(runs[2], FfmpegCommandLines::twoStreamPicture(avi, 1, c.audio, Utils::GetAviType(avi), (*files)[1]));
        for (const auto& out : *files) {
            const std::string info = Utils::GetFFMPEGVideoInfo(out);
            EXPECT_EQ(Utils::GetVideoStreamCountFromVideoInfo(info), 1) << info;
            EXPECT_EQ(Utils::GetAudioStreamCountFromVideoInfo(info), c.audio ? 1 : 0) << info;
            if (c.tag) {
                EXPECT_NE(info.find(c.tag), std::string::npos) << info;
            }
            EXPECT_TRUE(decodes(out)) << out;
        }

        // Opened again: both outputs exist, only the stream count is probed.
        runs.clear();
        EXPECT_EQ(recordingConverter().checkAndConvertVideo(avi.string()), files);
        EXPECT_EQ(runs, (std::vector<L>{{"-i", avi.string()}}));
    }
}

TEST_F(ConversionTest, TwoStreamHevcLineWithHvc1Tag) {
    cardgen::VideoSpec spec;
    spec.videoStreams = 2;
    spec.audio = true;
    spec.codec = cardgen::Codec::Hevc;
    fs::path avi = makeClip("twin_hevc.avi", spec);
    for (int stream : {0, 1}) {
        fs::path out = root / ("hevc_" + std::to_string(stream) + ".mov");
        Utils::ConvertAviToMovWithArguments(
            FfmpegCommandLines::twoStreamPicture(avi, stream, true, CodecTagType::Hevc, out));
        const std::string info = Utils::GetFFMPEGVideoInfo(out);
        EXPECT_NE(info.find("hvc1"), std::string::npos) << info;
        EXPECT_TRUE(decodes(out));
    }
}

TEST_F(ConversionTest, Mp4PairWithSubtitleTracks) {
    cardgen::VideoSpec front;
    front.audio = true;
    front.subtitleSrt = writeSrt("front.srt", "front cue 1");
    cardgen::VideoSpec rear;
    rear.pattern = "smptebars";
    rear.subtitleSrt = writeSrt("rear.srt", "rear cue 1");
    fs::path f = makeClip("20261121_083000_F.mp4", front);
    fs::path r = makeClip("20261121_083000_R.mp4", rear);

    auto files = recordingConverter().checkAndConvertVideo(f.string());
    ASSERT_TRUE(files.has_value());
    ASSERT_EQ(files->size(), 2u);
    const std::string fOut = (*files)[0], rOut = (*files)[1];
    EXPECT_EQ(fs::path(fOut).filename(), "20261121_083000_F_f.mov");
    EXPECT_EQ(fs::path(rOut).filename(), "20261121_083000_F_r.mov");
    const std::string fSrt = Utils::removeFileExtensionFromFilePath(fOut) + ".srt";
    const std::string rSrt = Utils::removeFileExtensionFromFilePath(rOut) + ".srt";
    EXPECT_EQ(runs, (std::vector<L>{FfmpegCommandLines::subtitle(f, fSrt),
                                    FfmpegCommandLines::remux(f, CodecTagType::Unknown, fOut),
                                    FfmpegCommandLines::subtitle(r, rSrt),
                                    FfmpegCommandLines::remux(r, CodecTagType::Unknown, rOut)}));
    for (const auto& out : *files) {
        EXPECT_NE(Utils::GetFFMPEGVideoInfo(out).find("avc1"), std::string::npos);
        EXPECT_TRUE(decodes(out));
    }
    auto slurp = [](const std::string& p) {
        std::ifstream in(p);
        return std::string(std::istreambuf_iterator<char>(in), {});
    };
    EXPECT_NE(slurp(fSrt).find("front cue 1"), std::string::npos);
    EXPECT_NE(slurp(rSrt).find("rear cue 1"), std::string::npos);

    // Everything is cached now: nothing runs a second time.
    runs.clear();
    EXPECT_EQ(recordingConverter().checkAndConvertVideo(f.string()), files);
    EXPECT_TRUE(runs.empty());

    // Front output present, rear missing: only the partner is converted.
    fs::remove(rOut);
    runs.clear();
    EXPECT_EQ(recordingConverter().checkAndConvertVideo(f.string()), files);
    EXPECT_EQ(runs.size(), 2u);
    EXPECT_EQ(runs[1], FfmpegCommandLines::remux(r, CodecTagType::Unknown, rOut));

    // A changed source (other size) gets a folder of its own.
    const fs::path folder = recordingConverter().clipFolderFor(f.string());
    std::ofstream(f, std::ios::app) << "tail";
    EXPECT_NE(recordingConverter().clipFolderFor(f.string()), folder);

    // Opened from the rear file, the rear clip becomes the first entry.
    auto fromRear = recordingConverter().checkAndConvertVideo(r.string());
    ASSERT_TRUE(fromRear.has_value());
    ASSERT_EQ(fromRear->size(), 2u);
    EXPECT_EQ(fs::path((*fromRear)[0]).filename(), "20261121_083000_R_f.mov");
}

TEST_F(ConversionTest, BadClipsGiveEmptyListsAndNoHang) {
    ClipConverter conv = recordingConverter();
    std::ofstream(card / "empty.mp4");
    std::ofstream(card / "empty.avi");
    std::ofstream(card / "junk.avi") << std::string(4096, '\x5a');
    for (const char* name : {"empty.mp4", "empty.avi", "junk.avi", "missing.mp4"})
        EXPECT_EQ(conv.checkAndConvertVideo((card / name).string()), std::vector<std::string>{}) << name;

    fs::path mp4 = makeClip("trunc.mp4");
    fs::resize_file(mp4, fs::file_size(mp4) / 2);
    auto truncated = conv.checkAndConvertVideo(mp4.string());
    ASSERT_TRUE(truncated.has_value());  // whatever ffmpeg salvages, the call returns
}

TEST_F(ConversionTest, UncreatableCacheGivesNoResult) {
    fs::path mp4 = makeClip("a_F.mp4");
    fs::create_directories(documents);
    std::ofstream(documents / "TarvikViewer") << "a file in the way";
    EXPECT_FALSE(recordingConverter().checkAndConvertVideo(mp4.string()).has_value());
    EXPECT_TRUE(runs.empty());
}

TEST_F(ConversionTest, AKilledRemuxLeavesNothingAndTheNextOpenConvertsAfresh) {
    cardgen::VideoSpec spec;
    spec.seconds = 12;
    fs::path clip = makeClip("20261121_100000_F.mp4", spec);
    bool partialSeen = false;
    // ffmpeg reads the clip at its own pace and is killed halfway through it.
    ClipConverter slow(documents, [&](const ArgumentList& args) {
        ArgumentList a = args;
        if (std::find(a.begin(), a.end(), "-vcodec") == a.end())
            return ProcessRunner::run(Utils::GetFFMPEGPath(), a);
        a.insert(a.begin(), {"-readrate", "1"});
        ProcessResult r = ProcessRunner::run(Utils::GetFFMPEGPath(), a, std::chrono::seconds(4));
        partialSeen = fs::exists(a.back());
        EXPECT_TRUE(r.timedOut) << r.output;
        return r;
    });
    auto files = slow.checkAndConvertVideo(clip.string());
    ASSERT_TRUE(files.has_value());
    EXPECT_TRUE(files->empty());
    EXPECT_TRUE(partialSeen);
    for (const auto& e : fs::directory_iterator(slow.clipFolderFor(clip.string())))
        EXPECT_EQ(e.path().filename().string().find(".mov"), std::string::npos) << e.path();

    runs.clear();
    files = recordingConverter().checkAndConvertVideo(clip.string());
    ASSERT_TRUE(files.has_value());
    ASSERT_EQ(files->size(), 1u);
    EXPECT_EQ(runs.size(), 2u);  // side file and picture, both afresh
    EXPECT_TRUE(decodes((*files)[0]));
}

}  // namespace tarvik::testing
