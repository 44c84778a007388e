#include "core/util/process_runner.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace tarvik {

namespace {

int remainingMs(std::chrono::steady_clock::time_point deadline) {
    auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        deadline - std::chrono::steady_clock::now());
    return left.count() < 0 ? 0 : static_cast<int>(left.count());
}

}  // namespace

ProcessResult ProcessRunner::run(const std::string& program, const std::vector<std::string>& args,
                                 std::chrono::milliseconds timeout, std::size_t maxOutputBytes) {
    return run(program, args, Watcher{}, timeout, maxOutputBytes);
}

ProcessResult ProcessRunner::run(const std::string& program, const std::vector<std::string>& args,
                                 const Watcher& watch, std::chrono::milliseconds timeout, std::size_t maxOutputBytes) {
    ProcessResult result;
    int fds[2];
    if (pipe2(fds, O_CLOEXEC) != 0) return result;

    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(program.c_str()));
    for (const auto& a : args) argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, fds[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, fds[1], STDERR_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);

    pid_t pid = -1;
    const bool hasSlash = program.find('/') != std::string::npos;
    int rc = hasSlash ? posix_spawn(&pid, program.c_str(), &actions, nullptr, argv.data(), environ)
                      : posix_spawnp(&pid, program.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(fds[1]);
    if (rc != 0) {
        close(fds[0]);
        return result;
    }
    result.started = true;

    const bool limited = timeout.count() > 0;
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    char buf[16384];
    for (;;) {
        pollfd p{fds[0], POLLIN, 0};
        int waitMs = limited ? remainingMs(deadline) : -1;
        if (watch && (waitMs < 0 || waitMs > 200)) waitMs = 200;
        int n = poll(&p, 1, waitMs);
        if (n < 0 && errno == EINTR) continue;
        if (n == 0 && limited && remainingMs(deadline) == 0) {  // time is up
            result.timedOut = true;
            kill(pid, SIGKILL);
            break;
        }
        if (n == 0) {
            if (watch && !watch({})) {
                kill(pid, SIGKILL);
                break;
            }
            continue;
        }
        ssize_t got = read(fds[0], buf, sizeof buf);
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) break;
        if (watch && !watch(std::string_view(buf, std::size_t(got)))) {
            kill(pid, SIGKILL);
            break;
        }
        if (result.output.size() < maxOutputBytes)
            result.output.append(buf, std::min<std::size_t>(got, maxOutputBytes - result.output.size()));
    }
    close(fds[0]);

    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(status)) result.exitCode = WEXITSTATUS(status);
    return result;
}

}  // namespace tarvik
