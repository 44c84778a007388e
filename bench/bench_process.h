#pragma once
// A whole program run as a benchmark measures it: output thrown away, wall
// time and the child's processor time (user + system) taken together.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <chrono>
#include <string>
#include <vector>

extern char** environ;

namespace tarvik::bench {

struct Timing {
    double wall = -1;  // seconds; -1 when the run failed
    double cpu = -1;   // user + system of the child
};

// argv[0] is looked up on PATH unless it holds a slash.
inline Timing timeRun(const std::vector<std::string>& argv) {
    std::vector<char*> args;
    for (const auto& a : argv) args.push_back(const_cast<char*>(a.c_str()));
    args.push_back(nullptr);
    posix_spawn_file_actions_t fa;
    posix_spawn_file_actions_init(&fa);
    posix_spawn_file_actions_addopen(&fa, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&fa, 2, "/dev/null", O_WRONLY, 0);
    const auto t0 = std::chrono::steady_clock::now();
    pid_t pid;
    Timing t;
    if (posix_spawnp(&pid, args[0], &fa, nullptr, args.data(), environ) == 0) {
        int status = 0;
        rusage ru{};
        wait4(pid, &status, 0, &ru);
        if (WIFEXITED(status) && WEXITSTATUS(status) == 0) {
            t.wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
            t.cpu = ru.ru_utime.tv_sec + ru.ru_utime.tv_usec / 1e6 + ru.ru_stime.tv_sec + ru.ru_stime.tv_usec / 1e6;
        }
    }
    posix_spawn_file_actions_destroy(&fa);
    return t;
}

}  // namespace tarvik::bench
