// A trip goes on across a pause (or an overlap) of at most five seconds: the
// edge itself, both ways; a clip of unknown length ends its trip.
#include <gtest/gtest.h>

#include <map>

#include "core/library/trips/trip_builder.h"

using namespace tarvik;

TEST(TripGapEdges, FiveSecondsJoinSixSplit) {
    const std::map<std::string, double> clips = {
        {"cont_rec/20261121_100000.mp4", 60.0},
        {"cont_rec/20261121_100105.mp4", 60.0},  // 5 s after the end: joined
        {"cont_rec/20261121_100211.mp4", 60.0},  // 6 s after: a new trip
        {"cont_rec/20261121_101000.mp4", 60.0},
        {"cont_rec/20261121_101055.mp4", 60.0},  // starts 5 s before the end: joined
        {"cont_rec/20261121_101149.mp4", 60.0},  // 6 s before: a new trip
        {"cont_rec/20261121_102000.mp4", 0.0},   // unknown length: nothing joins it
        {"cont_rec/20261121_102003.mp4", 60.0},
    };
    std::vector<std::string> paths;
    for (const auto& [p, s] : clips) paths.push_back("/card/" + p);
    const auto trips =
        TripBuilder::build("/card", paths, [&](const std::string& p) { return clips.at(p.substr(6)); });
    ASSERT_EQ(trips.size(), 6u);
    const std::vector<std::size_t> sizes = {2, 1, 2, 1, 1, 1};
    for (std::size_t i = 0; i < trips.size(); ++i) EXPECT_EQ(trips[i].clips.size(), sizes[i]) << i;
}
