#include "ui/settings/krt/labelled_radio_button.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "ui/controls/image_library.h"
#include "ui/controls/image_names.h"

namespace tarvik {

namespace {
constexpr int kMark = 18;
constexpr int kGap = 6;
}  // namespace

LabelledRadioButton::LabelledRadioButton(QWidget* parent) : RadioButton(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setEnabled(true);  // the shared button starts disabled
    setFocusPolicy(Qt::StrongFocus);  // Tab walks the pane's choices too
}

void LabelledRadioButton::keyPressEvent(QKeyEvent* e) {
    if (e->key() != Qt::Key_Space || e->isAutoRepeat()) {
        RadioButton::keyPressEvent(e);
        return;
    }
    const QPointF centre(height() / 2.0, height() / 2.0);
    QMouseEvent press(QEvent::MouseButtonPress, centre, mapToGlobal(centre), Qt::LeftButton, Qt::LeftButton, {});
    mousePressEvent(&press);
}

QSize LabelledRadioButton::sizeHint() const {
    const int textWidth = text().isEmpty() ? 0 : kGap + fontMetrics().horizontalAdvance(text()) + 2;
    return {kMark + textWidth, std::max(kMark + 4, fontMetrics().height() + 4)};
}

void LabelledRadioButton::changeEvent(QEvent* e) {
    RadioButton::changeEvent(e);
    if (e->type() == QEvent::FontChange) updateGeometry();
}

void LabelledRadioButton::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRect mark(0, (height() - kMark) / 2, kMark, kMark);
    QString image = currentImageName();
    if (image.isEmpty()) image = isCheckBoxMode() ? images::kCheckBoxEmpty : images::kRadioEmpty;
    const qreal dpr = devicePixelRatioF();
    QPixmap px = ImageLibrary::pixmap(image, mark.size() * dpr);
    if (!px.isNull()) {
        px.setDevicePixelRatio(dpr);
        p.drawPixmap(mark.topLeft(), px);
    }
    if (hasFocus()) {
        p.setPen(QPen(QColor(0xf2, 0xa3, 0x3a), 1, Qt::DotLine));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
    if (text().isEmpty()) return;
    // Explicit colours: the pane's style sheet would otherwise decide them.
    p.setPen(isEnabled() && QWidget::isEnabled() ? QColor(0xe6, 0xe8, 0xeb) : QColor(0x6a, 0x6e, 0x75));
    p.drawText(rect().adjusted(kMark + kGap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, text());
}

}  // namespace tarvik
