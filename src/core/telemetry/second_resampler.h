#pragma once
// Turns the G readings of one second (at the camera's own rate) into exactly
// the ten samples of that second when the second's GPS record arrives.
//
// Readings are kept up to a bound; a hostile file may put millions of readings
// into one second, and then the reader replays that stretch of the file to
// fetch only the few readings that are emitted (needsReplay()).

#include <cstddef>
#include <vector>

#include "core/telemetry/raw_samples.h"

namespace tarvik {

class SecondResampler {
public:
    static constexpr std::size_t kKept = 4096;

    explicit SecondResampler(RawSamples& out) : out_(out) { kept_.reserve(64); }

    void add(const GReading& g);
    std::size_t pending() const { return pending_; }
    // The most recent pending reading; only meaningful when pending() > 0.
    const GReading& last() const { return last_; }
    bool needsReplay() const { return pending_ > kKept; }

    // Which pending readings a second of k readings emits, in order (10 for any
    // k >= 1; repeats for k < 10). Returns how many were written to idx.
    static int pick(std::size_t k, std::size_t idx[10]);

    // Emits the pending second with `fix` and starts a new one. With
    // needsReplay(), `replayed` must hold the readings at the indices of
    // pick(pending()) in the same order; otherwise pass nullptr.
    void close(const GpsFix& fix, const GReading* replayed = nullptr);
    // Drops pending readings without emitting.
    void reset();

    // At the end of a file: what a pending second still emits.
    void flushLeftover(const GpsFix& fix, const GReading* replayed = nullptr) {
        if (pending_ > 0 && out_.count() > 0) close(fix, replayed);
    }
    const std::vector<GReading>& kept() const { return kept_; }

private:
    RawSamples& out_;
    std::vector<GReading> kept_;
    std::size_t pending_ = 0;
    GReading last_;
};

}  // namespace tarvik
