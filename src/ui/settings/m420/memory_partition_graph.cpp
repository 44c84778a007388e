#include "ui/settings/m420/memory_partition_graph.h"

#include <QPainter>

#include "ui/l10n/orvo_languages.h"

namespace tarvik {

namespace {
const std::array<QColor, 5> kColours = {QColor(0x3d, 0x8b, 0xfd), QColor(0xf5, 0x9e, 0x0b), QColor(0x22, 0xc5, 0x5e),
                                        QColor(0xef, 0x44, 0x44), QColor(0xa8, 0x55, 0xf7)};
}

MemoryPartitionGraph::MemoryPartitionGraph(QWidget* parent) : QWidget(parent) {
    setObjectName("memoryPartitionGraph");
    setMinimumHeight(64);
}

const std::array<const char*, 5>& MemoryPartitionGraph::areaKeys() {
    static const std::array<const char*, 5> keys = {"상시", "상시 충격", "주차 모션", "주차 충격", "수동"};
    return keys;
}

void MemoryPartitionGraph::setShares(const std::array<double, 5>& shares) {
    shares_ = shares;
    update();
}

QStringList MemoryPartitionGraph::percentTexts() const {
    QStringList out;
    for (double s : shares_) out << QString::asprintf("%.1f%%", s);
    return out;
}

void MemoryPartitionGraph::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double w = width();
    const int barH = 18;
    double x = 0;
    const QStringList texts = percentTexts();
    // Bars are their share of the whole width; the designed figures do not
    // always add up to 100, and the gap at the end shows it.
    for (std::size_t i = 0; i < shares_.size(); ++i) {
        const double bw = w * shares_[i] / 100.0;
        p.fillRect(QRectF(x, 0, bw, barH), kColours[i]);
        x += bw;
    }
    p.setPen(QColor(0x55, 0x5b, 0x66));
    p.drawRect(QRectF(0.5, 0.5, w - 1, barH));
    QFont f = font();
    f.setPointSizeF(f.pointSizeF() * 0.78);
    p.setFont(f);
    const double cell = w / 5.0;
    for (std::size_t i = 0; i < shares_.size(); ++i) {
        const QRectF swatch(cell * static_cast<double>(i), barH + 8, 10, 10);
        p.fillRect(swatch, kColours[i]);
        p.setPen(Qt::white);
        p.drawText(QRectF(swatch.right() + 3, barH + 4, cell - 13, 18), Qt::AlignLeft | Qt::AlignVCenter,
                   tr_k(areaKeys()[i]));
        p.drawText(QRectF(swatch.right() + 4, barH + 22, cell - 16, 18), Qt::AlignLeft | Qt::AlignVCenter,
                   texts[static_cast<int>(i)]);
    }
}

}  // namespace tarvik
