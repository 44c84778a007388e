#pragma once
// A three-step slider between a low and a high caption, with a guide of the
// three values over it that shows only while the slider is held; the guide
// label of the current value stands out.

#include <QLabel>
#include <QSlider>
#include <QWidget>
#include <array>

namespace tarvik {

class GuidedSlider : public QWidget {
    Q_OBJECT
public:
    // steps: the three values the slider offers, low to high.
    explicit GuidedSlider(const std::array<int, 3>& steps, QWidget* parent = nullptr);

    int value() const;
    // A value that is not a step shows the middle one.
    void setValue(int value);
    void setCaptions(const QString& low, const QString& high);

    void setGuideVisible(bool on);
    bool isGuideVisible() const { return guideVisible_; }
    // Index of the guide label standing out, -1 for none.
    int highlightedGuide() const { return highlighted_; }
    void highlightGuide(int index);

    QSlider* slider() const { return slider_; }
    QLabel* guideLabel(int i) const { return guides_[static_cast<std::size_t>(i)]; }

signals:
    void touchedDown();
    void touchedUp();
    // The user moved the slider to a value.
    void valueChanged(int value);

protected:
    void resizeEvent(QResizeEvent*) override;
    void changeEvent(QEvent*) override;

private:
    void placeGuides();

    std::array<int, 3> steps_;
    QSlider* slider_;
    QLabel* low_;
    QLabel* high_;
    QWidget* guideRow_;
    std::array<QLabel*, 3> guides_{};
    int highlighted_ = -1;
    bool guideVisible_ = false;
};

}  // namespace tarvik
