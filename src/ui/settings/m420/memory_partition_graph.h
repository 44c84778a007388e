#pragma once
// The card's five recording areas as coloured bars and percentages.

#include <QStringList>
#include <QWidget>
#include <array>

namespace tarvik {

class MemoryPartitionGraph : public QWidget {
    Q_OBJECT
public:
    explicit MemoryPartitionGraph(QWidget* parent = nullptr);

    void setShares(const std::array<double, 5>& shares);
    const std::array<double, 5>& shares() const { return shares_; }
    // "%.1f%%" of each share, in area order.
    QStringList percentTexts() const;
    // The names of the areas (localisation keys).
    static const std::array<const char*, 5>& areaKeys();

    QSize sizeHint() const override { return {520, 64}; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    std::array<double, 5> shares_{};
};

}  // namespace tarvik
