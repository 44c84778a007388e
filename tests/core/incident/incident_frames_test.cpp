// incident.mp4 read back frame by frame: a drive of two front/rear pairs
// whose frames carry their own numbers, exported across the seam between
// the pairs, must hold exactly the frames from the in point to the out point,
// both cameras on the same frame in every picture.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <vector>

#include "cardgen/numbered_frames.h"
#include "core/library/incident/incident_exporter.h"
#include "core/util/process_runner.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {

constexpr int kFps = 30;
constexpr int kClipSeconds = 6;
// The second pair counts on from here, so the seam shows in the numbers.
constexpr int kSecondPair = 512;
constexpr double kDriveStart = 1795255200;  // 2026-11-21 10:00:00, the first pair's name

struct NumberedDrive {
    fs::path root = fs::temp_directory_path() / ("tarvik-incident-frames-" + std::to_string(getpid()));
    NumberedDrive() {
        fs::remove_all(root);
        const fs::path rec = root / "cont_rec";
        fs::create_directories(rec);
        for (const auto& [name, first] : {std::pair{"20261121_100000", 0}, std::pair{"20261121_100006", kSecondPair}})
            for (const char* camera : {"_F.mp4", "_R.mp4"}) {
                EXPECT_TRUE(cardgen::makeNumberedClip(rec / (std::string(name) + camera), kFps, kClipSeconds, first));
            }
    }
    ~NumberedDrive() { fs::remove_all(root); }
};

NumberedDrive& drive() {
    static NumberedDrive d;
    return d;
}

struct Picture {
    int width = 0, height = 0;
    std::vector<std::vector<unsigned char>> frames;  // grey, row by row
};

Picture decode(const fs::path& video) {
    Picture p;
    const ProcessResult size = ProcessRunner::run(
        "ffprobe", {"-v", "error", "-select_streams", "v:0", "-show_entries", "stream=width,height", "-of", "csv=p=0",
                    video.string()});
    if (std::sscanf(size.output.c_str(), "%d,%d", &p.width, &p.height) != 2) return p;
    const ProcessResult raw = ProcessRunner::run(
        "ffmpeg", {"-v", "error", "-i", video.string(), "-f", "rawvideo", "-pix_fmt", "gray", "-"},
        std::chrono::minutes(2), 256u << 20);
    const std::size_t frame = std::size_t(p.width) * std::size_t(p.height);
    for (std::size_t at = 0; at + frame <= raw.output.size(); at += frame)
        p.frames.emplace_back(raw.output.begin() + std::ptrdiff_t(at), raw.output.begin() + std::ptrdiff_t(at + frame));
    return p;
}

double durationOf(const fs::path& video) {
    const ProcessResult r = ProcessRunner::run(
        "ffprobe", {"-v", "error", "-select_streams", "v:0", "-show_entries", "stream=duration", "-of", "csv=p=0",
                    video.string()});
    return std::atof(r.output.c_str());
}

// The frame numbers from `from` seconds into the drive up to (not with) `to`.
std::vector<int> expectedNumbers(double from, double to) {
    std::vector<int> out;
    for (int i = int(std::lround(from * kFps)); i < int(std::lround(to * kFps)); ++i)
        out.push_back(i < kClipSeconds * kFps ? i : kSecondPair + i - kClipSeconds * kFps);
    return out;
}

fs::path exportSpan(double from, double to, IncidentLayout layout, const std::string& name,
                    std::optional<double> stillAt = std::nullopt) {
    std::string why;
    const auto span = findIncidentSpan(drive().root.string(), kDriveStart + from, kDriveStart + to, true, &why);
    EXPECT_TRUE(span) << why;
    if (!span) return {};
    EXPECT_EQ(span->parts.size(), 2u);
    IncidentExport to_;
    to_.folder = (fs::temp_directory_path() / ("tarvik-incident-frames-out-" + std::to_string(getpid()) + name)).string();
    fs::remove_all(to_.folder);
    to_.video.layout = layout;
    to_.video.crf = 12;
    if (stillAt) to_.stillAt = kDriveStart + *stillAt;
    EXPECT_TRUE(IncidentExporter::write(*span, to_, {}, &why)) << why;
    return to_.folder;
}

}  // namespace

