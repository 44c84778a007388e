#pragma once
// Runs an outside program (ffmpeg, the disk utility) as a child process and
// collects what it prints. Standard output and standard error share one pipe,
// the way the programs' messages are meant to be read by a person.

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

struct ProcessResult {
    bool started = false;   // false when the program could not be run at all
    bool timedOut = false;  // killed because it ran past the time limit
    int exitCode = -1;      // -1 when it did not exit normally
    std::string output;     // stdout and stderr interleaved
};

class ProcessRunner {
public:
    // Told each piece of the program's output as it comes, and at least every
    // 200 ms; returning false stops the program there (it is killed).
    using Watcher = std::function<bool(std::string_view piece)>;

    // A zero timeout waits for as long as the program runs.
    static ProcessResult run(const std::string& program, const std::vector<std::string>& args,
                             std::chrono::milliseconds timeout = std::chrono::milliseconds{0},
                             std::size_t maxOutputBytes = 4 * 1024 * 1024);
    static ProcessResult run(const std::string& program, const std::vector<std::string>& args, const Watcher& watch,
                             std::chrono::milliseconds timeout = std::chrono::milliseconds{0},
                             std::size_t maxOutputBytes = 4 * 1024 * 1024);
};

}  // namespace tarvik
