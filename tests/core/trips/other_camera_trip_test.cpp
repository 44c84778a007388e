// A card of other cameras: their own folders and names, A/B and F/R letters,
// a clip dated only by its container, each with its family's telemetry.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "cardgen/card_plan.h"
#include "core/library/clip_catalogue.h"
#include "core/library/trips/clip_container.h"
#include "core/library/trips/trip_scanner.h"

using namespace tarvik;
namespace fs = std::filesystem;

TEST(OtherCameraTrips, OneDriveAcrossEveryFamily) {
    const fs::path root = fs::temp_directory_path() / ("tarvik-other-trips-" + std::to_string(::getpid()));
    std::string error;
    ASSERT_TRUE(cardgen::writeCard(cardgen::otherCameraCardPlan(6), root, &error)) << error;

    ClipCatalogue cat;
    cat.refreshVideoFileListWithURL(root.string());
    EXPECT_EQ(cat.allVideoFileList().size(), 11u);  // eight recordings, three with a rear clip

    const std::vector<Trip> trips = scanCardTrips(root.string(), true);
    ASSERT_EQ(trips.size(), 1u);
    const Trip& t = trips[0];
    EXPECT_EQ(tripTimeText(t.start), "2026-11-21 10:00:00");
    EXPECT_EQ(t.seconds(), 48);
    ASSERT_EQ(t.clips.size(), 8u);
    const char* fronts[] = {"2026_1121_100000_F.MP4", "2026_1121_100006_F.MP4", "20261121_100012_NF.mp4",
                            "20261121100018A.MP4",    "GX011000.MP4",           "20261121_100030.mp4",
                            "20261121_100036.mp4",    "2026_1121_100042_F.TS"};
    const char* rears[] = {"2026_1121_100000_R.MP4", "", "20261121_100012_NR.mp4", "20261121100018B.MP4", "", "", "", ""};
    for (std::size_t i = 0; i < 8; ++i) {
        EXPECT_EQ(ClipCatalogue::fileName(t.clips[i].path), fronts[i]);
        EXPECT_EQ(t.clips[i].partner.empty() ? "" : std::string(ClipCatalogue::fileName(t.clips[i].partner)), rears[i]);
    }
    // Every clip's telemetry counts: the drive's first 48 s reach 54 km/h.
    EXPECT_TRUE(t.hasTelemetry);
    EXPECT_EQ(t.topSpeedKmh, 54u);
    EXPECT_GT(t.distanceMetres, 200.0);
    // The clip named without a time is dated by its container.
    EXPECT_EQ(containerCreationTime(t.clips[4].path), t.clips[3].start + 6);
    // A transport stream cut inside a packet (power lost) still runs to its cut.
    const ContainerInfo whole = inspectClipContainer(t.clips[7].path);
    fs::resize_file(t.clips[7].path, fs::file_size(t.clips[7].path) - 100);
    const ContainerInfo cut = inspectClipContainer(t.clips[7].path);
    EXPECT_EQ(cut.state, ContainerState::Playable);
    EXPECT_NEAR(cut.seconds, whole.seconds, 0.2);
    EXPECT_GT(whole.seconds, 5.5);
    std::error_code ec;
    fs::remove_all(root, ec);
}
