#include <gtest/gtest.h>

#include "core/device/format_target.h"

using namespace tarvik;

namespace {

// A desktop with the system on sda, home on sdb, and a card on mmcblk0p1
// mounted under /media with a blank in its label.
const char* kMountInfo =
    "22 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
    "23 22 0:5 / /proc rw - proc proc rw\n"
    "24 22 8:17 / /home rw - ext4 /dev/sdb1 rw\n"
    "30 22 179:1 / /media/u/CAM\\040CARD rw,nosuid - vfat /dev/mmcblk0p1 rw\n"
    "31 22 8:1 /srv /media/u/rootbind rw - ext4 /dev/sda1 rw\n"
    "32 22 8:33 / /media/u/HDD rw - ext4 /dev/sdc1 rw\n"
    "33 22 0:40 / /media/u/share rw - cifs //nas/share rw\n";

FormatEnvironment env() {
    FormatEnvironment e;
    e.mounts = parseMountInfo(kMountInfo);
    // Everything counts as removable except sdc: only the other rules can refuse.
    e.isRemovable = [](unsigned major, unsigned minor) { return !(major == 8 && minor == 33); };
    e.home = "/home/u";
    return e;
}

}  // namespace

TEST(FormatTarget, OnlyTheRootOfARemovableNonSystemMountPasses) {
    auto e = env();
    auto ok = checkFormatTarget("/media/u/CAM CARD/", e);  // trailing separator tolerated
    EXPECT_EQ(ok.refusal, FormatRefusal::None);
    EXPECT_EQ(ok.volume.source, "/dev/mmcblk0p1");
    EXPECT_EQ(ok.volume.fsType, "vfat");
    using R = FormatRefusal;
    for (auto [path, refusal] : std::initializer_list<std::pair<const char*, R>>{
             {"/media/u/CAM CARD/DCIM", R::NotMountRoot}, {"/media/u/CAM CARD/DCIM/..", R::None},
             {"/media/u/CAM", R::NotMountRoot}, {"", R::NotMountRoot}, {"/", R::SystemVolume},
             {"/home", R::SystemVolume},
             {"/media/u/rootbind", R::SystemVolume},  // the root device through another mount point
             {"/media/u/HDD", R::NotRemovable}, {"/media/u/share", R::NotRemovable}, {"/proc", R::NotRemovable}})
        EXPECT_EQ(checkFormatTarget(path, e).refusal, refusal) << path;
}

TEST(FormatTarget, HomeOnTheCardOrAMissingSysfsRuleRefuses) {
    auto e = env();
    e.home = "/media/u/CAM CARD/me";
    EXPECT_EQ(checkFormatTarget("/media/u/CAM CARD", e).refusal, FormatRefusal::SystemVolume);
    e = env();
    e.isRemovable = nullptr;
    EXPECT_EQ(checkFormatTarget("/media/u/CAM CARD", e).refusal, FormatRefusal::NotRemovable);
    // A card mounted over an earlier mount at the same place is the one judged.
    e = env();
    e.mounts.push_back(parseMountInfo("40 22 8:33 / /media/u/CAM\\040CARD rw - ext4 /dev/sdc1 rw\n").front());
    EXPECT_EQ(checkFormatTarget("/media/u/CAM CARD", e).refusal, FormatRefusal::NotRemovable);
}

TEST(FormatTarget, MountLookupsMatchWholeComponents) {
    auto m = parseMountInfo(kMountInfo);
    EXPECT_EQ(mountHolding("/media/u/CAM CARD/DCIM/a.mp4", m)->source, "/dev/mmcblk0p1");
    EXPECT_EQ(mountHolding("/media/u/CAM CARDS", m)->source, "/dev/sda1");
    EXPECT_EQ(mountHolding("/home/u", m)->source, "/dev/sdb1");
    EXPECT_FALSE(mountHolding("relative", {}).has_value());
    EXPECT_FALSE(mountAt("/media/u", m).has_value());
}

TEST(FormatTarget, PlatformDefaultNamesAreRefused) {
    for (auto [name, usable] : {std::pair{"Untitled", false}, {"Untitled 1", false}, {"untitled", true},
                                {"CAM Untitled", true}, {"", true}})
        EXPECT_EQ(isUsableVolumeName(name), usable) << name;
}

TEST(FormatTarget, RunningSystemRefusesItsOwnRootAndHome) {
    auto e = FormatEnvironment::current();
    EXPECT_NE(checkFormatTarget("/", e).refusal, FormatRefusal::None);
    if (!e.home.empty()) {
        EXPECT_NE(checkFormatTarget(e.home, e).refusal, FormatRefusal::None);
    }
}
