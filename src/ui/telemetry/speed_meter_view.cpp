#include "ui/telemetry/speed_meter_view.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <algorithm>
#include <cmath>

#include "ui/base/prefs/notification_center.h"
#include "ui/base/prefs/qsettings_store.h"
#include "ui/controls/image_library.h"
#include "ui/controls/image_names.h"

namespace tarvik {

namespace {

constexpr double kMilesPerKilometre = 0.621371;
// Below this many km/h the read-out stays blank, whichever unit is shown.
constexpr uint32_t kMinimumShownKmh = 9;

// Miles only when the user picked them (1). The value written at first start
// (2) is km/h, as the unit menu shows it: the gauge must never disagree with
// the menu's check mark.
bool mphSelected() {
    return QSettingsStore::shared().integer(SpeedMeterView::kSpeedUnitKey).value_or(0) == 1;
}

QString digitName(uint32_t digit) { return QString::number(digit); }

bool drawImage(QPainter& painter, const QString& name, const QRectF& rect) {
    const QPixmap pixmap = ImageLibrary::pixmap(name, rect.size().toSize());
    if (pixmap.isNull()) {
        return false;
    }
    painter.drawPixmap(rect, pixmap, QRectF(pixmap.rect()));
    return true;
}

// Stand-ins for missing artwork: the same dial, drawn plainly.
QPainterPath segmentPath(const QRectF& face, int index) {
    // 24 segments on a 240-degree arc, from lower left clockwise to lower right.
    const qreal span = 240.0 / SpeedMeterView::kSegmentCount;
    const qreal start = 210.0 - index * span - 1.0;
    const QPointF c = face.center();
    const qreal outer = face.width() * 0.45;
    const qreal inner = face.width() * 0.36;
    QPainterPath path;
    path.arcMoveTo(QRectF(c.x() - outer, c.y() - outer, 2 * outer, 2 * outer), start);
    path.arcTo(QRectF(c.x() - outer, c.y() - outer, 2 * outer, 2 * outer), start, -(span - 2.0));
    path.arcTo(QRectF(c.x() - inner, c.y() - inner, 2 * inner, 2 * inner), start - (span - 2.0), span - 2.0);
    path.closeSubpath();
    return path;
}

void drawFallbackFace(QPainter& painter, const QRectF& face) {
    painter.setPen(QPen(QColor(58, 63, 72), 2));
    painter.setBrush(QColor(20, 22, 26));
    painter.drawEllipse(face.adjusted(2, 2, -2, -2));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 168, 38, 40));
    for (int i = 0; i < SpeedMeterView::kSegmentCount; ++i) {
        painter.drawPath(segmentPath(face, i));
    }
}

void drawFallbackSegment(QPainter& painter, const QRectF& face, int index) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 168, 38));
    painter.drawPath(segmentPath(face, index));
}

void drawFallbackText(QPainter& painter, const QRectF& cell, const QString& text, qreal pixels) {
    QFont font = painter.font();
    font.setPixelSize(std::max(1, static_cast<int>(pixels)));
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QColor(240, 240, 240));
    painter.drawText(cell, Qt::AlignCenter, text);
}

}  // namespace

SpeedMeterView::SpeedMeterView(QWidget* parent)
    : QWidget(parent) {
    setSpeedGauge(0);
    // Re-showing the same speed re-reads the unit.
    connect(&NotificationCenter::shared(), &NotificationCenter::refreshSpeedUnit, this,
            [this] { setSpeed(speed_); });
}

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
    namespace dial = images::speedometer;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    // The artwork is a square dial; keep it square and centred in any frame.
    const qreal side = std::min(width(), height());
    const qreal k = side / dial::kSize;
    const QPointF origin((width() - side) / 2, (height() - side) / 2);
    auto place = [&](qreal x, qreal y, qreal w, qreal h) {
        return QRectF(origin.x() + x * k, origin.y() + y * k, w * k, h * k);
    };
    const QRectF face = place(0, 0, dial::kSize, dial::kSize);

    if (!drawImage(painter, QString::fromLatin1(images::kSpeedometerBackground), face)) {
        drawFallbackFace(painter, face);
    }
    for (int i = 0; i < kSegmentCount; ++i) {
        if (gaugeList_[i] &&
            !drawImage(painter, QString::fromLatin1(images::kSpeedGaugeSegments[i]), face)) {
            drawFallbackSegment(painter, face, i);
        }
    }
    const int digitX[3] = {dial::kOnesX, dial::kTensX, dial::kHundredsX};
    for (int slot = 0; slot < 3; ++slot) {
        if (digits_[slot].isEmpty()) {
            continue;
        }
        const QRectF cell = place(digitX[slot], dial::kDigitY, dial::kDigitWidth, dial::kDigitHeight);
        if (!drawImage(painter, digits_[slot], cell)) {
            drawFallbackText(painter, cell, digits_[slot], cell.height() * 0.9);
        }
    }
    if (unitMarkVisible_) {
        const QRectF cell = place(dial::kUnitMarkX, dial::kUnitMarkY, 36, 16);
        if (!drawImage(painter, QString::fromLatin1(images::kSpeedUnitMph), cell)) {
            painter.fillRect(cell, QColor(20, 22, 26));
            drawFallbackText(painter, cell, QStringLiteral("mph"), cell.height() * 0.8);
        }
    }
}

}  // namespace tarvik
