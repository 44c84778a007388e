// A mov_text sample whose 16-bit length claims more than the sample holds:
// its text ends with the sample, never in the bytes after it.
#include <gtest/gtest.h>


#include "../telemetry/test_bytes.h"
#include "cardgen/telemetry_encoders.h"
#include "cardgen/video_maker.h"
#include "core/media/subtitle_track.h"

using namespace tarvik;
namespace fs = std::filesystem;

TEST(MovTextLength, ALengthPastTheSampleEndsAtTheSample) {
    test::TempDir dir;
    const std::string srt = cardgen::srtTrack(cardgen::driveSeconds(0, 3, 10, cardgen::quantizeText));
    cardgen::VideoSpec spec;
    spec.width = 64;
    spec.height = 36;
    spec.seconds = 3;
    spec.subtitleSrt = dir.write("in.srt", srt);
    const fs::path good = dir.path / "good.mp4";
    std::string log;
    ASSERT_TRUE(cardgen::makeVideo(spec, good, &log)) << log;
    const std::string bytes = test::readBytes(good);
    const auto want = SubtitleTrack::srtText(good.string());
    ASSERT_TRUE(want && !want->empty());

    // The first sample's text, as the cue's first line; its length is the two bytes before.
    const std::size_t cueText = srt.find("gsensor");
    ASSERT_NE(cueText, std::string::npos);
    const std::string firstLine = srt.substr(cueText, srt.find('\n', cueText) - cueText);
    const std::size_t at = bytes.find(firstLine);
    ASSERT_NE(at, std::string::npos);
    ASSERT_GE(at, 2u);
    const std::size_t length = static_cast<unsigned char>(bytes[at - 2]) << 8 | static_cast<unsigned char>(bytes[at - 1]);
    ASSERT_GE(length, firstLine.size());
    for (const std::size_t claimed : {length + 1, std::size_t{0xffff}}) {
        std::string patched = bytes;
        patched[at - 2] = static_cast<char>(claimed >> 8);
        patched[at - 1] = static_cast<char>(claimed & 0xff);
        const fs::path p = dir.write("long.mp4", patched);
        EXPECT_EQ(SubtitleTrack::srtText(p.string()).value_or(""), *want) << claimed;
    }
}
