#pragma once
// A translucent band over the seek slider between two moments of the clip,
// with an edge where a point lies in the clip (none where the span goes on
// into the clip before or after). Clicks go through to the slider.

#include <QWidget>

class QSlider;

namespace tarvik {

class IncidentSpanBand : public QWidget {
    Q_OBJECT
public:
    explicit IncidentSpanBand(QSlider* slider);

    // Seconds into the clip; from < 0 or to > length mean "beyond this clip".
    // Nothing is drawn when the span does not touch the clip.
    void setBand(double from, double to, double length);
    void clearBand();
    bool isShowingBand() const { return length_ > 0 && to_ > from_; }
    // The x of a moment of the clip, where the slider's thumb centre is at it.
    double xForSeconds(double seconds) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSlider* slider_;
    double from_ = 0, to_ = 0, length_ = 0;
};

}  // namespace tarvik
