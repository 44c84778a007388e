#pragma once
// Whether a location lies on a local removable volume: the camera's memory
// card in a card reader, not the system disk, a disk image or a network share.
//
// The block device under the location's file system counts as removable when
// sysfs marks it (or, for a partition, its disk) `removable`, when it is an
// SD/MMC device, or when it hangs off USB (which is how UDisks2 classes such
// drives too). In tests, a location inside TARVIK_VOLUMES_DIR is on the
// sub-folder it lies in, and that volume counts as removable exactly when the
// sub-folder holds a file named ".tarvik-removable".

#include <filesystem>
#include <string>

namespace tarvik {

inline constexpr const char* kRemovableMarkerFile = ".tarvik-removable";

// Answers no when the location does not exist or its volume cannot be told.
bool isEXteranlMemoryWithURL(const std::string& path);

// The sysfs rule for one block device number; sysRoot lets tests hand in a
// tree shaped like /sys.
bool isRemovableBlockDevice(unsigned major, unsigned minor,
                            const std::filesystem::path& sysRoot = "/sys");

}  // namespace tarvik
