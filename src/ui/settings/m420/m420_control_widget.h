#pragma once
// One control of the M420 settings pane built from its table row: a slider,
// a row of radio buttons, a check box or a combo box, read and set as a single
// position (kNoPosition for none) so the pane needs no per-control code.

#include <QStringList>
#include <functional>
#include <QWidget>

#include "core/settings/m420/m420_pane_features.h"

class QAbstractSlider;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;

namespace tarvik {

class M420ControlWidget : public QWidget {
    Q_OBJECT
public:
    // choices: the labels of the radio buttons or combo items.
    M420ControlWidget(const m420pane::ControlSpec& spec, int minimum, int maximum, const QStringList& choices,
                      QWidget* parent = nullptr);

    m420pane::Control control() const { return spec_.id; }
    int position() const;
    // Shows the position without reporting it; kNoPosition clears a choice.
    void setPosition(int position);
    void setChoiceLabels(const QStringList& labels);
    // How a slider shows its value (the number itself by default).
    void setValueText(std::function<QString(int)> text);
    // Greys the control out (parking-mode dependants).
    void setControlEnabled(bool on);
    QAbstractSlider* slider() const { return slider_; }
    QButtonGroup* buttons() const { return group_; }
    QComboBox* comboBox() const { return combo_; }
    QCheckBox* checkBox() const { return check_; }

signals:
    void positionChanged(tarvik::m420pane::Control control, int position);

private:
    void report();

    void showSliderValue(bool known);

    m420pane::ControlSpec spec_;
    std::function<QString(int)> valueText_;
    QAbstractSlider* slider_ = nullptr;
    QLabel* sliderValue_ = nullptr;
    QButtonGroup* group_ = nullptr;
    QComboBox* combo_ = nullptr;
    QCheckBox* check_ = nullptr;
};

}  // namespace tarvik
