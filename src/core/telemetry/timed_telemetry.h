#pragma once
// Telemetry that arrives with its own times (GPS at 1 to 18 Hz, G at up to
// 200 Hz) turned into the model's ten samples a second: each tenth takes the
// latest reading at or before its time, with no interpolation. One slot per
// tenth, so memory is fixed whatever a file claims to hold; readings past the
// model's 65 seconds are dropped.

#include <cstdint>

namespace tarvik {

class OrvoClipData;

struct TimedFix {
    bool valid = false;  // false: the receiver had no fix at this time
    double lat = 0, lng = 0;  // signed degrees
    double kmh = 0;
};

class TimedTelemetry {
public:
    static constexpr int kSlots = 650;

    TimedTelemetry();

    // t in seconds from the clip's start; G in 1/128 g (clamped to +-512).
    void addG(double t, double x, double y, double z);
    void addFix(double t, const TimedFix& fix);
    // The clip's telemetry lasts at least until `end` seconds; readings count
    // only for the tenths before the latest end given.
    void extendTo(double end);

    bool empty() const { return readings_ == 0; }
    int readings() const { return readings_; }
    // Stores the samples into `out` from sample 0, sets its GPS count and
    // returns the sample count (0 when nothing was added).
    int finish(OrvoClipData& out) const;

private:
    // Slot of the first tenth whose time is at or after t; -1 for no slot.
    static int slotOf(double t);

    struct GSlot {
        double t;
        std::int16_t x, y, z;
        bool set;
    };
    struct FixSlot {
        double t;
        float lat, lng;
        std::uint32_t speed;
        bool set;
    };
    GSlot g_[kSlots];
    FixSlot fix_[kSlots];
    double end_ = 0;
    int readings_ = 0;
};

}  // namespace tarvik
