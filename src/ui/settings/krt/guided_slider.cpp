#include "ui/settings/krt/guided_slider.h"

#include <QEvent>
#include <QGridLayout>
#include <QStyle>
#include <QStyleOptionSlider>

namespace tarvik {

namespace {
constexpr int kSliderWidth = 180;
}  // namespace

GuidedSlider::GuidedSlider(const std::array<int, 3>& steps, QWidget* parent)
    : QWidget(parent), steps_(steps), slider_(new QSlider(Qt::Horizontal, this)), low_(new QLabel(this)),
      high_(new QLabel(this)), guideRow_(new QWidget(this)) {
    slider_->setRange(0, 2);
    slider_->setPageStep(1);
    slider_->setTickPosition(QSlider::TicksBelow);
    slider_->setTickInterval(1);
    slider_->setFixedWidth(kSliderWidth);
    slider_->setFocusPolicy(Qt::StrongFocus);
    guideRow_->setFixedSize(kSliderWidth, fontMetrics().height() + 2);
    for (std::size_t i = 0; i < guides_.size(); ++i) {
        guides_[i] = new QLabel(QString::number(steps_[i]), guideRow_);
        guides_[i]->setAlignment(Qt::AlignCenter);
    }
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(0);
    grid->addWidget(guideRow_, 0, 1);
    grid->addWidget(low_, 1, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(slider_, 1, 1);
    grid->addWidget(high_, 1, 2, Qt::AlignLeft | Qt::AlignVCenter);
    grid->setColumnStretch(3, 1);

    connect(slider_, &QSlider::sliderPressed, this, &GuidedSlider::touchedDown);
    connect(slider_, &QSlider::sliderReleased, this, &GuidedSlider::touchedUp);
    // setValue() blocks this, so filling the pane never writes a line.
    connect(slider_, &QSlider::valueChanged, this, [this] { emit valueChanged(value()); });
    setGuideVisible(false);
}

int GuidedSlider::value() const { return steps_[static_cast<std::size_t>(std::clamp(slider_->value(), 0, 2))]; }

void GuidedSlider::setValue(int value) {
    int position = 1;
    for (int i = 0; i < 3; ++i)
        if (steps_[static_cast<std::size_t>(i)] == value) position = i;
    const QSignalBlocker block(slider_);
    slider_->setValue(position);
}

void GuidedSlider::setCaptions(const QString& low, const QString& high) {
    low_->setText(low);
    high_->setText(high);
}

// The row keeps its place while hidden so the slider never jumps under the pointer.
void GuidedSlider::setGuideVisible(bool on) {
    guideVisible_ = on;
    for (QLabel* l : guides_) l->setVisible(on);
}

void GuidedSlider::highlightGuide(int index) {
    highlighted_ = index;
    for (int i = 0; i < 3; ++i) {
        QLabel* l = guides_[static_cast<std::size_t>(i)];
        QFont f = font();
        f.setBold(i == index);
        l->setFont(f);
        l->setStyleSheet(i == index ? "color: #f2a33a;" : "color: #8a9099;");
    }
}

void GuidedSlider::resizeEvent(QResizeEvent* e) {
    QWidget::resizeEvent(e);
    placeGuides();
}

void GuidedSlider::changeEvent(QEvent* e) {
    QWidget::changeEvent(e);
    if (e->type() == QEvent::EnabledChange) {
        low_->setEnabled(isEnabled());
        high_->setEnabled(isEnabled());
    }
}

void GuidedSlider::placeGuides() {
    // Each guide label sits over the position its value takes on the groove.
    QStyleOptionSlider opt;
    opt.initFrom(slider_);
    opt.orientation = Qt::Horizontal;
    opt.minimum = slider_->minimum();
    opt.maximum = slider_->maximum();
    const QRect handle = slider_->style()->subControlRect(QStyle::CC_Slider, &opt, QStyle::SC_SliderHandle, slider_);
    const int span = slider_->width() - handle.width();
    const int w = 40;
    for (int i = 0; i < 3; ++i) {
        const int centre = handle.width() / 2 + QStyle::sliderPositionFromValue(0, 2, i, span);
        guides_[static_cast<std::size_t>(i)]->setGeometry(centre - w / 2, 0, w, guideRow_->height());
    }
}

}  // namespace tarvik
