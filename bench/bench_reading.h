#pragma once
// The baseline the readers' benchmarks compare against, and the memory they
// report: one plain sequential read of the file, and a line of
// /proc/self/status (VmHWM, VmRSS) in KiB.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tarvik::bench {

inline double plainReadSeconds(const std::filesystem::path& path) {
    const auto t0 = std::chrono::steady_clock::now();
    int fd = open(path.c_str(), O_RDONLY);
    std::vector<char> buf(1 << 20);
    std::uint64_t sum = 0;
    for (ssize_t n; (n = read(fd, buf.data(), buf.size())) > 0;) sum += static_cast<unsigned char>(buf[n - 1]);
    close(fd);
    benchmark::DoNotOptimize(sum);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
}

inline long statusKiB(const char* key) {
    std::ifstream in("/proc/self/status");
    std::string line;
    while (std::getline(in, line))
        if (line.rfind(key, 0) == 0) return std::atol(line.c_str() + std::strlen(key));
    return -1;
}

}  // namespace tarvik::bench
