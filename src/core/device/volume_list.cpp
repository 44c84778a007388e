#include "core/device/volume_list.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>


namespace tarvik {

namespace {

// mountinfo escapes blanks, tabs, newlines and backslashes as \ooo.
std::string unescapeOctal(std::string_view s) {
    std::string out;
    out.reserve(s.size());
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '\\' && i + 3 < s.size() && s[i + 1] >= '0' && s[i + 1] <= '3' && s[i + 2] >= '0' && s[i + 2] <= '7' && s[i + 3] >= '0' &&
            s[i + 3] <= '7') {
            out.push_back(static_cast<char>((s[i + 1] - '0') * 64 + (s[i + 2] - '0') * 8 + (s[i + 3] - '0')));
            i += 3;
        } else {
            out.push_back(s[i]);
        }
    }
    return out;
}

std::vector<std::string_view> splitBlanks(std::string_view line) {
    std::vector<std::string_view> out;
    std::size_t i = 0;
    while (i < line.size()) {
        while (i < line.size() && line[i] == ' ') ++i;
        std::size_t j = i;
        while (j < line.size() && line[j] != ' ') ++j;
        if (j > i) out.push_back(line.substr(i, j - i));
        i = j;
    }
    return out;
}

bool parseDevice(std::string_view s, unsigned* major, unsigned* minor) {
    auto colon = s.find(':');
    if (colon == std::string_view::npos || colon == 0 || colon + 1 >= s.size()) return false;
    auto num = [](std::string_view t, unsigned* v) {
        unsigned long long x = 0;
        for (char c : t) {
            if (c < '0' || c > '9') return false;
            x = x * 10 + static_cast<unsigned>(c - '0');
            if (x > 0xffffffffull) return false;
        }
        *v = static_cast<unsigned>(x);
        return true;
    };
    return num(s.substr(0, colon), major) && num(s.substr(colon + 1), minor);
}

}  // namespace

std::vector<MountEntry> parseMountInfo(std::string_view text) {
    std::vector<MountEntry> out;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string_view::npos) end = text.size();
        auto f = splitBlanks(text.substr(start, end - start));
        start = end + 1;
        // id parent maj:min root mountpoint options [optional...] - fstype source superoptions
        auto sep = std::find(f.begin(), f.end(), std::string_view("-"));
        if (f.size() < 7 || sep == f.end() || sep - f.begin() < 6 || f.end() - sep < 3) continue;
        MountEntry e;
        if (!parseDevice(f[2], &e.major, &e.minor)) continue;
        e.mountPoint = unescapeOctal(f[4]);
        e.fsType = unescapeOctal(*(sep + 1));
        e.source = unescapeOctal(*(sep + 2));
        out.push_back(std::move(e));
    }
    return out;
}

std::vector<MountEntry> readMountTable() {
    // /proc files report a size of 0, so read in pieces, with a generous bound.
    std::string text;
    FILE* f = std::fopen("/proc/self/mountinfo", "re");
    if (!f) return {};
    text.clear();
    char buf[8192];
    std::size_t n;
    while ((n = std::fread(buf, 1, sizeof buf, f)) > 0 && text.size() < (16u << 20)) text.append(buf, n);
    std::fclose(f);
    return parseMountInfo(text);
}

bool isPseudoOrNetworkFileSystem(std::string_view t) {
    static constexpr std::array<std::string_view, 34> skip = {
        "proc",     "sysfs",     "devtmpfs", "devpts",     "cgroup",    "cgroup2",   "securityfs",
        "pstore",   "bpf",       "tracefs",  "debugfs",    "mqueue",    "hugetlbfs", "fusectl",
        "configfs", "binfmt_misc", "autofs", "efivarfs",   "rpc_pipefs", "nsfs",     "ramfs",
        "selinuxfs", "nfs",      "nfs4",     "cifs",       "smb3",      "smbfs",     "ceph",
        "9p",       "afs",       "fuse.sshfs", "fuse.gvfsd-fuse", "fuse.portal", "overlay"};
    return std::find(skip.begin(), skip.end(), t) != skip.end();
}

std::vector<std::string> mountedVolumePaths() {
    std::vector<std::string> out;
    if (const char* dir = std::getenv(kVolumesDirEnv); dir && *dir) {
        std::error_code ec;
        for (std::filesystem::directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec))
            if (it->is_directory(ec)) out.push_back(it->path().string());
        std::sort(out.begin(), out.end());
        return out;
    }
    for (auto& e : readMountTable()) {
        if (isPseudoOrNetworkFileSystem(e.fsType)) continue;
        if (std::find(out.begin(), out.end(), e.mountPoint) == out.end()) out.push_back(std::move(e.mountPoint));
    }
    return out;
}

}  // namespace tarvik
