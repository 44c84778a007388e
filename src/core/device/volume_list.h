#pragma once
// The mounted volumes a card may be on, in mount order.
//
// Normally the mount points of /proc/self/mountinfo, leaving out kernel
// pseudo file systems and network shares (looking into those can hang or
// trigger automounts). When the environment variable TARVIK_VOLUMES_DIR names
// a folder, its sub-folders (sorted by name) are the volumes instead, so tests
// and demos can "mount" cards by creating folders.

#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

inline constexpr const char* kVolumesDirEnv = "TARVIK_VOLUMES_DIR";

struct MountEntry {
    unsigned major = 0;
    unsigned minor = 0;
    std::string mountPoint;  // octal escapes (\040 ...) decoded
    std::string fsType;
    std::string source;
};

// Parses the text of a mountinfo file; malformed lines are skipped.
std::vector<MountEntry> parseMountInfo(std::string_view text);
// The current process's mount table; empty when it cannot be read.
std::vector<MountEntry> readMountTable();
// True for file systems that never hold a camera card (proc, sysfs, cgroup,
// autofs, network shares ...).
bool isPseudoOrNetworkFileSystem(std::string_view fsType);
// The volume list described above; each mount point once.
std::vector<std::string> mountedVolumePaths();

}  // namespace tarvik
