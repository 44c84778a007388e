// Which files the players get for each clip of a generated card.
#include <gtest/gtest.h>

#include "../telemetry/test_bytes.h"
#include "cardgen/card_plan.h"
#include "core/library/conversion/clip_converter.h"
#include "core/media/playable_files.h"

using namespace tarvik;
namespace fs = std::filesystem;

TEST(PlayableFiles, CardFilesAsTheyAreExceptTwoCameraAvi) {
    test::TempDir card;
    cardgen::CardOptions o;
    o.seconds = 1;
    o.width = 64;
    o.height = 36;
    const cardgen::CardPlan plan = cardgen::demoCardPlan(o);
    std::string error;
    ASSERT_TRUE(cardgen::writeCard(plan, card.path, &error)) << error;
    int pairs = 0, split = 0;
    for (const auto& clip : plan.clips) {
        const std::string path = (card.path / clip.relPath).string();
        const PlayableFiles p = playableFilesOf(path);
        SCOPED_TRACE(clip.relPath);
        if (clip.video.videoStreams >= 2) {
            EXPECT_TRUE(p.needsConversion);
            ++split;
            continue;
        }
        EXPECT_FALSE(p.needsConversion);
        ASSERT_FALSE(p.files.empty());
        EXPECT_EQ(p.files[0], path);
        const std::string partner = ClipConverter::partnerPathOf(path);
        std::string ext = fs::path(path).extension().string();
        for (char& c : ext) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        const bool hasPartner = ext == ".mp4" && !partner.empty() && fs::exists(partner);
        ASSERT_EQ(p.files.size(), hasPartner ? 2u : 1u);
        if (hasPartner) {
            EXPECT_EQ(p.files[1], partner);
            ++pairs;
        }
    }
    EXPECT_GT(pairs, 0);
    EXPECT_GT(split, 0);

    // No picture or no container: nothing to play. Other kinds pass unchanged.
    const fs::path empty = card.write("x.mp4", ""), noise = card.write("y.avi", std::string(4096, 'R'));
    EXPECT_TRUE(playableFilesOf(empty.string()).files.empty());
    EXPECT_TRUE(playableFilesOf(noise.string()).files.empty());
    EXPECT_EQ(playableFilesOf("/no/such.mkv").files, std::vector<std::string>{"/no/such.mkv"});
    // Other cameras' MPEG-TS pairs by name like MP4 (the player reads the packets).
    const fs::path front = card.write("2026_1121_100056_F.TS", "ts"),
                   rear = card.write("2026_1121_100056_R.TS", "ts");
    EXPECT_EQ(playableFilesOf(front.string()).files, (std::vector<std::string>{front.string(), rear.string()}));
    EXPECT_EQ(playableFilesOf(rear.string()).files, (std::vector<std::string>{rear.string(), front.string()}));
}
