#pragma once
// What a player view tells its owner. Every message carries the sending view
// first; an owner overrides only the messages it cares about.

#include "ui/library/player/orvo_av_view_status.h"

namespace tarvik {

class OrvoAVView;

class OrvoAVViewDelegate {
public:
    virtual ~OrvoAVViewDelegate() = default;
    // After every status change, always from the event loop, never from
    // inside the call that changed it. Carries the value set at that time.
    virtual void orvoAVViewDidUpdateStatus(OrvoAVView* view, OrvoAVViewStatus status) {}
    // 0 paused, 1 playing, 2/4/... fast forward, -2/-4/... rewind.
    virtual void orvoAVViewDidUpdateRate(OrvoAVView* view, float rate) {}
    // Every 0.1 s of playing time, and whenever the time jumps (seek, step).
    virtual void orvoAVViewDidUpdateTime(OrvoAVView* view, double seconds) {}
    virtual void orvoAVViewDidPlayToEndTime(OrvoAVView* view) {}
    // The right mouse button was released over the view.
    virtual void orvoAVViewDidRequestFullscreen(OrvoAVView* view) {}
};

}  // namespace tarvik
