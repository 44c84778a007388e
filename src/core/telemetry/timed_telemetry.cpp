#include "core/telemetry/timed_telemetry.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "core/telemetry/orvo_clip_data.h"

namespace tarvik {

namespace {
// Times a few microseconds apart are the same tenth: 0.3 s computed as
// 0.1 + 0.2 must still land on tenth 3.
constexpr double kSlack = 1e-6;

std::int16_t gValue(double v) {
    if (!std::isfinite(v)) return 0;
    return static_cast<std::int16_t>(std::lround(std::clamp(v, -512.0, 512.0)));
}
}  // namespace

TimedTelemetry::TimedTelemetry() {
    std::memset(g_, 0, sizeof g_);
    std::memset(fix_, 0, sizeof fix_);
}

int TimedTelemetry::slotOf(double t) {
    if (!std::isfinite(t) || t < -kSlack) return -1;
    const double k = std::ceil(t * 10.0 - kSlack);
    if (k >= kSlots) return -1;
    return std::max(0, static_cast<int>(k));
}

void TimedTelemetry::addG(double t, double x, double y, double z) {
    const int k = slotOf(t);
    if (k < 0) return;
    ++readings_;
    GSlot& s = g_[k];
    if (s.set && s.t > t) return;  // a later reading already holds this tenth
    s = GSlot{t, gValue(x), gValue(y), gValue(z), true};
}

void TimedTelemetry::addFix(double t, const TimedFix& fix) {
    const int k = slotOf(t);
    if (k < 0) return;
    ++readings_;
    FixSlot& s = fix_[k];
    if (s.set && s.t > t) return;
    s = FixSlot{t, 0.0f, 0.0f, 0, true};
    const bool plausible = fix.valid && std::isfinite(fix.lat) && std::isfinite(fix.lng) &&
                           std::fabs(fix.lat) <= 90.0 && std::fabs(fix.lng) <= 180.0;
    if (plausible) {
        s.lat = static_cast<float>(fix.lat);
        s.lng = static_cast<float>(fix.lng);
        const double kmh = std::isfinite(fix.kmh) ? std::clamp(fix.kmh, 0.0, 1000.0) : 0.0;
        s.speed = static_cast<std::uint32_t>(kmh + 0.5);
    }
}

void TimedTelemetry::extendTo(double end) {
    if (std::isfinite(end)) end_ = std::max(end_, std::min(end, kSlots / 10.0));
}

int TimedTelemetry::finish(OrvoClipData& out) const {
    if (readings_ == 0) {
        out.setGpsDataCount(0);
        return 0;
    }
    const int count = std::clamp(static_cast<int>(std::ceil(end_ * 10.0 - kSlack)), 1, kSlots);
    GSlot g{0, 0, 0, 0, false};
    FixSlot f{0, 0.0f, 0.0f, 0, false};
    int withFix = 0;
    for (int i = 0; i < count; ++i) {
        if (g_[i].set) g = g_[i];
        if (fix_[i].set) f = fix_[i];
        out.storeSample(i, g.x, g.y, g.z, f.lat, f.lng, f.speed);
        if (f.lat != 0.0f || f.lng != 0.0f) ++withFix;
    }
    out.setGpsDataCount(withFix);
    return count;
}

}  // namespace tarvik
