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
    // Reads the loaded clip's telemetry again; the slider's new range (a clip
    // has been prepared) does this by itself.
    void refresh();
    // False when there is no event that way.
    bool jumpToNextEvent();
    bool jumpToPreviousEvent();

private:
    bool jumpTo(int index);

    PlaybackController& playback_;
    EventMarkerView* view_;
};

}  // namespace tarvik
