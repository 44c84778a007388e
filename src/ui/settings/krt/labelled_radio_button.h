#pragma once
// A radio button or check box with its text beside it: the whole row takes
// the click, and an unselected enabled button draws its empty ring or box
// itself (the shared button leaves that to whoever places it).

#include "ui/controls/radio_button.h"

namespace tarvik {

class LabelledRadioButton : public RadioButton {
    Q_OBJECT
public:
    explicit LabelledRadioButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override;
    void changeEvent(QEvent*) override;
    // Space chooses the focused button, as a click does.
    void keyPressEvent(QKeyEvent*) override;
};

}  // namespace tarvik
