#pragma once
// Which volume the viewer may erase. Formatting is the one thing the viewer
// does that cannot be undone, so the target must be a removable card mounted
// exactly at the path asked for, and never the volume the system or the
// user's home lives on. These rules read only the facts handed in, so they can
// be tried on any mount table.

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/device/volume_list.h"

namespace tarvik {

enum class FormatRefusal {
    None,
    NotMountRoot,   // the path is not where a volume is mounted
    SystemVolume,   // the volume holds "/" or the home folder
    NotRemovable,   // the block device is not removable (or is no block device)
    UnusableName,   // a platform default name such as "Untitled 1"
};

struct FormatEnvironment {
    std::vector<MountEntry> mounts;                              // mount order
    std::function<bool(unsigned major, unsigned minor)> isRemovable;  // the sysfs rule
    std::string home;                                            // the user's home folder

    // The running system: /proc/self/mountinfo, sysfs, $HOME.
    static FormatEnvironment current();
};

struct FormatTargetCheck {
    FormatRefusal refusal = FormatRefusal::None;
    MountEntry volume;  // the mount at the path, when there is one
};

// A path made absolute, with symbolic links, "." and ".." resolved and no
// trailing separator, so that mount points compare as strings.
std::string normalizedVolumePath(const std::string& path);

// The topmost mount whose mount point is exactly `path` (normalised).
std::optional<MountEntry> mountAt(const std::string& path, const std::vector<MountEntry>& mounts);
// The topmost mount whose mount point is the longest whole-component prefix of `path`.
std::optional<MountEntry> mountHolding(const std::string& path, const std::vector<MountEntry>& mounts);

// The mount, system and removable rules, in that order; the name is judged
// separately because its source (the file system's label) lies outside the core.
FormatTargetCheck checkFormatTarget(const std::string& path, const FormatEnvironment& env);

// False for names that begin with "Untitled".
bool isUsableVolumeName(std::string_view name);

}  // namespace tarvik
