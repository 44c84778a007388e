#include <gtest/gtest.h>

#include "core/library/recording_time.h"

using tarvik::recordingTimeText;

TEST(RecordingTime, ReadsTheMomentRecordingBeganFromTheName) {
    EXPECT_EQ(recordingTimeText("20261121_083000_F.mp4"), "2026-11-21 08:30:00");
    EXPECT_EQ(recordingTimeText("Rec_20240229_235959.avi"), "2024-02-29 23:59:59");
    EXPECT_EQ(recordingTimeText("Saved_20261121_083000.mp4"), "2026-11-21 08:30:00");
}

TEST(RecordingTime, NamesWithoutARealMomentGiveNothing) {
    EXPECT_EQ(recordingTimeText("clip.mp4"), "");
    EXPECT_EQ(recordingTimeText("20261321_083000.mp4"), "");  // month 13
    EXPECT_EQ(recordingTimeText("20261121_246000.mp4"), "");  // hour 24
    EXPECT_EQ(recordingTimeText("20261121083000.mp4"), "");   // no underscore
    EXPECT_EQ(recordingTimeText("120261121_083000.mp4"), ""); // part of a longer number
    EXPECT_EQ(recordingTimeText("20261121_0830"), "");        // cut short
}
