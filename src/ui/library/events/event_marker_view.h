#pragma once
// Ticks over the seek slider where something happened in the clip. It lets
// every click through to the slider beneath and follows its size.

#include <QWidget>
#include <vector>

#include "core/telemetry/events/driving_event_finder.h"

class QSlider;

namespace tarvik {

class EventMarkerView : public QWidget {
    Q_OBJECT
public:
    explicit EventMarkerView(QSlider* slider);

    void setEvents(std::vector<DrivingEvent> events, double clipSeconds);
    const std::vector<DrivingEvent>& events() const { return events_; }
    // The x of a moment in this view, the slider's thumb centre at that time.
    double xForSeconds(double seconds) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSlider* slider_;
    std::vector<DrivingEvent> events_;
    double clipSeconds_ = 0;
};

}  // namespace tarvik
