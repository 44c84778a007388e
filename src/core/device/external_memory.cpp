#include "core/device/external_memory.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <cstdlib>
#include <fstream>
#include <string_view>
#include <system_error>

#include "core/device/volume_list.h"

namespace tarvik {

namespace fs = std::filesystem;

namespace {

bool fileSaysOne(const fs::path& p) {
    std::ifstream in(p);
    char c = 0;
    return in.get(c) && c == '1';
}

// In test mode: the sub-folder of the volumes folder that holds the path.
bool volumeOfTestPath(const fs::path& volumesDir, const fs::path& path, fs::path* volume) {
    std::error_code ec;
    fs::path base = fs::weakly_canonical(volumesDir, ec);
    if (ec) return false;
    fs::path p = fs::weakly_canonical(path, ec);
    if (ec) return false;
    auto b = base.begin();
    auto q = p.begin();
    for (; b != base.end(); ++b, ++q)
        if (q == p.end() || *q != *b) return false;
    if (q == p.end()) return false;  // the volumes folder itself is no volume
    *volume = base / *q;
    return true;
}

}  // namespace

bool isRemovableBlockDevice(unsigned major, unsigned minor, const fs::path& sysRoot) {
    std::error_code ec;
    fs::path link = sysRoot / "dev" / "block" / (std::to_string(major) + ":" + std::to_string(minor));
    fs::path dev = fs::canonical(link, ec);
    if (ec) return false;
    fs::path disk = fs::exists(dev / "partition", ec) ? dev.parent_path() : dev;
    if (fileSaysOne(disk / "removable")) return true;
    if (disk.filename().string().rfind("mmcblk", 0) == 0) return true;
    for (const auto& part : disk)
        if (part.string().rfind("usb", 0) == 0 || part.string().rfind("mmc", 0) == 0) return true;
    return false;
}

bool isEXteranlMemoryWithURL(const std::string& path) {
    if (path.empty()) return false;
    std::error_code ec;
    if (const char* dir = std::getenv(kVolumesDirEnv); dir && *dir) {
        fs::path volume;
        if (volumeOfTestPath(dir, path, &volume))
            return fs::exists(path, ec) && fs::is_regular_file(volume / kRemovableMarkerFile, ec);
    }
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0) return false;
    unsigned maj = ::major(st.st_dev), min = ::minor(st.st_dev);
    if (maj == 0) return false;  // no block device under it: tmpfs, network, fuse
    // A block device can still be reached over the network (nbd, iscsi behind
    // a share's fuse layer): ask the mount table what file system it is.
    for (const auto& e : readMountTable())
        if (e.major == maj && e.minor == min && isPseudoOrNetworkFileSystem(e.fsType)) return false;
    return isRemovableBlockDevice(maj, min);
}

}  // namespace tarvik
