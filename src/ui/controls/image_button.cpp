#include "ui/controls/image_button.h"

#include <QMouseEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "ui/controls/image_library.h"

namespace tarvik {

ImageButton::ImageButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover, false);
    setMouseTracking(false);
}

ImageButton::ImageButton(const QString& imageName, QWidget* parent) : ImageButton(parent) { setImage(imageName); }

void ImageButton::setImage(const QString& name) {
    imageName_ = ImageLibrary::baseName(name);
    resetImageNames();
    updateGeometry();
    update();
}

void ImageButton::resetImageNames() {
    if (!allowAuto_ || imageName_.isEmpty()) {
        normalName_.clear();
        hoverName_.clear();
        clickName_.clear();
        return;
    }
    const QString stem = imageName_.left(imageName_.size() - 1);
    normalName_ = stem + QLatin1Char('1');
    hoverName_ = stem + QLatin1Char('2');
    clickName_ = stem + QLatin1Char('3');
}

void ImageButton::showImageNamed(const QString& name) { setImage(name); }

void ImageButton::ShowNormalImage() { showImageNamed(normalName_); }

void ImageButton::ShowClickImage() { showImageNamed(clickName_); }

void ImageButton::setTitleColor(const QColor& c) {
    titleColor_ = c;
    update();
}

void ImageButton::removeTarget() {
    disconnect(this, &QAbstractButton::clicked, nullptr, nullptr);
    disconnect(this, &QAbstractButton::pressed, nullptr, nullptr);
    disconnect(this, &QAbstractButton::released, nullptr, nullptr);
    disconnect(this, &ImageButton::hovered, nullptr, nullptr);
    disconnect(this, &ImageButton::hoverExited, nullptr, nullptr);
}

QSize ImageButton::sizeHint() const {
    QSize s = ImageLibrary::imageSize(imageName_);
    return s.isValid() ? s : QSize(24, 24);
}

void ImageButton::paintEvent(QPaintEvent*) {
    QPainter p(this);
    // A disabled button must look it: the same image, faded.
    if (!isEnabled()) p.setOpacity(0.35);
    const qreal dpr = devicePixelRatioF();
    QPixmap px = ImageLibrary::pixmap(imageName_, size() * dpr);
    if (!px.isNull()) {
        px.setDevicePixelRatio(dpr);
        p.drawPixmap(0, 0, px);
    }
    if (!text().isEmpty()) {
        // Longer translations shrink down to a readable size, then elide,
        // rather than run over the neighbouring buttons.
        const QRect box = rect().adjusted(3, 0, -3, 0);
        QFont f = font();
        const bool pixels = f.pixelSize() > 0;
        auto size = [&] { return pixels ? qreal(f.pixelSize()) : f.pointSizeF(); };
        const qreal minimum = std::min<qreal>(size(), pixels ? 9.0 : 7.0);
        while (size() > minimum && QFontMetricsF(f).horizontalAdvance(text()) > box.width()) {
            if (pixels)
                f.setPixelSize(f.pixelSize() - 1);
            else
                f.setPointSizeF(std::max(minimum, f.pointSizeF() - 0.5));
        }
        p.setFont(f);
        p.setPen(titleColor_);
        p.drawText(box, Qt::AlignCenter, QFontMetrics(f).elidedText(text(), Qt::ElideRight, box.width()));
    }
}

// Entering and leaving are tracked here rather than taken from Qt's enter and
// leave events alone: while a press holds the mouse, Qt reports neither, but a
// press dragged off the button must count as leaving it.
void ImageButton::pointerEntered() {
    if (pointerInside_) return;
    pointerInside_ = true;
    if (!isEnabled() || !allowAuto_) return;
    mouseDown_ = false;
    showImageNamed(hoverName_);
    emit hovered(this);
}

void ImageButton::pointerExited() {
    if (!pointerInside_) return;
    pointerInside_ = false;
    if (!isEnabled() || !allowAuto_) return;
    mouseDown_ = false;
    showImageNamed(normalName_);
    emit hoverExited(this);
}

void ImageButton::enterEvent(QEnterEvent*) { pointerEntered(); }

void ImageButton::leaveEvent(QEvent*) { pointerExited(); }

void ImageButton::mouseMoveEvent(QMouseEvent* e) {
    if (!(e->buttons() & Qt::LeftButton)) return;
    if (rect().contains(e->position().toPoint()))
        pointerEntered();
    else
        pointerExited();
}

void ImageButton::mousePressEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) {
        e->ignore();
        return;
    }
    pointerInside_ = true;
    if (isEnabled() && allowAuto_) ShowClickImage();
    mouseDown_ = true;
}

void ImageButton::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) {
        e->ignore();
        return;
    }
    if (!isEnabled()) return;
    if (allowAuto_) showImageNamed(hoverName_);
    // Where the pointer is at release is not looked at: leaving the button has
    // already cleared the press when automatic images are on.
    if (mouseDown_) {
        mouseDown_ = false;
        emit clicked(false);
    }
}

}  // namespace tarvik
