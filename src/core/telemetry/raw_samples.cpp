#include "core/telemetry/raw_samples.h"

#include "core/telemetry/orvo_clip_data.h"

namespace tarvik {

void RawSamples::push(const GReading& g, const GpsFix& fix) {
    if (count_ >= kCapacity) return;
    g_[count_] = g;
    fix_[count_] = fix;
    ++count_;
}

int RawSamples::finish(OrvoClipData& out) const {
    int withFix = 0;
    for (int i = 0; i < count_; ++i) {
        float lat = static_cast<float>(fix_[i].lat) / 1e6f;
        float lng = static_cast<float>(fix_[i].lng) / 1e6f;
        if (fix_[i].ns != 'N') lat = -lat;
        if (fix_[i].ew != 'E') lng = -lng;
        out.storeSample(i, g_[i].x, g_[i].y, g_[i].z, lat, lng, fix_[i].speed);
        if (lat != 0.0f || lng != 0.0f) ++withFix;
    }
    out.setGpsDataCount(withFix);
    return count_;
}

}  // namespace tarvik
