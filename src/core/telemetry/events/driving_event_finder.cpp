#include "core/telemetry/events/driving_event_finder.h"

#include <algorithm>
#include <cmath>

#include "core/telemetry/orvo_clip_data.h"

namespace tarvik {

namespace {

constexpr double kSamplesPerSecond = 10.0;
constexpr double kOneG = 128.0;

// Runs of samples above a threshold, each reduced to its strongest sample.
template <class Strength>
void collect(int count, double threshold, double merge, DrivingEventKind kind, Strength strength,
             std::vector<DrivingEvent>& out) {
    DrivingEvent cur;
    bool open = false;
    int lastAbove = -1000000;
    for (int i = 0; i < count; ++i) {
        const double s = strength(i);
        if (s < threshold) continue;
        if (open && (i - lastAbove) / kSamplesPerSecond > merge) {
            out.push_back(cur);
            open = false;
        }
        if (!open || s > cur.strength) cur = {kind, i / kSamplesPerSecond, 0, s};
        cur.endSeconds = i / kSamplesPerSecond;
        open = true;
        lastAbove = i;
    }
    if (open) out.push_back(cur);
}

}  // namespace

std::vector<DrivingEvent> findDrivingEvents(const OrvoClipData& d, const DrivingEventThresholds& t) {
    const int n = std::min(d.clipDataCount(), OrvoClipData::kCapacity);
    std::vector<DrivingEvent> braking, peaks;
    // Speed comes once a second; compare each sample with the one a second later.
    collect(n - 10, t.brakingKmhPerSecond, t.mergeSeconds, DrivingEventKind::HardBraking,
            [&](int i) {
                const unsigned a = d.getGpsSpeed(i), b = d.getGpsSpeed(i + 10);
                if (a == OrvoClipData::kNoSpeed || b == OrvoClipData::kNoSpeed || b >= a) return 0.0;
                // A lost fix reads as speed 0: not a stop.
                if (b == 0 && d.getGpsLat(i + 10) == 0.0f && d.getGpsLng(i + 10) == 0.0f) return 0.0;
                return double(a - b);
            },
            braking);
    collect(n, t.gPeak, t.mergeSeconds, DrivingEventKind::GPeak,
            [&](int i) {
                const int x = d.getGx(i), y = d.getGy(i), z = d.getGz(i);
                if (x == OrvoClipData::kNoG) return 0.0;
                return std::sqrt(double(x) * x + double(y) * y + double(z - kOneG) * (z - kOneG)) / kOneG;
            },
            peaks);
    // Braking hard is itself felt as G; the braking marker says more.
    std::vector<DrivingEvent> out = braking;
    for (const DrivingEvent& p : peaks) {
        const bool explained = std::any_of(braking.begin(), braking.end(), [&](const DrivingEvent& b) {
            return p.seconds >= b.seconds - t.mergeSeconds && p.seconds <= b.endSeconds + 1.0 + t.mergeSeconds;
        });
        if (!explained) out.push_back(p);
    }
    std::sort(out.begin(), out.end(), [](const DrivingEvent& a, const DrivingEvent& b) { return a.seconds < b.seconds; });
    return out;
}

int nextDrivingEvent(const std::vector<DrivingEvent>& events, double seconds) {
    for (std::size_t i = 0; i < events.size(); ++i)
        if (events[i].seconds > seconds + 0.1) return int(i);
    return -1;
}

int previousDrivingEvent(const std::vector<DrivingEvent>& events, double seconds) {
    for (std::size_t i = events.size(); i-- > 0;)
        if (events[i].seconds < seconds - 0.1) return int(i);
    return -1;
}

}  // namespace tarvik
