#include "core/library/check/write_leftovers.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>

#include "core/util/atomic_file.h"

namespace tarvik {

namespace {

// A card's folder of clips holds thousands of names; no folder is read further.
constexpr int kMaxNamesPerFolder = 100000;

bool isFolder(const std::string& path, const dirent* e) {
    if (e->d_type != DT_UNKNOWN) return e->d_type == DT_DIR;
    struct stat st {};
    return ::lstat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

void scan(const std::string& dir, bool descend, std::vector<std::string>& out) {
    DIR* d = ::opendir(dir.c_str());
    if (!d) return;
    std::vector<std::string> folders;
    int names = 0;
    while (const dirent* e = ::readdir(d)) {
        if (++names > kMaxNamesPerFolder) break;
        const std::string name = e->d_name;
        if (name == "." || name == "..") continue;
        const std::string path = dir + "/" + name;
        if (isAtomicWriteLeftover(name)) out.push_back(path);
        else if (descend && isFolder(path, e)) folders.push_back(path);
    }
    ::closedir(d);
    for (const std::string& f : folders) scan(f, false, out);
}

}  // namespace

std::vector<std::string> findWriteLeftovers(const std::string& root) {
    std::vector<std::string> out;
    scan(root, true, out);
    std::sort(out.begin(), out.end());
    return out;
}

}  // namespace tarvik
