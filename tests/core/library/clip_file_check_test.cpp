// Why a clip cannot be shown, read from the file alone.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#include "core/library/clip_file_check.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {

std::string be32(std::uint32_t v) {
    return {char(v >> 24), char(v >> 16), char(v >> 8), char(v)};
}
std::string le32(std::uint32_t v) {
    return {char(v), char(v >> 8), char(v >> 16), char(v >> 24)};
}

struct ClipFileCheck : ::testing::Test {
    fs::path dir = fs::temp_directory_path() / ("tarvik-clip-check-" + std::to_string(::getpid()));
    void SetUp() override { fs::create_directories(dir); }
    void TearDown() override { fs::remove_all(dir); }
    std::string write(const std::string& name, const std::string& bytes) {
        const fs::path p = dir / name;
        std::ofstream(p, std::ios::binary) << bytes;
        return p.string();
    }
};

}  // namespace

TEST_F(ClipFileCheck, MissingUnreadableAndEmptyAreToldApart) {
    EXPECT_EQ(checkClipFile((dir / "gone.mp4").string()), ClipFileState::Missing);
    EXPECT_EQ(checkClipFile(dir.string()), ClipFileState::Unreadable);
    EXPECT_EQ(checkClipFile(write("empty.avi", "")), ClipFileState::Empty);
    // A name that is not UTF-8 is just bytes.
    EXPECT_EQ(checkClipFile(write("\xff\xfe.avi", "")), ClipFileState::Empty);
}

TEST_F(ClipFileCheck, ContainerSizesRunningPastTheEndMeanCutShort) {
    const std::string ftyp = be32(16) + "ftypisom" + be32(0);
    const std::string moov = be32(16) + "moov" + std::string(8, '\0');
    EXPECT_EQ(checkClipFile(write("whole.mp4", ftyp + moov)), ClipFileState::Ok);
    EXPECT_EQ(checkClipFile(write("cut.mp4", ftyp + be32(4000) + "mdat" + std::string(100, 'x'))),
              ClipFileState::Truncated);
    // A 64-bit box size past the end; a size-0 box runs to the end by definition.
    EXPECT_EQ(checkClipFile(write("cut64.mp4", ftyp + be32(1) + "mdat" + std::string(4, '\0') + be32(9000))),
              ClipFileState::Truncated);
    EXPECT_EQ(checkClipFile(write("open.mp4", ftyp + be32(0) + "mdat" + "xyz")), ClipFileState::Ok);

    const std::string avi = "RIFF" + le32(4 + 100) + "AVI " + std::string(100, '\0');
    EXPECT_EQ(checkClipFile(write("whole.avi", avi)), ClipFileState::Ok);
    EXPECT_EQ(checkClipFile(write("cut.avi", avi.substr(0, 60))), ClipFileState::Truncated);
    // Garbage is a format question, not a cut, whatever its first bytes say.
    EXPECT_EQ(checkClipFile(write("noise.mp4", std::string(5000, '\x07'))), ClipFileState::Ok);
    EXPECT_EQ(checkClipFile(write("tiny.mp4", "abc")), ClipFileState::Ok);
}
