#include "core/library/clip_catalogue.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/library/recording_time.h"
#include "core/telemetry/mp4_clip_path.h"

namespace tarvik {

namespace {

// Nesting below a recording folder that a camera could plausibly write. Bind
// mounts can make a tree look infinite; this and the ancestor check below keep
// the scan finite whatever the mount table does.
constexpr int kMaxDepth = 64;

struct DirId {
    dev_t dev;
    ino_t ino;
};

char asciiLower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

bool contains(std::string_view s, std::string_view needle) { return s.find(needle) != std::string_view::npos; }

bool endsWith(std::string_view s, std::string_view tail) {
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

// Symbolic links are never followed, neither to files nor to folders. A real
// card (FAT/exFAT) holds none, and following them could list clips from
// outside the recording folders or walk in a circle. Directories are opened
// relative to their parent with O_NOFOLLOW, so a folder swapped for a link
// while scanning is refused as well.
void scanDir(int dirFd, const std::string& dirPath, bool recursive, bool otherCameras, int depth,
             std::vector<DirId>& ancestors, std::vector<std::string>& out) {
    DIR* d = fdopendir(dirFd);
    if (!d) {
        close(dirFd);
        return;
    }
    std::string childPath = dirPath;
    if (childPath.empty() || childPath.back() != '/') childPath.push_back('/');
    const std::size_t base = childPath.size();

    while (dirent* e = readdir(d)) {
        const char* name = e->d_name;
        if (name[0] == '.') continue;  // hidden, and "." / ".."
        unsigned char type = e->d_type;
        if (type == DT_UNKNOWN) {
            struct stat st;
            if (fstatat(dirfd(d), name, &st, AT_SYMLINK_NOFOLLOW) != 0) continue;
            type = S_ISREG(st.st_mode) ? DT_REG : S_ISDIR(st.st_mode) ? DT_DIR : DT_UNKNOWN;
        }
        if (type == DT_REG) {
            if (otherCameras ? ClipCatalogue::isOtherCameraClipFileName(name) : ClipCatalogue::isClipFileName(name)) {
                childPath.resize(base);
                childPath.append(name);
                out.push_back(childPath);
            }
        } else if (type == DT_DIR && recursive && depth < kMaxDepth) {
            int fd = openat(dirfd(d), name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
            if (fd < 0) continue;
            struct stat st;
            if (fstat(fd, &st) != 0 || std::any_of(ancestors.begin(), ancestors.end(), [&](const DirId& a) {
                    return a.dev == st.st_dev && a.ino == st.st_ino;
                })) {
                close(fd);
                continue;
            }
            childPath.resize(base);
            childPath.append(name);
            ancestors.push_back({st.st_dev, st.st_ino});
            scanDir(fd, childPath, true, otherCameras, depth + 1, ancestors, out);
            ancestors.pop_back();
        }
    }
    closedir(d);
}

void scanInto(const std::string& dir, bool recursive, bool followTop, bool otherCameras,
              std::vector<std::string>& out) {
    if (dir.empty()) return;
    int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | (followTop ? 0 : O_NOFOLLOW);
    int fd = open(dir.c_str(), flags);
    if (fd < 0) return;
    struct stat st;
    if (fstat(fd, &st) != 0) {
        close(fd);
        return;
    }
    std::vector<DirId> ancestors{{st.st_dev, st.st_ino}};
    scanDir(fd, dir, recursive, otherCameras, 0, ancestors, out);
}

}  // namespace

std::vector<std::string> ClipCatalogue::getVideoFilesInDirectoryUrl(const std::string& dir, bool enableRecursive) {
    std::vector<std::string> out;
    // The folder the caller names is taken as it is, even through a link: it is
    // what the user chose. Only what lies below it is held to the no-link rule.
    scanInto(dir, enableRecursive, true, false, out);
    return out;
}

bool ClipCatalogue::isClipFileName(std::string_view name) {
    std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0) return false;
    std::string_view ext = name.substr(dot + 1);
    if (ext.size() != 3) return false;
    char e[3] = {asciiLower(ext[0]), asciiLower(ext[1]), asciiLower(ext[2])};
    std::string_view l(e, 3);
    return l == "avi" || l == "mp4" || l == "mov";
}

bool ClipCatalogue::isOtherCameraClipFileName(std::string_view name) {
    if (isClipFileName(name)) return true;
    const std::size_t dot = name.rfind('.');
    return dot != std::string_view::npos && dot > 0 && name.size() - dot == 3 &&
           asciiLower(name[dot + 1]) == 't' && asciiLower(name[dot + 2]) == 's';
}

bool ClipCatalogue::passesFilter(std::string_view path, unsigned idx) {
    // A plain substring test on the whole path, not a test of the parent
    // folder: a folder name anywhere in the path counts.
    switch (idx) {
        case kClipFilterAlways: return contains(path, "cont_rec");
        case kClipFilterMotion: return contains(path, "motion_rec") || contains(path, "motion_timelapse_rec");
        case kClipFilterEvent: return contains(path, "evt_rec") || contains(path, "parking_rec");
        case kClipFilterManual: return contains(path, "manual_rec") || contains(path, "option_rec");
        default: return true;
    }
}

std::string_view ClipCatalogue::fileName(std::string_view path) {
    while (path.size() > 1 && path.back() == '/') path.remove_suffix(1);
    std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

bool ClipCatalogue::videoFileLessThan(std::string_view a, std::string_view b) {
    bool sa = contains(a, "Saved_Videos"), sb = contains(b, "Saved_Videos");
    if (sa != sb) return sa;
    return fileName(a) < fileName(b);
}

ClipRowCategory ClipCatalogue::rowCategoryForPath(std::string_view path) {
    std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos) return ClipRowCategory::Normal;
    std::string_view parent = path.substr(0, slash);
    if (endsWith(parent, "/Saved_Videos") || parent == "Saved_Videos") return ClipRowCategory::Saved;
    if (endsWith(parent, "/option_rec") || parent == "option_rec") return ClipRowCategory::Option;
    return ClipRowCategory::Normal;
}

std::string ClipCatalogue::fileUrlString(std::string_view path) {
    // Characters a file URL keeps as they are; everything else, including every
    // byte of a multi-byte or invalid sequence, becomes %XX.
    static const std::string_view keep =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~!$&'()*+,;=:@/";
    std::string out = "file://";
    out.reserve(out.size() + path.size() + 16);
    for (char c : path) {
        if (keep.find(c) != std::string_view::npos && c != '\0') {
            out.push_back(c);
        } else {
            char buf[4];
            std::snprintf(buf, sizeof buf, "%%%02X", static_cast<unsigned char>(c));
            out.append(buf);
        }
    }
    return out;
}

// The pair rule swaps "F." and "R." over the whole URL string. In that string
// an "F." can also be the last hex digit of an escape ("%AF." for a byte 0xAF
// before a dot), which is not a camera letter at all. Working on the path
// bytes gives the same answer as the URL string for every literal "F."/"R."
// (neither letter nor the dot is ever escaped) while leaving escapes alone;
// equal paths have equal URL strings, so comparing paths is comparing URLs.
std::string ClipCatalogue::partnerPath(std::string_view path) {
    auto swapAll = [&](char from, char to) {
        std::string s(path);
        for (std::size_t i = s.find(std::string{from, '.'}); i != std::string::npos;
             i = s.find(std::string{from, '.'}, i + 2)) {
            s[i] = to;
        }
        return s;
    };
    if (contains(path, "F.")) return swapAll('F', 'R');
    if (contains(path, "R.")) return swapAll('R', 'F');
    return {};
}

std::string ClipCatalogue::cameraPartnerPath(std::string_view path) {
    std::string p = partnerPath(path);
    if (!p.empty()) return p;
    const std::string_view name = fileName(path);
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot < 2 || !recordingMomentFromName(name)) return {};
    const char letter = name[dot - 1], before = name[dot - 2];
    if ((letter != 'A' && letter != 'B') || !(before == '_' || (before >= '0' && before <= '9'))) return {};
    p = std::string(path);
    p[path.size() - name.size() + dot - 1] = letter == 'A' ? 'B' : 'A';
    return p;
}

bool ClipCatalogue::isFrontOfPair(std::string_view path) {
    const std::string_view name = fileName(path);
    if (contains(name, "F.")) return true;
    if (contains(name, "R.")) return false;
    const std::size_t dot = name.rfind('.');
    return dot != std::string_view::npos && dot > 0 && name[dot - 1] == 'A';
}

void ClipCatalogue::refreshVideoFileListWithURL(const std::string& dir) {
    root_ = dir;
    refreshVideoFileList();
}

void ClipCatalogue::refreshVideoFileList() {
    all_.clear();
    if (!root_.empty()) {
        std::string folder = root_;
        if (folder.back() != '/') folder.push_back('/');
        const std::size_t base = folder.size();
        bool ownLayout = false;
        for (std::string_view name : kRecordingFolders) {
            folder.resize(base);
            folder.append(name);
            struct stat st;
            ownLayout = ownLayout || (lstat(folder.c_str(), &st) == 0 && S_ISDIR(st.st_mode));
        }
        // A card of other cameras (or any folder the user chose) keeps its
        // clips in folders of its own naming: all of them are looked through.
        scanInto(root_, !ownLayout, true, !ownLayout, all_);
        for (std::string_view name : kRecordingFolders) {
            if (!ownLayout) break;
            folder.resize(base);
            folder.append(name);
            // A recording folder that is a link would lead off the card.
            scanInto(folder, true, false, false, all_);
        }
    }
    applyVideoFileFilter();
}

void ClipCatalogue::clear() {
    root_.clear();
    all_.clear();
    applyVideoFileFilter();
}

void ClipCatalogue::setVideoFileFilterGroupA(unsigned idx) {
    if (idx <= kClipFilterManual) filterIndex_ = idx;
}

void ClipCatalogue::applyVideoFileFilter() {
    filtered_.clear();
    // Sort keys are computed once per clip rather than once per comparison:
    // a card of ten thousand clips makes ~130k comparisons.
    struct Key {
        bool saved;
        std::string_view name;
        const std::string* path;
    };
    std::vector<Key> keys;
    keys.reserve(all_.size());
    for (const std::string& p : all_) {
        if (passesFilter(p, filterIndex_)) keys.push_back({contains(p, "Saved_Videos"), fileName(p), &p});
    }
    std::stable_sort(keys.begin(), keys.end(), [](const Key& a, const Key& b) {
        if (a.saved != b.saved) return a.saved;
        return a.name < b.name;
    });
    filtered_.reserve(keys.size());
    for (const Key& k : keys) filtered_.push_back(*k.path);
}

std::string ClipCatalogue::pathAt(int row) const {
    if (row < 0 || row >= rowCount()) return {};
    return filtered_[static_cast<std::size_t>(row)];
}

std::string ClipCatalogue::rowFileName(int row) const { return std::string(fileName(pathAt(row))); }

ClipRowCategory ClipCatalogue::rowCategory(int row) const {
    if (row < 0 || row >= rowCount()) return ClipRowCategory::Normal;
    return rowCategoryForPath(filtered_[static_cast<std::size_t>(row)]);
}

std::string ClipCatalogue::takeBigVideoURL(int row) const {
    if (row < 0 || row >= rowCount()) return {};
    const std::string& cur = filtered_[static_cast<std::size_t>(row)];
    if (!videoSwitched_) return cur;

    std::string result = cur;
    if (!isPairedClipPath(cur)) return result;
    const std::string partner = cameraPartnerPath(cur);
    if (partner.empty()) return result;
    if (row > 0 && isPairedClipPath(filtered_[row - 1]) && partner == filtered_[row - 1]) result = filtered_[row - 1];
    // The following entry wins over the preceding one.
    if (row < rowCount() - 1 && isPairedClipPath(filtered_[row + 1]) && partner == filtered_[row + 1]) return filtered_[row + 1];
    return result;
}

bool ClipCatalogue::removeFile(int row) {
    if (row < 0 || row >= rowCount()) return false;
    const std::string victim = filtered_[static_cast<std::size_t>(row)];
    if (::unlink(victim.c_str()) != 0) return false;
    std::erase(filtered_, victim);
    std::erase(all_, victim);
    return true;
}

}  // namespace tarvik
