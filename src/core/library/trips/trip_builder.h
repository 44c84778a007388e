#pragma once
// Groups a card's clips into trips. The rules work on names and durations
// alone, so they are tested without a single video file.

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/library/trips/trip.h"

namespace tarvik {

// Seconds since the epoch for the first "YYYYMMDD_HHMMSS" in the file name
// (a real date and time), read as UTC so that no time zone moves it.
std::optional<std::int64_t> clipStartFromName(std::string_view fileName);

// The recording folder a clip lies in below root ("cont_rec", ...), or "" for
// the root itself and folders the camera does not record into.
std::string recordingFolderOf(std::string_view root, std::string_view path);

class TripBuilder {
public:
    // seconds(path) gives a clip's length (0 when unknown).
    template <class Durations>
    static std::vector<Trip> build(std::string_view root, const std::vector<std::string>& clips, Durations seconds) {
        std::vector<Trip> trips;
        for (TripClip& c : pairUp(clips)) {
            c.seconds = seconds(c.path);
            if (!c.partner.empty()) c.seconds = std::max(c.seconds, seconds(c.partner));
            std::string folder = recordingFolderOf(root, c.path);
            add(trips, std::move(folder), std::move(c));
        }
        finish(trips);
        return trips;
    }

    // Front/rear pairs folded into one entry each; clips without a time in
    // their name are left out (they cannot be placed in a drive).
    static std::vector<TripClip> pairUp(const std::vector<std::string>& clips);

private:
    static void add(std::vector<Trip>& trips, std::string folder, TripClip clip);
    static void finish(std::vector<Trip>& trips);
};

}  // namespace tarvik
