#include "core/library/trips/trip_builder.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "core/library/clip_catalogue.h"

namespace tarvik {

namespace {

bool digits(std::string_view s) {
    return std::all_of(s.begin(), s.end(), [](char c) { return std::isdigit(static_cast<unsigned char>(c)); });
}

int num(std::string_view s) {
    int v = 0;
    for (char c : s) v = v * 10 + (c - '0');
    return v;
}

// Days since 1970-01-01 of a proleptic Gregorian date.
std::int64_t daysFromCivil(int y, int m, int d) {
    y -= m <= 2;
    const int era = (y >= 0 ? y : y - 399) / 400;
    const int yoe = y - era * 400;
    const int doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const int doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return std::int64_t(era) * 146097 + doe - 719468;
}

bool isFront(std::string_view path) { return path.find("F.") != std::string_view::npos; }

}  // namespace

std::optional<std::int64_t> clipStartFromName(std::string_view name) {
    for (std::size_t i = 0; i + 15 <= name.size(); ++i) {
        const std::string_view s = name.substr(i, 15);
        if (s[8] != '_' || !digits(s.substr(0, 8)) || !digits(s.substr(9, 6))) continue;
        if (i > 0 && std::isdigit(static_cast<unsigned char>(name[i - 1]))) continue;
        const int y = num(s.substr(0, 4)), mo = num(s.substr(4, 2)), d = num(s.substr(6, 2));
        const int h = num(s.substr(9, 2)), mi = num(s.substr(11, 2)), se = num(s.substr(13, 2));
        static constexpr int kDays[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        if (mo < 1 || mo > 12 || d < 1 || d > kDays[mo - 1] || h > 23 || mi > 59 || se > 59) continue;
        const bool leap = (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
        if (mo == 2 && d == 29 && !leap) continue;
        return daysFromCivil(y, mo, d) * 86400 + h * 3600 + mi * 60 + se;
    }
    return std::nullopt;
}

std::string recordingFolderOf(std::string_view root, std::string_view path) {
    if (path.substr(0, root.size()) != root) return {};
    std::string_view rest = path.substr(root.size());
    while (!rest.empty() && rest.front() == '/') rest.remove_prefix(1);
    const std::size_t slash = rest.find('/');
    if (slash == std::string_view::npos) return {};
    const std::string_view first = rest.substr(0, slash);
    for (std::string_view f : kRecordingFolders)
        if (f == first) return std::string(first);
    return {};
}

std::vector<TripClip> TripBuilder::pairUp(const std::vector<std::string>& clips) {
    const std::set<std::string> all(clips.begin(), clips.end());
    std::set<std::string> taken;
    std::vector<TripClip> out;
    for (const std::string& p : all) {
        if (taken.count(p)) continue;
        const auto start = clipStartFromName(ClipCatalogue::fileName(p));
        if (!start) continue;
        TripClip c;
        c.path = p;
        c.start = *start;
        const std::string partner = ClipCatalogue::partnerPath(p);
        if (!partner.empty() && partner != p && all.count(partner)) {
            taken.insert(partner);
            c.partner = partner;
            if (!isFront(ClipCatalogue::fileName(p))) std::swap(c.path, c.partner);
        }
        taken.insert(p);
        out.push_back(std::move(c));
    }
    return out;
}

void TripBuilder::add(std::vector<Trip>& trips, std::string folder, TripClip clip) {
    Trip t;
    t.folder = std::move(folder);
    t.clips.push_back(std::move(clip));
    trips.push_back(std::move(t));
}

void TripBuilder::finish(std::vector<Trip>& singles) {
    // By folder, then by time; equal times keep the name order.
    std::stable_sort(singles.begin(), singles.end(), [](const Trip& a, const Trip& b) {
        if (a.folder != b.folder) return a.folder < b.folder;
        return a.clips[0].start < b.clips[0].start;
    });
    std::vector<Trip> trips;
    for (Trip& s : singles) {
        TripClip& c = s.clips[0];
        if (!trips.empty()) {
            Trip& cur = trips.back();
            const TripClip& last = cur.clips.back();
            const double gap = double(c.start) - (double(last.start) + last.seconds);
            // A clip of unknown length cannot be said to reach the next one.
            if (cur.folder == s.folder && last.seconds > 0 && c.start > last.start && gap <= kTripMaxGapSeconds &&
                gap >= -kTripMaxGapSeconds) {
                cur.clips.push_back(std::move(c));
                continue;
            }
        }
        trips.push_back(std::move(s));
    }
    for (Trip& t : trips) {
        t.start = t.clips.front().start;
        const TripClip& last = t.clips.back();
        t.end = last.start + static_cast<std::int64_t>(last.seconds + 0.5);
    }
    singles = std::move(trips);
}

}  // namespace tarvik
