#include "core/library/trips/trip_builder.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "core/library/clip_catalogue.h"
#include "core/library/recording_time.h"
#include "core/library/trips/clip_container.h"

namespace tarvik {

std::optional<std::int64_t> clipStartFromName(std::string_view name) {
    const auto m = recordingMomentFromName(name);
    if (!m) return std::nullopt;
    return m->secondsSinceEpoch();
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
        // Cameras that put no time into their names have the container's.
        auto start = clipStartFromName(ClipCatalogue::fileName(p));
        if (!start) start = containerCreationTime(p);
        if (!start) continue;
        TripClip c;
        c.path = p;
        c.start = *start;
        const std::string partner = ClipCatalogue::cameraPartnerPath(p);
        if (!partner.empty() && partner != p && all.count(partner)) {
            taken.insert(partner);
            c.partner = partner;
            if (!ClipCatalogue::isFrontOfPair(p)) std::swap(c.path, c.partner);
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
