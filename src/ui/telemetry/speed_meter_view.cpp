#include "ui/telemetry/speed_meter_view.h"

#include <QFont>
#include <QPainter>

#include <cmath>

#include "ui/app/prefs/notification_center.h"
#include "ui/app/prefs/qsettings_store.h"
#include "ui/telemetry/dashboard_images.h"

namespace tarvik {

namespace {

constexpr double kMilesPerKilometre = 0.621371;
// Below this many km/h the read-out stays blank, whichever unit is shown.
constexpr uint32_t kMinimumShownKmh = 9;
const QString kUnitMarkImage = QStringLiteral("mph");

bool mphSelected() {
    return QSettingsStore::shared().integer(SpeedMeterView::kSpeedUnitKey).value_or(0) != 0;
}

QString digitName(uint32_t digit) { return QString::number(digit); }

}  // namespace

SpeedMeterView::SpeedMeterView(QWidget* parent)
    : QWidget(parent), images_(new DashboardImages) {
    setSpeedGauge(0);
    // Re-showing the same speed re-reads the unit.
    connect(&NotificationCenter::shared(), &NotificationCenter::refreshSpeedUnit, this,
            [this] { setSpeed(speed_); });
}

SpeedMeterView::~SpeedMeterView() { delete images_; }

void SpeedMeterView::setSpeedGauge(int value) {
    const int lit = static_cast<int>(std::trunc(value / 10.0));
    for (int i = 1; i <= kSegmentCount; ++i) {
        gaugeList_[i - 1] = i <= lit;
    }
    update();
}

bool SpeedMeterView::isGaugeSegmentVisible(int segment) const {
    return segment >= 1 && segment <= kSegmentCount && gaugeList_[segment - 1];
}

int SpeedMeterView::visibleGaugeSegmentCount() const {
    int n = 0;
    for (bool shown : gaugeList_) {
        n += shown ? 1 : 0;
    }
    return n;
}

QString SpeedMeterView::displayedDigits() const {
    return digits_[2] + digits_[1] + digits_[0];
}

void SpeedMeterView::setSpeed(uint32_t kmh) {
    speed_ = kmh;
    const bool mph = mphSelected();
    const auto mphValue = static_cast<uint32_t>(std::roundf(static_cast<float>(kmh * kMilesPerKilometre)));
    unitMarkVisible_ = mph;
    const uint32_t shown = mph ? mphValue : kmh;
    setSpeedGauge(static_cast<int>(std::min<uint32_t>(shown, INT32_MAX)));

    digits_ = {};
    if (speed_ < kMinimumShownKmh) {
        update();
        return;
    }
    const uint32_t ones = shown % 10;
    const uint32_t tens = (shown / 10) % 10;
    const uint32_t hundreds = (shown / 10 / 10) % 10;
    digits_[0] = digitName(ones);
    if (hundreds != 0) {
        digits_[1] = digitName(tens);
        digits_[2] = digitName(hundreds);
    } else if (tens != 0) {
        digits_[1] = digitName(tens);
    }
    update();
}

void SpeedMeterView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    const QRectF area = rect();

    // Read-out: hundreds, tens, ones from left to right, centred above the bar.
    const qreal digitH = area.height() * 0.55;
    const qreal digitW = digitH * 0.62;
    const qreal markW = digitH * 1.1;
    const qreal groupW = 3 * digitW + markW;
    const qreal left = area.left() + (area.width() - groupW) / 2;
    const qreal top = area.top() + area.height() * 0.04;
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(digitH * 0.95));
    font.setBold(true);
    for (int place = 2; place >= 0; --place) {
        const QString& name = digits_[place];
        if (name.isEmpty()) {
            continue;
        }
        const QRectF cell(left + (2 - place) * digitW, top, digitW, digitH);
        if (!images_->draw(painter, name, cell)) {
            painter.setFont(font);
            painter.setPen(QColor(240, 240, 240));
            painter.drawText(cell, Qt::AlignCenter, name);
        }
    }
    if (unitMarkVisible_) {
        const QRectF cell(left + 3 * digitW + digitW * 0.15, top + digitH * 0.5, markW, digitH * 0.5);
        if (!images_->draw(painter, kUnitMarkImage, cell)) {
            QFont small = font;
            small.setPixelSize(static_cast<int>(digitH * 0.4));
            painter.setFont(small);
            painter.setPen(QColor(200, 200, 200));
            painter.drawText(cell, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("mph"));
        }
    }

    // Bar: segments grow taller and shift from green through yellow to red.
    const qreal barTop = area.top() + area.height() * 0.66;
    const qreal barH = area.height() - (barTop - area.top()) - 2;
    const qreal gap = 2;
    const qreal segW = (area.width() - 4 - gap * (kSegmentCount - 1)) / kSegmentCount;
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < kSegmentCount; ++i) {
        const qreal h = barH * (0.45 + 0.55 * i / (kSegmentCount - 1));
        const QRectF seg(area.left() + 2 + i * (segW + gap), barTop + barH - h, segW, h);
        if (gaugeList_[i]) {
            const qreal hue = 120.0 * (1.0 - static_cast<qreal>(i) / (kSegmentCount - 1)) / 360.0;
            painter.setBrush(QColor::fromHsvF(hue, 0.9, 0.95));
        } else {
            painter.setBrush(QColor(128, 128, 128, 60));
        }
        painter.drawRect(seg);
    }
}

}  // namespace tarvik
