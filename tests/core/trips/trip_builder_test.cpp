// Grouping rules on names and lengths alone.
#include <gtest/gtest.h>

#include <map>

#include "core/library/trips/trip_builder.h"

using namespace tarvik;

namespace {

std::vector<Trip> build(const std::map<std::string, double>& clips) {
    std::vector<std::string> paths;
    for (const auto& [p, s] : clips) paths.push_back("/card/" + p);
    return TripBuilder::build("/card", paths, [&](const std::string& p) { return clips.at(p.substr(6)); });
}

}  // namespace

TEST(TripBuilder, StartTimeFromName) {
    EXPECT_EQ(clipStartFromName("20261121_083000_F.mp4"), 1795249800);
    EXPECT_EQ(clipStartFromName("Rec_19700101_000001.avi"), 1);
    EXPECT_EQ(clipStartFromName("20240229_120000.avi").has_value(), true);
    for (const char* bad : {"20230229_120000.avi", "20261321_083000.mp4", "20261121_246000.mp4", "120261121_083000.mp4",
                            "2026112_083000.mp4", "clip.mp4", ""})
        EXPECT_FALSE(clipStartFromName(bad)) << bad;
    EXPECT_EQ(tripTimeText(1795249800), "2026-11-21 08:30:00");
    EXPECT_EQ(recordingFolderOf("/card", "/card/cont_rec/2026_11_20/x.avi"), "cont_rec");
    EXPECT_EQ(recordingFolderOf("/card/", "/card/x.avi"), "");
    EXPECT_EQ(recordingFolderOf("/card", "/card/misc/x.avi"), "");
}

TEST(TripBuilder, PairsCountOnceAndGapsSplit) {
    const auto trips = build({
        // One drive: pairs 60 s apart (rear a little longer), then a lone clip 3 s late.
        {"cont_rec/20261121_100000_R.mp4", 60.4},
        {"cont_rec/20261121_100000_F.mp4", 60.0},
        {"cont_rec/20261121_100100_F.mp4", 60.0},
        {"cont_rec/20261121_100100_R.mp4", 60.0},
        {"cont_rec/20261121_100203.mp4", 30.0},
        // Ten seconds late: a new trip.
        {"cont_rec/20261121_100243.mp4", 30.0},
        // Another recording type at the same time is a trip of its own.
        {"evt_rec/20261121_100100_F.mp4", 20.0},
        // Unknown length: cannot be joined to what follows.
        {"cont_rec/20261121_110000.mp4", 0.0},
        {"cont_rec/20261121_110000x.mp4", 30.0},
        {"no_time.mp4", 30.0},
    });
    ASSERT_EQ(trips.size(), 5u);
    const Trip& a = trips[0];
    EXPECT_EQ(a.folder, "cont_rec");
    ASSERT_EQ(a.clips.size(), 3u);
    EXPECT_EQ(a.clips[0].path, "/card/cont_rec/20261121_100000_F.mp4");
    EXPECT_EQ(a.clips[0].partner, "/card/cont_rec/20261121_100000_R.mp4");
    EXPECT_DOUBLE_EQ(a.clips[0].seconds, 60.4);
    EXPECT_EQ(a.seconds(), 153);
    EXPECT_EQ(a.indexOf("/card/cont_rec/20261121_100100_R.mp4"), 1);
    EXPECT_EQ(a.indexOf("/card/cont_rec/nothing.mp4"), -1);
    EXPECT_EQ(trips[1].clips.size(), 1u);
    EXPECT_EQ(trips[2].clips.size(), 1u);  // 11:00:00 of unknown length
    EXPECT_EQ(trips[3].clips.size(), 1u);
    EXPECT_EQ(trips[4].folder, "evt_rec");
}

// A trip goes on across a pause (or an overlap) of at most five seconds: the
// edge itself, both ways; a clip of unknown length ends its trip.
TEST(TripBuilder, FiveSecondsJoinSixSplit) {
    const auto trips = build({
        {"cont_rec/20261121_100000.mp4", 60.0},
        {"cont_rec/20261121_100105.mp4", 60.0},  // 5 s after the end: joined
        {"cont_rec/20261121_100211.mp4", 60.0},  // 6 s after: a new trip
        {"cont_rec/20261121_101000.mp4", 60.0},
        {"cont_rec/20261121_101055.mp4", 60.0},  // starts 5 s before the end: joined
        {"cont_rec/20261121_101149.mp4", 60.0},  // 6 s before: a new trip
        {"cont_rec/20261121_102000.mp4", 0.0},   // unknown length: nothing joins it
        {"cont_rec/20261121_102003.mp4", 60.0},
    });
    ASSERT_EQ(trips.size(), 6u);
    const std::vector<std::size_t> sizes = {2, 1, 2, 1, 1, 1};
    for (std::size_t i = 0; i < trips.size(); ++i) EXPECT_EQ(trips[i].clips.size(), sizes[i]) << i;
}
