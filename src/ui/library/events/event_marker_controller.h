#pragma once
// Finds the events of the clip that is loaded, marks them on the seek slider,
// and jumps between them: "]" to the next, "[" to the previous.

#include <QObject>

class QSlider;
class QWidget;

namespace tarvik {

class EventMarkerView;
class PlaybackController;

class EventMarkerController : public QObject {
    Q_OBJECT
public:
    // Keys are taken while shortcutHost's window is active.
    EventMarkerController(PlaybackController& playback, QWidget* shortcutHost, QObject* parent = nullptr);

    EventMarkerView* view() const { return view_; }
    // Reads the loaded clip's telemetry again: call when a clip is loaded
    // (its length unknown, 0: the telemetry's is taken) and when the player
    // knows the length.
    void refresh(double clipSeconds = 0);
    // False when there is no event that way.
    bool jumpToNextEvent();
    bool jumpToPreviousEvent();

private:
    bool jumpTo(int index);

    PlaybackController& playback_;
    EventMarkerView* view_;
};

}  // namespace tarvik
