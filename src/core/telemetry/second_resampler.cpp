#include "core/telemetry/second_resampler.h"

#include <cmath>

namespace tarvik {

void SecondResampler::add(const GReading& g) {
    if (kept_.size() < kKept) kept_.push_back(g);
    ++pending_;
    last_ = g;
}

int SecondResampler::pick(std::size_t k, std::size_t idx[10]) {
    if (k == 0) return 0;
    if (k <= 10) {
        // Stretch: reading trunc(j * k / 10), in single precision.
        const float ratio = static_cast<float>(k) / 10.0f;
        for (int j = 0; j < 10; ++j) idx[j] = static_cast<std::size_t>(static_cast<float>(j) * ratio);
        return 10;
    }
    // Thin out: the first reading of each rounded tenth.
    const float step = static_cast<float>(10.0 / static_cast<double>(k));
    long lastM = -1;
    int n = 0;
    for (std::size_t j = 0; j < k && n < 10; ++j) {
        const float pos = static_cast<float>(j) * step;
        const long m = static_cast<long>(std::trunc(static_cast<double>(pos) + 0.5));
        if (m != lastM) {
            idx[n++] = j;
            lastM = m;
        }
    }
    return n;
}

void SecondResampler::close(const GpsFix& fix, const GReading* replayed) {
    std::size_t idx[10];
    const int n = pick(pending_, idx);
    for (int j = 0; j < n; ++j) {
        const GReading& g = replayed ? replayed[j] : kept_[idx[j]];
        out_.push(g, fix);
    }
    reset();
}

void SecondResampler::reset() {
    kept_.clear();
    pending_ = 0;
}

}  // namespace tarvik
