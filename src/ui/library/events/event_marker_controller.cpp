#include "ui/library/events/event_marker_controller.h"

#include <QShortcut>
#include <QSlider>

#include "core/telemetry/orvo_clip_data.h"
#include "ui/library/events/event_marker_view.h"
#include "ui/library/playback/playback_controller.h"
#include "ui/library/playback/seek_slider_controller.h"

namespace tarvik {

EventMarkerController::EventMarkerController(PlaybackController& playback, QWidget* shortcutHost, QObject* parent)
    : QObject(parent), playback_(playback), view_(new EventMarkerView(playback.seekSlider().slider())) {
    auto* next = new QShortcut(QKeySequence(Qt::Key_BracketRight), shortcutHost);
    auto* prev = new QShortcut(QKeySequence(Qt::Key_BracketLeft), shortcutHost);
    connect(next, &QShortcut::activated, this, [this] { jumpToNextEvent(); });
    connect(prev, &QShortcut::activated, this, [this] { jumpToPreviousEvent(); });
}

void EventMarkerController::refresh(double clipSeconds) {
    const OrvoClipData& data = playback_.clipData();
    double seconds = clipSeconds;
    if (seconds <= 0) seconds = data.clipDataCount() / 10.0;
    view_->setEvents(findDrivingEvents(data), seconds);
}

bool EventMarkerController::jumpTo(int index) {
    if (index < 0) return false;
    const double t = view_->events()[static_cast<std::size_t>(index)].seconds;
    playback_.seekSlider().setCurrentSliderValue(t);
    playback_.seekTimeSliderTouchedUp(t);
    return true;
}

bool EventMarkerController::jumpToNextEvent() {
    return jumpTo(nextDrivingEvent(view_->events(), playback_.seekSlider().currentSliderValue()));
}

bool EventMarkerController::jumpToPreviousEvent() {
    return jumpTo(previousDrivingEvent(view_->events(), playback_.seekSlider().currentSliderValue()));
}

}  // namespace tarvik
