#include "core/library/trips/trip.h"

#include <cstdio>
#include <ctime>

namespace tarvik {

int Trip::indexOf(const std::string& path) const {
    for (std::size_t i = 0; i < clips.size(); ++i)
        if (clips[i].path == path || (!clips[i].partner.empty() && clips[i].partner == path)) return int(i);
    return -1;
}

std::string tripTimeText(std::int64_t t) {
    const std::time_t tt = static_cast<std::time_t>(t);
    std::tm tm{};
    if (!::gmtime_r(&tt, &tm)) return {};
    char buf[64];
    std::snprintf(buf, sizeof buf, "%04d-%02d-%02d %02d:%02d:%02d", tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday,
                  tm.tm_hour, tm.tm_min, tm.tm_sec);
    return buf;
}

}  // namespace tarvik
