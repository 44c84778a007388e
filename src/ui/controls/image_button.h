#pragma once
// A button drawn from a family of three images whose names differ only in the
// last character: 1 normal, 2 hover, 3 pressed.

#include <QAbstractButton>
#include <QColor>
#include <QString>

namespace tarvik {

class ImageButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit ImageButton(QWidget* parent = nullptr);
    explicit ImageButton(const QString& imageName, QWidget* parent = nullptr);

    // Shows the named image and re-derives the three names of its family.
    void setImage(const QString& name);
    QString imageName() const { return imageName_; }

    bool allowAutoMouseEventImage() const { return allowAuto_; }
    // Does not re-derive the names: set the image after changing this.
    void setAllowAutoMouseEventImage(bool on) { allowAuto_ = on; }

    QString normalImageName() const { return normalName_; }
    QString hoverImageName() const { return hoverName_; }
    QString clickImageName() const { return clickName_; }
    void resetImageNames();
    void ShowNormalImage();
    void ShowClickImage();

    bool isMouseDown() const { return mouseDown_; }

    // The title is drawn centred over the image in this colour.
    void setTitleColor(const QColor& c);
    QColor titleColor() const { return titleColor_; }

    // Detaches the button from whatever it reports to (clicks and hovers).
    void removeTarget();

    QSize sizeHint() const override;

signals:
    void hovered(tarvik::ImageButton* button);       // hoverSelector
    void hoverExited(tarvik::ImageButton* button);   // hoverExitSelector

protected:
    void paintEvent(QPaintEvent*) override;
    void enterEvent(QEnterEvent*) override;
    void leaveEvent(QEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;

private:
    void pointerEntered();
    void pointerExited();
    void showImageNamed(const QString& name);

    QString imageName_;
    QString normalName_, hoverName_, clickName_;
    QColor titleColor_ = Qt::white;
    bool allowAuto_ = true;
    bool mouseDown_ = false;
    bool pointerInside_ = false;
};

}  // namespace tarvik
