#include "ui/settings/m420/m420_control_widget.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>

#include "core/settings/m420/m420_pane_mapping.h"

namespace tarvik {

using m420pane::Widget;

M420ControlWidget::M420ControlWidget(const m420pane::ControlSpec& spec, int minimum, int maximum,
                                     const QStringList& choices, QWidget* parent)
    : QWidget(parent), spec_(spec) {
    setObjectName(spec.name);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    switch (spec.widget) {
    case Widget::Slider: {
        auto* s = new QSlider(Qt::Horizontal, this);
        s->setRange(minimum, maximum);
        s->setPageStep(1);
        s->setTickPosition(QSlider::TicksBelow);
        s->setTickInterval(1);
        slider_ = s;
        sliderValue_ = new QLabel(this);
        sliderValue_->setMinimumWidth(28);
        layout->addWidget(s, 1);
        layout->addWidget(sliderValue_);
        sliderValue_->setMinimumWidth(36);
        connect(s, &QSlider::valueChanged, this, [this](int) {
            showSliderValue(true);
            report();
        });
        break;
    }
    case Widget::Rows:
    case Widget::Columns:
        group_ = new QButtonGroup(this);
        for (int i = 0; i < choices.size(); ++i) {
            auto* b = new QRadioButton(choices[i], this);
            group_->addButton(b, i);
            layout->addWidget(b);
        }
        layout->addStretch();
        connect(group_, &QButtonGroup::idClicked, this, [this](int) { report(); });
        break;
    case Widget::Check:
        check_ = new QCheckBox(this);
        layout->addWidget(check_);
        connect(check_, &QCheckBox::toggled, this, [this](bool) { report(); });
        break;
    case Widget::Combo:
        combo_ = new QComboBox(this);
        combo_->addItems(choices);
        combo_->setMaxVisibleItems(16);
        layout->addWidget(combo_, 1);
        connect(combo_, &QComboBox::activated, this, [this](int) { report(); });
        break;
    case Widget::Button:
    case Widget::Clock:
        break;
    }
}

int M420ControlWidget::position() const {
    if (slider_) return slider_->value();
    if (group_) return group_->checkedId();
    if (check_) return check_->isChecked() ? 1 : 0;
    if (combo_) return combo_->currentIndex();
    return m420pane::kNoPosition;
}

void M420ControlWidget::setPosition(int p) {
    if (slider_) {
        QSignalBlocker block(slider_);
        slider_->setValue(p == m420pane::kNoPosition ? slider_->minimum() : p);
        showSliderValue(p != m420pane::kNoPosition);
    } else if (group_) {
        QSignalBlocker block(group_);
        // An exclusive group cannot show "none" otherwise.
        group_->setExclusive(false);
        for (QAbstractButton* b : group_->buttons()) b->setChecked(group_->id(b) == p);
        group_->setExclusive(true);
    } else if (check_) {
        QSignalBlocker block(check_);
        check_->setChecked(p == 1);
    } else if (combo_) {
        QSignalBlocker block(combo_);
        combo_->setCurrentIndex(p < combo_->count() ? p : -1);
    }
}

void M420ControlWidget::setChoiceLabels(const QStringList& labels) {
    if (group_) {
        for (QAbstractButton* b : group_->buttons())
            if (group_->id(b) < labels.size()) b->setText(labels[group_->id(b)]);
    } else if (combo_) {
        for (int i = 0; i < combo_->count() && i < labels.size(); ++i) combo_->setItemText(i, labels[i]);
    }
}

void M420ControlWidget::setValueText(std::function<QString(int)> text) {
    valueText_ = std::move(text);
    if (slider_ && sliderValue_->text() != "-") showSliderValue(true);
}

void M420ControlWidget::showSliderValue(bool known) {
    const int v = slider_->value();
    sliderValue_->setText(!known ? QString("-") : valueText_ ? valueText_(v) : QString::number(v));
}

void M420ControlWidget::setControlEnabled(bool on) { setEnabled(on); }

void M420ControlWidget::report() { emit positionChanged(spec_.id, position()); }

}  // namespace tarvik
