#include "conversion_fixture.h"

namespace tarvik::testing {

TEST(StreamCounting, CountsStreamLinesOfEachKind) {
    const std::string info =
        "Input #0, avi, from 'a.avi':\n"
        "  Stream #0:0: Video: h264 (H264 / 0x34363248), yuv420p, 320x180\n"
        "  Stream #0:1: Video: h264 (H264 / 0x34363248), yuv420p, 320x180\n"
        "  Stream #0:2: Audio: pcm_s16le ([1][0][0][0] / 0x0001), 16000 Hz\n"
        "  stream #0:3[0x4](und): VIDEO: hevc\n"
        "  Stream #0:4[0x5](und): Subtitle: mov_text\n";
    EXPECT_EQ(Utils::GetVideoStreamCountFromVideoInfo(info), 3);
    EXPECT_EQ(Utils::GetAudioStreamCountFromVideoInfo(info), 1);
    EXPECT_EQ(Utils::GetVideoStreamCountFromVideoInfo(""), 0);
    // Only one-digit file numbers match, as the camera's clips never hold more.
    EXPECT_EQ(Utils::GetVideoStreamCountFromVideoInfo("Stream #10:0: Video: h264"), 0);
    // A pathological line from hostile metadata is bounded, not a crash.
    std::string hostile = "  Stream #0:0" + std::string(5'000'000, 'x') + ": Video\n";
    EXPECT_EQ(Utils::GetVideoStreamCountFromVideoInfo(hostile + info), 3);
}

TEST_F(ConversionTest, CodecTagTypeFromHandlerOrBrand) {
    fs::path avi = makeClip("h264.avi");
    EXPECT_EQ(Utils::GetAviType(avi), CodecTagType::H264);
    patchBytes(avi, 112, "avc1");  // the comparison ignores case
    EXPECT_EQ(Utils::GetAviType(avi), CodecTagType::Avc1);

    fs::path mp4 = makeClip("plain.mp4");
    EXPECT_EQ(Utils::GetAviType(mp4), CodecTagType::Unknown);
    patchBytes(mp4, 16, "iso4hvc1");
    EXPECT_EQ(Utils::GetAviType(mp4), CodecTagType::Hevc);

    std::ofstream(card / "short.avi") << "RIFF";
    EXPECT_EQ(Utils::GetAviType(card / "short.avi"), CodecTagType::Unknown);
    EXPECT_EQ(Utils::GetAviType(card / "missing.avi"), CodecTagType::Unknown);
}

TEST_F(ConversionTest, WorkingDirectoryIsMadeAndRemoved) {
    const std::string work = Utils::GetWorkingDirectoryPath(documents);
    EXPECT_EQ(work, (documents / "TarvikViewer").string());
    EXPECT_TRUE(fs::is_directory(work));  // Documents itself was missing too

    fs::create_directories(fs::path(work) / "temp_video" / "a_1");
    std::ofstream(fs::path(work) / "temp_video" / "a_1" / "a_f.mov") << "x";
    EXPECT_TRUE(Utils::RemoveDirectory(work));
    EXPECT_FALSE(fs::exists(work));
    EXPECT_FALSE(Utils::RemoveDirectory(work));
    EXPECT_TRUE(fs::is_directory(Utils::GetWorkingDirectoryPath(documents)));  // made again on demand
}

TEST(FfmpegLocation, EnvironmentThenPath) {
    const char* saved = std::getenv("TARVIK_FFMPEG");
    const std::string keep = saved ? saved : "";
    ::setenv("TARVIK_FFMPEG", "/opt/x/ffmpeg", 1);
    EXPECT_EQ(Utils::GetFFMPEGPath(), "/opt/x/ffmpeg");
    ::unsetenv("TARVIK_FFMPEG");
    const std::string found = Utils::GetFFMPEGPath();
    EXPECT_EQ(fs::path(found).filename(), "ffmpeg");
    EXPECT_TRUE(fs::path(found).is_absolute()) << found;
    if (saved) ::setenv("TARVIK_FFMPEG", keep.c_str(), 1);
}

}  // namespace tarvik::testing
