#pragma once
// One row of the table `make bench` prints at the end. Each benchmark program
// appends its rows (tab-separated) to the file named by TARVIK_BENCH_TABLE and
// prints them as it goes, so a program run by hand shows them too.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace tarvik::bench {

// The middle value (the upper one of an even count), or -1 for no values:
// what a moment's stall of a shared machine does not move.
inline double median(std::vector<double> v) {
    if (v.empty()) return -1;
    std::nth_element(v.begin(), v.begin() + static_cast<std::ptrdiff_t>(v.size() / 2), v.end());
    return v[v.size() / 2];
}

// `ratio` < 0 means the row could not be measured; `note` then says why.
inline void tableRow(const std::string& name, double ratio, const std::string& goal, bool met,
                     const std::string& note = {}) {
    char r[32];
    std::snprintf(r, sizeof r, ratio < 0 ? "-" : "%.3g", ratio);
    const std::string verdict = ratio < 0 ? "skipped" : (met ? "met" : "NOT met");
    std::printf("RESULT %s: ratio %s, goal %s: %s%s%s\n", name.c_str(), r, goal.c_str(), verdict.c_str(),
                note.empty() ? "" : " -- ", note.c_str());
    std::fflush(stdout);
    if (const char* path = std::getenv("TARVIK_BENCH_TABLE"); path && *path)
        if (FILE* f = std::fopen(path, "a")) {
            std::fprintf(f, "%s\t%s\t%s\t%s\t%s\n", name.c_str(), r, goal.c_str(), verdict.c_str(), note.c_str());
            std::fclose(f);
        }
}

}  // namespace tarvik::bench
