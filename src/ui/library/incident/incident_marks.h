#pragma once
// The in and out points of an incident, kept as moments of the camera's clock
// so that a span may start in one clip of a trip and end in a later one. The
// part of the span that lies in the playing clip is shown as a band on the
// seek slider.

#include <QObject>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

class QSlider;
class QTimer;

namespace tarvik {

class IncidentSpanBand;

class IncidentMarks : public QObject {
    Q_OBJECT
public:
    struct Playing {
        std::string clip;        // empty when nothing plays
        std::int64_t start = 0;  // the clip's first picture, camera clock
        double seconds = 0;      // into the clip
        double length = 0;       // of the clip, as the slider knows it
    };
    using PlayingSource = std::function<Playing()>;

    // The band is drawn on the slider; `playing` is asked where playback is.
    IncidentMarks(QSlider* slider, PlayingSource playing, QObject* parent = nullptr);

    // The playing moment becomes the in (out) point. An out point before the
    // in point (or an in point after the out point) drops the other one.
    bool markIn();
    bool markOut();
    void clear();
    std::optional<double> inPoint() const { return in_; }
    std::optional<double> outPoint() const { return out_; }
    bool hasSpan() const { return in_ && out_; }
    Playing playing() const { return playing_(); }
    IncidentSpanBand* band() const { return band_; }
    // Draws the band again for the playing clip (the slider moves on its own).
    void refresh();

signals:
    void marksChanged();
    // A clip started playing (true) or none plays any more.
    void playingChanged(bool playing);

private:
    std::optional<double> playingMoment() const;

    PlayingSource playing_;
    IncidentSpanBand* band_;
    QTimer* poll_;
    std::optional<double> in_;
    std::optional<double> out_;
    bool hadClip_ = false;
};

}  // namespace tarvik
