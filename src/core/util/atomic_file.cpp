#include "core/util/atomic_file.h"

#include "core/util/regular_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string_view>
#include <vector>

namespace tarvik {

namespace {

constexpr std::string_view kTempInfix = ".tarvik-tmp-";

bool writeAll(int fd, const char* p, std::size_t n) {
    while (n > 0) {
        ssize_t w = ::write(fd, p, n);
        if (w < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        p += w;
        n -= static_cast<std::size_t>(w);
    }
    return true;
}

void removeStaleTemporaries(const std::string& dir, const std::string& base) {
    DIR* d = ::opendir(dir.c_str());
    if (!d) return;
    const std::string prefix = "." + base + std::string(kTempInfix);
    std::vector<std::string> stale;
    while (dirent* e = ::readdir(d)) {
        std::string_view name = e->d_name;
        if (name.substr(0, prefix.size()) == prefix) stale.emplace_back(name);
    }
    ::closedir(d);
    for (const auto& n : stale) ::unlink((dir + "/" + n).c_str());
}

}  // namespace

bool isAtomicWriteLeftover(const std::string& name) {
    return name.size() > 1 && name[0] == '.' && name.find(kTempInfix) != std::string::npos;
}

bool writeFileAtomically(const std::string& path, const void* data, std::size_t size) {
    auto slash = path.rfind('/');
    const std::string dir = slash == std::string::npos ? "." : (slash == 0 ? "/" : path.substr(0, slash));
    const std::string base = slash == std::string::npos ? path : path.substr(slash + 1);
    if (base.empty()) return false;
    removeStaleTemporaries(dir, base);

    std::string tmpl = dir + "/." + base + std::string(kTempInfix) + "XXXXXX";
    int fd = ::mkstemp(tmpl.data());
    if (fd < 0) return false;
    // mkstemp makes the file private; a settings file is an ordinary file.
    ::fchmod(fd, 0644);
    bool ok = writeAll(fd, static_cast<const char*>(data), size) && ::fsync(fd) == 0;
    ok = (::close(fd) == 0) && ok;
    if (!ok || ::rename(tmpl.c_str(), path.c_str()) != 0) {
        ::unlink(tmpl.c_str());
        return false;
    }
    // Make the rename itself durable before the user pulls the card.
    int dfd = ::open(dir.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dfd >= 0) {
        ::fsync(dfd);
        ::close(dfd);
    }
    return true;
}

bool readFileHead(const std::string& path, std::size_t maxBytes, std::string* out, std::size_t* fileSize) {
    struct stat st {};
    const int fd = openRegularFile(path, &st);
    if (fd < 0) return false;
    if (fileSize) *fileSize = static_cast<std::size_t>(st.st_size);
    std::string buf;
    buf.resize(std::min<std::size_t>(maxBytes, static_cast<std::size_t>(st.st_size)));
    std::size_t got = 0;
    while (got < buf.size()) {
        ssize_t r = ::read(fd, buf.data() + got, buf.size() - got);
        if (r < 0 && errno == EINTR) continue;
        if (r < 0) {
            ::close(fd);
            return false;
        }
        if (r == 0) break;  // the file shrank while we read it
        got += static_cast<std::size_t>(r);
    }
    ::close(fd);
    buf.resize(got);
    *out = std::move(buf);
    return true;
}

}  // namespace tarvik
