#pragma once
// Four bars side by side, continuous, event, parking and manual recording,
// each as wide as its share of the card, with its percentage on it. Shares
// that add up to less than 100 leave the rest of the width empty.

#include <QWidget>
#include <array>

namespace tarvik {

class MemoryPartitionGraphView : public QWidget {
    Q_OBJECT
public:
    explicit MemoryPartitionGraphView(QWidget* parent = nullptr);

    void setPercents(const std::array<int, 4>& percents);
    const std::array<int, 4>& percents() const { return percents_; }
    // Left edge and width of bar i in this view.
    QRect barRect(int i) const;
    static QColor barColor(int i);

    QSize sizeHint() const override { return {420, 24}; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    std::array<int, 4> percents_{};
};

}  // namespace tarvik
