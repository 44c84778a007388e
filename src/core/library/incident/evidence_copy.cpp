#include "core/library/incident/evidence_copy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <vector>

#include "core/util/sha256.h"

namespace tarvik {

namespace {

constexpr std::size_t kChunk = 1 << 20;

bool writeAll(int fd, const char* p, std::size_t n) {
    while (n > 0) {
        const ssize_t w = ::write(fd, p, n);
        if (w < 0 && errno == EINTR) continue;
        if (w <= 0) return false;
        p += w, n -= std::size_t(w);
    }
    return true;
}

// Reads a regular file (a FIFO in a clip's place must not hold the export)
// chunk by chunk into `sink`; false on anything else.
template <class Sink>
bool readRegularFile(const std::string& path, Sink sink, std::string* why) {
    const int in = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat st {};
    if (in < 0 || ::fstat(in, &st) != 0 || !S_ISREG(st.st_mode)) {
        if (why) *why = path + ": " + (in < 0 ? std::strerror(errno) : "not a regular file");
        if (in >= 0) ::close(in);
        return false;
    }
    std::vector<char> buffer(kChunk);
    bool ok = true;
    for (;;) {
        const ssize_t r = ::read(in, buffer.data(), buffer.size());
        if (r < 0 && errno == EINTR) continue;
        if (r < 0) {
            if (why) *why = path + ": " + std::strerror(errno);
            ok = false;
            break;
        }
        if (r == 0) break;
        if (!sink(buffer.data(), std::size_t(r))) {
            ok = false;
            break;
        }
    }
    ::close(in);
    return ok;
}

}  // namespace

std::string copyWithSha256(const std::string& from, const std::string& to, std::string* why) {
    const int out = ::open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (out < 0) {
        if (why) *why = to + ": " + std::strerror(errno);
        return {};
    }
    Sha256 hash;
    bool ok = readRegularFile(
        from,
        [&](const char* p, std::size_t n) {
            hash.update(p, n);
            if (writeAll(out, p, n)) return true;
            if (why) *why = to + ": " + std::strerror(errno);
            return false;
        },
        why);
    if (ok && ::fsync(out) != 0) {
        if (why) *why = to + ": " + std::strerror(errno);
        ok = false;
    }
    if (::close(out) != 0 && ok) {
        if (why) *why = to + ": " + std::strerror(errno);
        ok = false;
    }
    if (!ok) {
        ::unlink(to.c_str());
        return {};
    }
    return hash.hexDigest();
}

std::string sha256OfFile(const std::string& path) {
    Sha256 hash;
    if (!readRegularFile(path, [&](const char* p, std::size_t n) { return hash.update(p, n), true; }, nullptr))
        return {};
    return hash.hexDigest();
}

}  // namespace tarvik
