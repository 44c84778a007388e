#include "ui/controls/radio_button.h"

#include <QMouseEvent>
#include <QPainter>
#include <map>

#include "ui/controls/image_library.h"

namespace tarvik {

namespace {
// Lives for the whole run; groups stay until removed explicitly.
std::map<int, QList<RadioButton*>>& registry() {
    static std::map<int, QList<RadioButton*>> groups;
    return groups;
}
}  // namespace

RadioButton::RadioButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::NoFocus);
    updateRadioButtonImage();
}

RadioButton::~RadioButton() { RemoveRadioButton(this); }

QList<RadioButton*> RadioButton::GetRadioButtonGroupFromGroupID(int groupID) {
    auto it = registry().find(groupID);
    return it == registry().end() ? QList<RadioButton*>() : it->second;
}

void RadioButton::AddRadioButton(RadioButton* button, int groupID) {
    if (!button) return;
    QList<RadioButton*>& group = registry()[groupID];
    if (!group.contains(button)) group.append(button);
}

void RadioButton::RemoveRadioButton(RadioButton* button) {
    for (auto& [id, group] : registry()) group.removeAll(button);
}

void RadioButton::RemoveRadioButtonGroupFromGroupID(int groupID) { registry().erase(groupID); }

void RadioButton::setRadioGroupID(int groupID) {
    groupID_ = groupID;
    RemoveRadioButton(this);
    AddRadioButton(this, groupID);
}

void RadioButton::setIsSelected(bool on) {
    selected_ = on;
    updateRadioButtonImage();
    if (!on) return;
    // A copy: turning others off must not be disturbed by changes to the group.
    const QList<RadioButton*> group = GetRadioButtonGroupFromGroupID(groupID_);
    for (RadioButton* other : group)
        if (other != this) other->setIsSelected(false);
}

void RadioButton::setIsCheckBoxMode(bool on) {
    checkBoxMode_ = on;
    updateRadioButtonImage();
}

void RadioButton::setEnabled(bool on) {
    radioEnabled_ = on;
    updateRadioButtonImage();
}

QString RadioButton::currentImageName() const {
    if (!radioEnabled_) return checkBoxMode_ ? QStringLiteral("pv_dst_check") : QStringLiteral("discheck2");
    if (selected_) return checkBoxMode_ ? QStringLiteral("check1") : QStringLiteral("check");
    return {};
}

void RadioButton::updateRadioButtonImage() {
    const QString name = currentImageName();
    if (name == image_) return;
    image_ = name;
    updateGeometry();
    update();
}

QSize RadioButton::sizeHint() const {
    QSize s = ImageLibrary::imageSize(QStringLiteral("check"));
    return s.isValid() ? s : QSize(18, 18);
}

void RadioButton::paintEvent(QPaintEvent*) {
    if (image_.isEmpty()) return;
    QPainter p(this);
    const qreal dpr = devicePixelRatioF();
    QSize own = ImageLibrary::imageSize(image_);
    if (!own.isValid()) return;
    // Drawn at its own size, centred, so a larger hit area does not stretch it.
    own = own.scaled(size(), Qt::KeepAspectRatio).boundedTo(own.expandedTo(QSize(1, 1)));
    QPixmap px = ImageLibrary::pixmap(image_, own * dpr);
    if (px.isNull()) return;
    px.setDevicePixelRatio(dpr);
    p.drawPixmap((width() - own.width()) / 2, (height() - own.height()) / 2, px);
}

void RadioButton::mousePressEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) {
        e->ignore();
        return;
    }
    if (radioEnabled_) setIsSelected(toggleMode_ ? !selected_ : true);
    // Reported whether enabled or not: the pane's handler decides.
    emit clicked(selected_);
}

void RadioButton::mouseReleaseEvent(QMouseEvent* e) { e->accept(); }

}  // namespace tarvik
