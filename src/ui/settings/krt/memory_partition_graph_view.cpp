#include "ui/settings/krt/memory_partition_graph_view.h"

#include <QPainter>
#include <algorithm>

namespace tarvik {

MemoryPartitionGraphView::MemoryPartitionGraphView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void MemoryPartitionGraphView::setPercents(const std::array<int, 4>& percents) {
    percents_ = percents;
    update();
}

QColor MemoryPartitionGraphView::barColor(int i) {
    static const QColor colors[4] = {QColor(0x4c, 0xb8, 0x4a), QColor(0xf0, 0xd0, 0x3c), QColor(0xf0, 0x8c, 0x28),
                                     QColor(0xe0, 0x3c, 0x3c)};
    return colors[std::clamp(i, 0, 3)];
}

QRect MemoryPartitionGraphView::barRect(int i) const {
    // A hand-edited file may hold anything: each bar is clamped to the view
    // and the bars stop at its right edge.
    int x = 0;
    for (int k = 0; k < 4; ++k) {
        const int w = std::clamp(percents_[static_cast<std::size_t>(k)], 0, 100) * width() / 100;
        const int clipped = std::clamp(w, 0, std::max(0, width() - x));
        if (k == i) return {x, 0, clipped, height()};
        x += clipped;
    }
    return {};
}

void MemoryPartitionGraphView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), QColor(0x2a, 0x2d, 0x33));
    QFont f = font();
    f.setPointSizeF(f.pointSizeF() * 0.85);
    p.setFont(f);
    for (int i = 0; i < 4; ++i) {
        const QRect r = barRect(i);
        if (r.width() <= 0) continue;
        p.fillRect(r, barColor(i));
        const QString label = QString::number(percents_[static_cast<std::size_t>(i)]) + "%";
        if (p.fontMetrics().horizontalAdvance(label) + 2 > r.width()) continue;
        p.setPen(QColor(0x10, 0x10, 0x10));
        p.drawText(r, Qt::AlignCenter, label);
    }
}

}  // namespace tarvik
