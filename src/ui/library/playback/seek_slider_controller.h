#pragma once
// The seek slider: a value in seconds on a QSlider. A press or drag puts the
// thumb under the pointer (not a page step), and the playing time moves the
// thumb only while the user is not holding it.

#include <QObject>

class QSlider;

namespace tarvik {

class SeekSliderController : public QObject {
    Q_OBJECT
public:
    // The slider counts milliseconds.
    static constexpr double kUnitsPerSecond = 1000.0;

    explicit SeekSliderController(QSlider* slider, QObject* parent = nullptr);

    QSlider* slider() const { return slider_; }
    double maxSliderValue() const { return maxSliderValue_; }
    void setMaxSliderValue(double seconds);
    double currentSliderValue() const { return currentSliderValue_; }
    // Clamped to the maximum; the thumb follows unless the user holds it.
    void setCurrentSliderValue(double seconds);
    bool isSliderTouching() const { return isSliderTouching_; }

    // The value under x (slider coordinates): the thumb's half width is the
    // margin at both ends. The upper clamp is the last thumb centre rather
    // than the track length, so the far right end reads a little above the
    // maximum; the seek then lands on the clip's end, which is what a user
    // pressing there wants.
    static double valueFromPosition(double x, double halfThumb, double width, double maxValue);

signals:
    void touchedDown(double seconds);
    void dragged(double seconds);
    void touchedUp(double seconds);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    double valueAt(double x) const;
    void moveThumbTo(double seconds);

    QSlider* slider_;
    double maxSliderValue_ = 0;
    double currentSliderValue_ = 0;
    bool isSliderTouching_ = false;
};

}  // namespace tarvik
