#include "ui/controls/absolute_click_style.h"

#include <QSlider>
#include <QApplication>
#include <QStyleFactory>

namespace tarvik {

int AbsoluteClickStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                  QStyleHintReturn* returnData) const {
    if (hint == SH_Slider_AbsoluteSetButtons) return Qt::LeftButton;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

void AbsoluteClickStyle::install(QSlider* slider) {
    // A proxy over a fresh base style, owned by the slider: the application's
    // style is left alone.
    auto* style = new AbsoluteClickStyle(QStyleFactory::create(QApplication::style()->name()));
    style->setParent(slider);
    slider->setStyle(style);
}

}  // namespace tarvik
