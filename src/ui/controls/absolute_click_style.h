#pragma once
// A click on a slider's groove moves the handle to that point, rather than
// a page towards it: that is what a user expects of a volume control.

#include <QProxyStyle>

class QSlider;

namespace tarvik {

class AbsoluteClickStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override;

    // Gives `slider` a style of its own that jumps on a left click.
    static void install(QSlider* slider);
};

}  // namespace tarvik
