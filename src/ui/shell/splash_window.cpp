#include "ui/shell/splash_window.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

namespace tarvik {

SplashWindow::SplashWindow(QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      image_(new QLabel(this)) {
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(0, 0, 0, 0);
    l->addWidget(image_);
    image_->setAlignment(Qt::AlignCenter);
    setStyleSheet("background:#101215;");
}

}  // namespace tarvik
