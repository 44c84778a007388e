#pragma once
// The splash shown while the viewer starts.

#include <QWidget>

class QLabel;

namespace tarvik {

class SplashWindow : public QWidget {
    Q_OBJECT
public:
    explicit SplashWindow(QWidget* parent = nullptr);
    QLabel* splashImagView() const { return image_; }

private:
    QLabel* image_;
};

}  // namespace tarvik
