#include <gtest/gtest.h>

#include "core/library/recording_time.h"

using tarvik::recordingTimeText;

TEST(RecordingTime, ReadsTheMomentRecordingBeganFromTheName) {
    EXPECT_EQ(recordingTimeText("20261121_083000_F.mp4"), "2026-11-21 08:30:00");
    EXPECT_EQ(recordingTimeText("Rec_20240229_235959.avi"), "2024-02-29 23:59:59");
    EXPECT_EQ(recordingTimeText("Saved_20261121_083000.mp4"), "2026-11-21 08:30:00");
    // The names other cameras write.
    EXPECT_EQ(recordingTimeText("2026_1121_083000_F.MP4"), "2026-11-21 08:30:00");
    EXPECT_EQ(recordingTimeText("20261121083000A.MP4"), "2026-11-21 08:30:00");
    EXPECT_EQ(recordingTimeText("NO20261121-083000_0012_R.MP4"), "");
}

TEST(RecordingTime, NamesWithoutARealMomentGiveNothing) {
    EXPECT_EQ(recordingTimeText("clip.mp4"), "");
    EXPECT_EQ(recordingTimeText("20261321_083000.mp4"), "");  // month 13
    EXPECT_EQ(recordingTimeText("20261121_246000.mp4"), "");  // hour 24
    EXPECT_EQ(recordingTimeText("202611210830001.mp4"), "");  // fifteen digits
    EXPECT_EQ(recordingTimeText("2026_1121_0830.mp4"), "");   // cut short
    EXPECT_EQ(recordingTimeText("120261121_083000.mp4"), ""); // part of a longer number
    EXPECT_EQ(recordingTimeText("20261121_0830"), "");        // cut short
}