// In at 4.5 s (frame 135 of the first pair), out at 7.2 s (frame 36 of the second).
TEST(IncidentFrames, SideBySideAcrossTheSeamHoldsEveryFrameOnce) {
    const fs::path folder = exportSpan(4.5, 7.2, IncidentLayout::Side, "side");
    const Picture video = decode(folder / "incident.mp4");
    ASSERT_EQ(video.width, 640);
    const std::vector<int> want = expectedNumbers(4.5, 7.2);
    ASSERT_EQ(want.size(), 81u);
    std::vector<int> front, rear;
    for (const auto& f : video.frames) {
        const unsigned char* row = f.data() + std::size_t(video.height / 2) * std::size_t(video.width);
        front.push_back(cardgen::numberInRow(row, video.width / 2));
        rear.push_back(cardgen::numberInRow(row + video.width / 2, video.width / 2));
    }
    EXPECT_EQ(front, want);
    EXPECT_EQ(rear, want);
    EXPECT_NEAR(durationOf(folder / "incident.mp4"), 81.0 / kFps, 0.5 / kFps);
    // The still is the in point's frame of both cameras.
    const Picture still = decode(folder / "still.png");
    ASSERT_EQ(still.frames.size(), 1u);
    const unsigned char* row = still.frames[0].data() + std::size_t(still.height / 2) * std::size_t(still.width);
    EXPECT_EQ(cardgen::numberInRow(row, still.width / 2), want.front());
    EXPECT_EQ(cardgen::numberInRow(row + still.width / 2, still.width / 2), want.front());
    fs::remove_all(folder);
}

// The rear at a third of the width in the front's top right corner (16 pixels in).
TEST(IncidentFrames, PictureInPictureKeepsTheRearOnTheFrontsFrame) {
    // The still of a moment past the seam, in the second pair.
    const fs::path folder = exportSpan(5.0, 6.5, IncidentLayout::PictureInPicture, "pip", 6.2);
    const Picture video = decode(folder / "incident.mp4");
    ASSERT_EQ(video.width, 320);
    const int insetWidth = 106, insetHeight = 60, insetX = 320 - insetWidth - 16, insetY = 16;
    const std::vector<int> want = expectedNumbers(5.0, 6.5);
    std::vector<int> front, rear;
    for (const auto& f : video.frames) {
        // Below the inset the row is the front's alone.
        front.push_back(cardgen::numberInRow(f.data() + std::size_t(video.height * 3 / 4) * 320, 320));
        rear.push_back(cardgen::numberInRow(f.data() + std::size_t(insetY + insetHeight / 2) * 320 + insetX, insetWidth));
    }
    EXPECT_EQ(front, want);
    EXPECT_EQ(rear, want);
    EXPECT_NEAR(durationOf(folder / "incident.mp4"), double(want.size()) / kFps, 0.5 / kFps);
    const Picture still = decode(folder / "still.png");
    ASSERT_EQ(still.frames.size(), 1u);
    EXPECT_EQ(cardgen::numberInRow(still.frames[0].data() + std::size_t(still.height * 3 / 4) * 320, 320), kSecondPair + 6);
    EXPECT_EQ(cardgen::numberInRow(still.frames[0].data() + std::size_t(insetY + insetHeight / 2) * 320 + insetX,
                                   insetWidth),
              kSecondPair + 6);
    fs::remove_all(folder);
}

// The front clips' sound goes along, as long as the picture, across the seam.
// The front's sound goes along in every layout (a rear camera seldom has a
// microphone), cut at the same points as the pictures.
TEST(IncidentFrames, FrontSoundGoesAlongAcrossTheSeam) {
    for (IncidentLayout layout : {IncidentLayout::Front, IncidentLayout::Rear}) {
        const fs::path folder = exportSpan(4.5, 7.2, layout, std::string("sound-") + layoutName(layout));
        const ProcessResult r = ProcessRunner::run(
            "ffprobe", {"-v", "error", "-select_streams", "a:0", "-show_entries", "stream=codec_name,duration", "-of",
                        "csv=p=0", (folder / "incident.mp4").string()});
        char codec[16] = {};
        double seconds = 0;
        ASSERT_EQ(std::sscanf(r.output.c_str(), "%15[^,],%lf", codec, &seconds), 2) << layoutName(layout) << r.output;
        EXPECT_STREQ(codec, "aac");
        EXPECT_NEAR(seconds, 2.7, 0.05);
        fs::remove_all(folder);
    }
}
