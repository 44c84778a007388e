#include "core/device/format_target.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "core/device/external_memory.h"

namespace tarvik {

namespace fs = std::filesystem;

namespace {

bool sameDevice(const MountEntry& a, const MountEntry& b) { return a.major == b.major && a.minor == b.minor; }

// "/media/a" holds "/media/a" and "/media/a/b", never "/media/ab".
bool holds(const std::string& mountPoint, const std::string& path) {
    if (mountPoint == "/") return !path.empty() && path[0] == '/';
    return path.compare(0, mountPoint.size(), mountPoint) == 0 &&
           (path.size() == mountPoint.size() || path[mountPoint.size()] == '/');
}

}  // namespace

FormatEnvironment FormatEnvironment::current() {
    FormatEnvironment env;
    env.mounts = readMountTable();
    env.isRemovable = [](unsigned major, unsigned minor) { return isRemovableBlockDevice(major, minor); };
    if (const char* h = std::getenv("HOME"); h && *h) env.home = h;
    return env;
}

std::string normalizedVolumePath(const std::string& path) {
    if (path.empty()) return {};
    std::error_code ec;
    fs::path p = fs::weakly_canonical(fs::absolute(path, ec), ec);
    if (ec) p = fs::path(path);
    std::string s = p.lexically_normal().string();
    while (s.size() > 1 && s.back() == '/') s.pop_back();
    return s;
}

std::optional<MountEntry> mountAt(const std::string& path, const std::vector<MountEntry>& mounts) {
    const std::string p = normalizedVolumePath(path);
    std::optional<MountEntry> found;
    for (const auto& m : mounts)
        if (normalizedVolumePath(m.mountPoint) == p) found = m;  // later mounts cover earlier ones
    return found;
}

std::optional<MountEntry> mountHolding(const std::string& path, const std::vector<MountEntry>& mounts) {
    const std::string p = normalizedVolumePath(path);
    std::optional<MountEntry> found;
    std::size_t best = 0;
    for (const auto& m : mounts) {
        const std::string mp = normalizedVolumePath(m.mountPoint);
        if (holds(mp, p) && (!found || mp.size() >= best)) {
            found = m;
            best = mp.size();
        }
    }
    return found;
}

FormatTargetCheck checkFormatTarget(const std::string& path, const FormatEnvironment& env) {
    FormatTargetCheck out;
    auto volume = mountAt(path, env.mounts);
    if (!volume) {
        out.refusal = FormatRefusal::NotMountRoot;
        return out;
    }
    out.volume = *volume;
    // The same device may be mounted twice (a bind mount of the root file
    // system under /media, say), so compare devices, not mount points.
    auto root = mountHolding("/", env.mounts);
    auto home = env.home.empty() ? std::nullopt : mountHolding(env.home, env.mounts);
    if (normalizedVolumePath(volume->mountPoint) == "/" || (root && sameDevice(*root, *volume)) ||
        (home && sameDevice(*home, *volume))) {
        out.refusal = FormatRefusal::SystemVolume;
        return out;
    }
    if (volume->major == 0 || isPseudoOrNetworkFileSystem(volume->fsType) || !env.isRemovable ||
        !env.isRemovable(volume->major, volume->minor)) {
        out.refusal = FormatRefusal::NotRemovable;
        return out;
    }
    return out;
}

bool isUsableVolumeName(std::string_view name) { return name.rfind("Untitled", 0) != 0; }

}  // namespace tarvik
