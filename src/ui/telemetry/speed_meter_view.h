#pragma once
// The speed at the playback position: a bar gauge of 24 segments (one per
// 10 display units, full at 240) and a three-digit read-out built from the
// digit images "0" to "9". The unit preference is read again on every
// update, so a change of unit shows at the next update or notification.

#include <QString>
#include <QWidget>

#include <array>
#include <cstdint>

namespace tarvik {

class SpeedMeterView : public QWidget {
    Q_OBJECT
public:
    static constexpr int kSegmentCount = 24;
    static constexpr const char* kSpeedUnitKey = "OrvoViewerSpeedUnit";

    explicit SpeedMeterView(QWidget* parent = nullptr);

    // Speed in whole km/h; 0 when there is no position.
    void setSpeed(uint32_t kmh);
    uint32_t speed() const { return speed_; }

    // Lights segments 1..trunc(value / 10); value is in display units.
    void setSpeedGauge(int value);

    // 1-based, in increasing order like the gauge itself.
    bool isGaugeSegmentVisible(int segment) const;
    int visibleGaugeSegmentCount() const;
    // Image name shown in the ones, tens and hundreds place; empty when cleared.
    QString number1() const { return digits_[0]; }
    QString number10() const { return digits_[1]; }
    QString number100() const { return digits_[2]; }
    // The read-out as the user sees it, e.g. "105"; empty when no digit shows.
    QString displayedDigits() const;
    bool isSpeedUnitMarkVisible() const { return unitMarkVisible_; }

    QSize sizeHint() const override { return {180, 180}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::array<bool, kSegmentCount> gaugeList_{};
    std::array<QString, 3> digits_;  // ones, tens, hundreds
    bool unitMarkVisible_ = false;
    uint32_t speed_ = 0;
};

}  // namespace tarvik
