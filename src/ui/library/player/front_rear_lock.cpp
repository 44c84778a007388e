#include "ui/library/player/front_rear_lock.h"

#include <algorithm>
#include <cmath>

#include <QTimer>

#include "ui/library/player/mpv_player.h"

namespace tarvik {

namespace {

// An offset larger than this while playing is closed by a seek; a smaller
// one by running the rear faster or slower, which no one sees.
constexpr double kSeekBeyond = 0.12;
// Trim per second of offset, at most kMaxTrim either way: an offset of one
// frame is made up within about a second.
constexpr double kGain = 1.5;
constexpr double kMaxTrim = 0.08;
// Each time pair is off by up to a frame; the trim follows their average.
constexpr double kSmoothing = 0.2;
constexpr double kCatchUp = 0.2;
// A rear this far ahead waits for the front: it stands still for as long.
constexpr double kHoldBeyond = 0.045;
// The rear's last frame starts a frame before its end.
constexpr double kEndMargin = 0.02;
// Times are compared only while both are this recent: a player that has not
// reported for longer may be stalled (a loaded machine) rather than playing
// on, and carrying its time forward would steer the rear by a guess.
constexpr double kMaxCarry = 0.07;
// A seek that took longer than this was held up by something else; aiming
// that far ahead would leave the rear waiting for the front.
constexpr double kMaxSeekLead = 0.3;
// A player that has not found its frame by then (a stuck demuxer) does not
// keep the other one waiting longer.
constexpr int kGateMs = 400;

}  // namespace

FrontRearLock::FrontRearLock(QObject* parent) : QObject(parent), gateTimer_(new QTimer(this)) {
    gateTimer_->setSingleShot(true);
    connect(gateTimer_, &QTimer::timeout, this, &FrontRearLock::openGate);
}

MpvPlayer* FrontRearLock::front() const { return front_; }
MpvPlayer* FrontRearLock::rear() const { return rear_; }

void FrontRearLock::lock(MpvPlayer* front, MpvPlayer* rear) {
    release();
    front_ = front;
    rear_ = rear;
    clock_.start();
    frontTime_ = rearTime_ = offset_ = 0.0;
    frontAt_ = rearAt_ = 0;
    lastTarget_ = 0.0;  // both open at their start
    seekSentAt_ = -1;
    holdUntil_ = 0;
    if (!front || !rear) return;
    connections_ << connect(front, &MpvPlayer::rateRequested, this, &FrontRearLock::mirrorRate);
    connections_ << connect(front, &MpvPlayer::seekRequested, this, &FrontRearLock::mirrorSeek);
    connections_ << connect(front, &MpvPlayer::timeChanged, this, &FrontRearLock::onFrontTime);
    connections_ << connect(front, &MpvPlayer::seeked, this, &FrontRearLock::follow);
    connections_ << connect(front, &MpvPlayer::heldFrameRendered, this, &FrontRearLock::follow);
    connections_ << connect(rear, &MpvPlayer::heldFrameRendered, this, &FrontRearLock::follow);
    connections_ << connect(front, &MpvPlayer::rateChanged, this, &FrontRearLock::follow);
    connections_ << connect(front, &MpvPlayer::loaded, this, &FrontRearLock::follow);
    connections_ << connect(rear, &MpvPlayer::loaded, this, &FrontRearLock::follow);
    connections_ << connect(rear, &MpvPlayer::timeChanged, this, &FrontRearLock::onRearTime);
    connections_ << connect(rear, &MpvPlayer::seeked, this, [this] {
        // A seek made while both were held took as long as the wait, not the seek.
        if (seekSentAt_ >= 0 && !gated_ && front_ && front_->requestedRate() != 0.0f)
            seekLead_ = std::clamp((clock_.elapsed() - seekSentAt_) / 1000.0, 0.02, kMaxSeekLead);
        seekSentAt_ = -1;
        follow();
    });
}

double FrontRearLock::sinceReport(qint64 at) const { return (clock_.elapsed() - at) / 1000.0; }

void FrontRearLock::release() {
    openGate();
    for (const auto& c : connections_) disconnect(c);
    connections_.clear();
    if (rear_) rear_->setSpeedTrim(1.0);
    front_ = nullptr;
    rear_ = nullptr;
}

void FrontRearLock::onFrontTime(double seconds) {
    frontTime_ = seconds;
    frontAt_ = clock_.elapsed();
    if (front_ && !front_->isSeeking()) frontFresh_ = true;
    follow();
}

void FrontRearLock::onRearTime(double seconds) {
    rearTime_ = seconds;
    rearAt_ = clock_.elapsed();
    if (rear_ && !rear_->isSeeking()) rearFresh_ = true;
    follow();
}

void FrontRearLock::mirrorRate(float rate) {
    if (!rear_) return;
    lastTarget_ = -1.0;
    offset_ = 0.0;
    // A time reported while standing would be carried forward over the
    // whole pause: only times reported since count.
    frontFresh_ = rearFresh_ = false;
    rear_->setSpeedTrim(1.0);
    if (rate == 0.0f) openGate();
    // Started while a seek is still on its way: both start once both are there.
    else if (front_ && (front_->isSeeking() || rear_->isSeeking())) closeGate();
    // Past its end the rear keeps showing its last picture.
    if (rate != 0.0f && pastRearEnd(frontTime_)) return;
    rear_->setRate(rate);
}

void FrontRearLock::mirrorSeek(double seconds) {
    if (!rear_) return;
    frontTime_ = seconds;
    frontAt_ = clock_.elapsed();
    frontFresh_ = false;
    offset_ = 0.0;
    rear_->setSpeedTrim(1.0);
    const float rate = front_ ? front_->requestedRate() : 0.0f;
    // Whichever finds its frame first would otherwise play on alone.
    if (rate != 0.0f) closeGate();
    seekRear(rearTargetFor(seconds));
    // mpv pauses a player at the end of its file; back before the end, the
    // rear plays on with the front.
    if (rate != 0.0f && !pastRearEnd(seconds)) rear_->setRate(rate);
}

void FrontRearLock::follow() {
    if (!front_ || !rear_ || !front_->isLoaded() || !rear_->isLoaded() || front_->isSeeking()) return;
    if (gated_) {
        // A rear at its end shows its last picture: nothing to wait for.
        const bool rearAtEnd = pastRearEnd(frontTime_);
        if (rear_->isSeeking() && !rearAtEnd) return;
        // Both new pictures are shown in one go: one drawn a moment after
        // its seek ended would otherwise appear beside the other's old one.
        if (!front_->drewSinceSeek() || (!rear_->drewSinceSeek() && !rearAtEnd)) return;
        openGate();
    }
    const float rate = front_->requestedRate();
    if (rate == 0.0f) return standWithFront(frontTime_);
    double now = frontTime_;
    if (front_->rate() != 0.0f) now += sinceReport(frontAt_) * front_->rate();
    playWithFront(now);
}

void FrontRearLock::standWithFront(double frontTime) {
    if (rear_->requestedRate() != 0.0f) rear_->setRate(0.0f);
    const double target = rearTargetFor(frontTime);
    if (std::fabs(target - lastTarget_) < 1e-6) return;
    seekRear(target);
}

void FrontRearLock::playWithFront(double frontTime) {
    lastTarget_ = -1.0;
    if (rear_->isSeeking() || clock_.elapsed() < holdUntil_) return;
    if (pastRearEnd(frontTime)) {
        // Somewhere else than at its end (a play from the start turned it back): there.
        if (!rear_->isEofReached() && rearTime_ < rear_->duration() - 0.5) seekRear(rear_->duration());
        return;
    }
    const float rate = front_->requestedRate();
    if (rear_->requestedRate() != rate) rear_->setRate(rate);
    // Not yet playing, or a time from before a seek: nothing to compare.
    if (rear_->rate() == 0.0f || !frontFresh_ || !rearFresh_) return;
    if (sinceReport(frontAt_) > kMaxCarry || sinceReport(rearAt_) > kMaxCarry) return;
    const double rearNow = rearTime_ + sinceReport(rearAt_) * rear_->rate();
    const double apart = frontTime - rearNow;
    if (std::fabs(apart) > kSeekBeyond) {
        offset_ = 0.0;
        rear_->setSpeedTrim(1.0);
        // Aimed where the front will be once the rear has found its frame.
        seekRear(rearTargetFor(frontTime + seekLead_ * rate));
        return;
    }
    offset_ += kSmoothing * (apart - offset_);
    // How far the rear is behind in the direction of play.
    const double behind = rate < 0.0f ? -offset_ : offset_;
    if (behind < -kHoldBeyond) {
        const int ms = int(-behind * 1000.0 / std::fabs(rate));
        holdUntil_ = clock_.elapsed() + ms;
        offset_ = 0.0;
        rearFresh_ = false;
        rear_->setSpeedTrim(1.0);
        rear_->setRate(0.0f);
        QTimer::singleShot(ms, this, &FrontRearLock::follow);
        return;
    }
    // Behind by more than a frame it catches up quickly; within one, gently.
    const double trim =
        behind > kHoldBeyond ? 1.0 + kCatchUp : 1.0 + std::clamp(kGain * behind, -kMaxTrim, kMaxTrim);
    // In steps of half a percent: mpv is not asked again for every frame.
    rear_->setSpeedTrim(std::round(trim * 200.0) / 200.0);
}

double FrontRearLock::rearTargetFor(double frontTime) const {
    const double end = rear_ ? rear_->duration() : 0.0;
    if (end > 0.0 && frontTime > end) return end;
    return std::max(frontTime, 0.0);
}

bool FrontRearLock::pastRearEnd(double frontTime) const {
    const double end = rear_ ? rear_->duration() : 0.0;
    return end > 0.0 && frontTime >= end - kEndMargin;
}

void FrontRearLock::closeGate() {
    if (!front_ || !rear_) return;
    gated_ = true;
    front_->setHeld(true);
    rear_->setHeld(true);
    gateTimer_->start(kGateMs);
}

void FrontRearLock::openGate() {
    gateTimer_->stop();
    if (!gated_) return;
    gated_ = false;
    // Times from before the wait would be carried forward over it.
    frontFresh_ = rearFresh_ = false;
    if (rear_) rear_->setHeld(false);
    if (front_) front_->setHeld(false);
}

void FrontRearLock::seekRear(double seconds) {
    lastTarget_ = seconds;
    rearFresh_ = false;
    seekSentAt_ = clock_.elapsed();
    rear_->seekExact(seconds);
}

}  // namespace tarvik
