#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "../settings/temp_card.h"
#include "core/device/external_memory.h"
#include "core/device/volume_list.h"

using namespace tarvik;
using test::TempCard;
namespace fs = std::filesystem;

namespace {

// A block device in a tree shaped like /sys: devices/<chain>/<disk>[/<part>]
// with dev/block/<maj:min> linking to it.
void addDevice(const fs::path& sys, const std::string& majMin, const std::string& chain, const std::string& disk,
               const std::string& part, const char* removable) {
    fs::path d = sys / "devices" / chain / "block" / disk;
    fs::create_directories(d);
    std::ofstream(d / "removable") << removable;
    fs::path target = d;
    if (!part.empty()) {
        target = d / part;
        fs::create_directories(target);
        std::ofstream(target / "partition") << "1";
    }
    fs::create_directories(sys / "dev" / "block");
    fs::create_symlink(fs::relative(target, sys / "dev" / "block"), sys / "dev" / "block" / majMin);
}

}  // namespace

TEST(Volumes, MountInfoParsing) {
    const std::string text =
        "22 1 0:21 / /proc rw,nosuid shared:12 - proc proc rw\n"
        "29 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
        "31 29 179:1 / /media/u/CAM\\040CARD rw,relatime shared:30 master:2 - vfat /dev/mmcblk0p1 rw\n"
        "garbage line\n"
        "40 29 8:17 / /mnt/nosep rw 8:17 vfat /dev/sdb1 rw\n"
        "41 29 0:50 / /net rw - nfs4 srv:/x rw";  // no final line end
    std::string parsed;
    for (const MountEntry& m : parseMountInfo(text))
        parsed += std::to_string(m.major) + ":" + std::to_string(m.minor) + " " + m.mountPoint + " " + m.fsType + " " +
                  m.source + (isPseudoOrNetworkFileSystem(m.fsType) ? " (not a volume)" : "") + "\n";
    EXPECT_EQ(parsed, "0:21 /proc proc proc (not a volume)\n8:1 / ext4 /dev/sda1\n"
                      "179:1 /media/u/CAM CARD vfat /dev/mmcblk0p1\n0:50 /net nfs4 srv:/x (not a volume)\n");
    EXPECT_FALSE(isPseudoOrNetworkFileSystem("exfat"));
    EXPECT_TRUE(parseMountInfo("").empty());
    EXPECT_TRUE(parseMountInfo(std::string(100000, '-')).empty());

    // This machine's own table: in mount order, the root first, no pseudo
    // file systems, no duplicates.
    ::unsetenv(kVolumesDirEnv);
    auto table = readMountTable();
    ASSERT_FALSE(table.empty());
    auto volumes = mountedVolumePaths();
    ASSERT_FALSE(volumes.empty());
    EXPECT_EQ(std::find(volumes.begin(), volumes.end(), "/proc"), volumes.end());
    auto sorted = volumes;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(std::adjacent_find(sorted.begin(), sorted.end()), sorted.end());
}

TEST(Volumes, RemovableBlockDevicesBySysfs) {
    TempCard t;
    const fs::path sys = t.root();
    addDevice(sys, "8:17", "pci0000:00/0000:00:14.0/usb2/2-1/2-1:1.0/host6/target6:0:0/6:0:0:0", "sdb", "sdb1", "0");
    addDevice(sys, "179:1", "platform/fe320000.mmc/mmc_host/mmc1/mmc1:aaaa", "mmcblk1", "mmcblk1p1", "0");
    addDevice(sys, "8:0", "pci0000:00/0000:00:17.0/ata1/host0/target0:0:0/0:0:0:0", "sda", "", "0");
    addDevice(sys, "8:1", "pci0000:00/0000:00:17.0/ata1/host0/target0:0:0/0:0:0:0", "sdz", "sdz1", "0");
    addDevice(sys, "8:33", "pci0000:00/0000:00:1f.0/ata3/host2/target2:0:0/2:0:0:0", "sdc", "sdc1", "1");
    addDevice(sys, "7:0", "virtual", "loop0", "", "0");
    EXPECT_TRUE(isRemovableBlockDevice(8, 17, sys));   // partition of a USB reader
    EXPECT_TRUE(isRemovableBlockDevice(179, 1, sys));  // SD/MMC slot
    EXPECT_TRUE(isRemovableBlockDevice(8, 33, sys));   // flagged removable
    EXPECT_FALSE(isRemovableBlockDevice(8, 0, sys));   // internal disk
    EXPECT_FALSE(isRemovableBlockDevice(8, 1, sys));   // its partition
    EXPECT_FALSE(isRemovableBlockDevice(7, 0, sys));   // disk image
    EXPECT_FALSE(isRemovableBlockDevice(9, 9, sys));   // unknown device
    EXPECT_FALSE(isRemovableBlockDevice(8, 17, sys / "missing"));
}

TEST(Volumes, TestFolderStandsInForTheMountTable) {
    TempCard t;
    for (const char* f : {"b_card/.tarvik-removable", "b_card/DCIM/x.mp4", "a_disk/file", "loose_file"}) t.write(f, "");
    ::setenv(kVolumesDirEnv, t.path().c_str(), 1);
    auto volumes = mountedVolumePaths();
    EXPECT_EQ(volumes, (std::vector<std::string>{(t.root() / "a_disk").string(), (t.root() / "b_card").string()}));
    EXPECT_TRUE(isEXteranlMemoryWithURL((t.root() / "b_card").string()));
    EXPECT_TRUE(isEXteranlMemoryWithURL((t.root() / "b_card" / "DCIM" / "x.mp4").string()));
    EXPECT_FALSE(isEXteranlMemoryWithURL((t.root() / "b_card" / "missing").string()));
    EXPECT_FALSE(isEXteranlMemoryWithURL((t.root() / "a_disk").string()));
    EXPECT_FALSE(isEXteranlMemoryWithURL(t.path()));
    ::unsetenv(kVolumesDirEnv);
    EXPECT_FALSE(isEXteranlMemoryWithURL((t.root() / "b_card").string()));  // the marker means nothing outside tests
    EXPECT_FALSE(isEXteranlMemoryWithURL("/proc"));
    EXPECT_FALSE(isEXteranlMemoryWithURL(""));
    EXPECT_FALSE(isEXteranlMemoryWithURL("/no/such/volume"));
}
