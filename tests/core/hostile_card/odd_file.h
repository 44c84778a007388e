#pragma once
// Things that are not regular files, put where a card keeps a file.

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <functional>
#include <string>

namespace tarvik::test {

enum class Special { Fifo, Socket, Folder };

inline const char* specialName(Special s) {
    return s == Special::Fifo ? "fifo" : s == Special::Socket ? "socket" : "folder";
}

// Replaces whatever is at `path` by a special file of the kind; false when it cannot be made.
inline bool makeSpecial(const std::filesystem::path& path, Special kind) {
    std::error_code ec;
    std::filesystem::remove_all(path, ec);
    std::filesystem::create_directories(path.parent_path(), ec);
    if (kind == Special::Fifo) return ::mkfifo(path.c_str(), 0644) == 0;
    if (kind == Special::Folder) return std::filesystem::create_directory(path, ec);
    sockaddr_un a{};
    a.sun_family = AF_UNIX;
    if (path.string().size() >= sizeof a.sun_path) return false;
    std::strcpy(a.sun_path, path.c_str());
    const int s = ::socket(AF_UNIX, SOCK_STREAM, 0);
    // The socket file stays after the descriptor is closed: nobody listens.
    const bool ok = s >= 0 && ::bind(s, reinterpret_cast<sockaddr*>(&a), sizeof a) == 0;
    if (s >= 0) ::close(s);
    return ok;
}

// Runs `work` in a child process; false when it has not finished within the
// limit (the child is then killed) or did not exit normally.
inline bool finishesWithin(std::chrono::milliseconds limit, const std::function<void()>& work) {
    const pid_t pid = ::fork();
    if (pid < 0) return false;
    if (pid == 0) {
        work();
        ::_exit(0);
    }
    const auto end = std::chrono::steady_clock::now() + limit;
    int status = 0;
    while (::waitpid(pid, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > end) {
            ::kill(pid, SIGKILL);
            ::waitpid(pid, &status, 0);
            return false;
        }
        ::usleep(2000);
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace tarvik::test
