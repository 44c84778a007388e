// Containers made by hand: what a damaged or hostile file looks like.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "core/library/trips/clip_container.h"

using namespace tarvik;

namespace {

std::string be32(std::uint32_t v) { return {char(v >> 24), char(v >> 16), char(v >> 8), char(v)}; }
std::string box(const char* type, const std::string& body) { return be32(std::uint32_t(8 + body.size())) + type + body; }

ContainerInfo inspect(const std::string& bytes, const char* ext = ".mp4") {
    const auto path = std::filesystem::temp_directory_path() / ("tarvik-container-" + std::to_string(::getpid()) + ext);
    std::ofstream(path, std::ios::binary) << bytes;
    const ContainerInfo info = inspectClipContainer(path.string());
    std::filesystem::remove(path);
    return info;
}

}  // namespace

TEST(ClipContainer, HeadersDecideWithoutDecoding) {
    // mvhd version 0: timescale 1000, duration 61500.
    std::string mvhd(12, '\0');
    mvhd += be32(1000) + be32(61500) + std::string(80, '\0');
    const std::string ftyp = box("ftyp", "isom" + be32(0));
    const ContainerInfo good = inspect(ftyp + box("mdat", std::string(100, 'x')) + box("moov", box("mvhd", mvhd)));
    EXPECT_EQ(good.state, ContainerState::Playable);
    EXPECT_DOUBLE_EQ(good.seconds, 61.5);

    EXPECT_EQ(inspect(ftyp + box("mdat", std::string(100, 'x'))).state, ContainerState::NoIndex);
    // Telemetry text after the index, as tail-text cameras write it: still playable.
    const std::string withTail = ftyp + box("moov", box("mvhd", mvhd)) + box("mdat", "x") + "QZRVT7 gsensor 1,2,3";
    EXPECT_EQ(inspect(withTail).state, ContainerState::Playable);
    EXPECT_EQ(inspect(withTail.substr(0, withTail.size() - 2)).seconds, 61.5);
    // A box claiming more than the file holds, and one too small to be a box.
    EXPECT_EQ(inspect(ftyp + be32(0x7fffffff) + "mdat" + "short").state, ContainerState::Truncated);
    EXPECT_EQ(inspect(ftyp + be32(3) + "mdat").state, ContainerState::Truncated);
    // moov full of empty boxes: bounded, and no length.
    std::string many;
    for (int i = 0; i < 10000; ++i) many += box("free", "");
    const ContainerInfo junk = inspect(ftyp + box("moov", many));
    EXPECT_EQ(junk.state, ContainerState::Playable);
    EXPECT_EQ(junk.seconds, 0);

    EXPECT_EQ(inspect("").state, ContainerState::ZeroBytes);
    EXPECT_EQ(inspect("not a video at all").state, ContainerState::Unreadable);
    EXPECT_EQ(inspectClipContainer("/no/such/clip.mp4").state, ContainerState::Unreadable);
    EXPECT_EQ(inspectClipContainer("/tmp").state, ContainerState::Unreadable);
    // An AVI whose RIFF size runs past the end, and one never finished (size 0, no index).
    EXPECT_EQ(inspect(std::string("RIFF\xff\xff\0\0AVI LIST", 16), ".avi").state, ContainerState::Truncated);
    EXPECT_EQ(inspect(std::string("RIFF\0\0\0\0AVI LIST\4\0\0\0movi", 24), ".avi").state, ContainerState::NoIndex);
    EXPECT_STREQ(containerStateText(ContainerState::NoIndex), "no index");
}
