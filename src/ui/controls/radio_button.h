#pragma once
// An image-drawn radio button or check box. Mutual exclusion goes through a
// process-wide registry of groups keyed by group id, so buttons in different
// views can form one group.

#include <QAbstractButton>
#include <QList>

namespace tarvik {

class RadioButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit RadioButton(QWidget* parent = nullptr);
    ~RadioButton() override;  // leaves the registry, so it never holds a dead button

    // ---- the registry ----
    static QList<RadioButton*> GetRadioButtonGroupFromGroupID(int groupID);
    static void AddRadioButton(RadioButton* button, int groupID);
    static void RemoveRadioButton(RadioButton* button);
    static void RemoveRadioButtonGroupFromGroupID(int groupID);

    int radioGroupID() const { return groupID_; }
    void setRadioGroupID(int groupID);

    bool isSelected() const { return selected_; }
    // Turning a button on turns every other button of its group off.
    void setIsSelected(bool on);
    bool isCheckBoxMode() const { return checkBoxMode_; }
    void setIsCheckBoxMode(bool on);
    bool isToggleMode() const { return toggleMode_; }
    void setIsToggleMode(bool on) { toggleMode_ = on; }

    // The enabled state is kept here, not by the widget: a disabled radio button
    // still receives clicks and reports them (clicked()), it only does not
    // change state. These hide QWidget's own setEnabled/isEnabled on purpose.
    void setEnabled(bool on);
    bool isEnabled() const { return radioEnabled_; }

    // The image for the current state ("" for none).
    QString currentImageName() const;
    void updateRadioButtonImage();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    int groupID_ = 0;
    bool selected_ = false;
    bool checkBoxMode_ = false;
    bool toggleMode_ = false;
    bool radioEnabled_ = false;
    QString image_;
};

}  // namespace tarvik
