#pragma once
// Moments of a clip worth jumping to: jolts the G-sensor felt (a pothole, a
// knock) and hard braking read from the speed. Each event is one moment, at
// its strongest sample, so one jolt makes one marker however long it lasts.

#include <vector>

namespace tarvik {

class OrvoClipData;

enum class DrivingEventKind { GPeak, HardBraking };

struct DrivingEvent {
    DrivingEventKind kind = DrivingEventKind::GPeak;
    double seconds = 0;    // from the clip's start
    double endSeconds = 0; // the last reading above the threshold
    double strength = 0;   // g above rest for a peak, km/h lost per second for braking
};

struct DrivingEventThresholds {
    // Deviation from resting (0, 0, 1 g), in g.
    double gPeak = 0.45;
    // Speed lost within one second; 12 km/h/s is about a third of a g.
    double brakingKmhPerSecond = 12.0;
    // Readings closer than this belong to the same event.
    double mergeSeconds = 2.0;
};

// Sorted by time. Samples are ten a second; a clip without telemetry has none.
std::vector<DrivingEvent> findDrivingEvents(const OrvoClipData& data, const DrivingEventThresholds& t = {});

// The first event after `seconds` (by more than a tenth of a second), or the
// last one before it; -1 when there is none.
int nextDrivingEvent(const std::vector<DrivingEvent>& events, double seconds);
int previousDrivingEvent(const std::vector<DrivingEvent>& events, double seconds);

}  // namespace tarvik
