#include "ui/library/playback/fullscreen_control_bar.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPropertyAnimation>

#include "ui/controls/image_button.h"
#include "ui/controls/image_library.h"

namespace tarvik {

FullscreenControlBar::FullscreenControlBar(QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus),
      fade_(new QPropertyAnimation(this, "windowOpacity", this)) {
    setObjectName("fullscreenMovieControlWindow");
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(24, 10, 24, 10);
    row->setSpacing(14);
    auto make = [&](const char* image, const char* name) {
        auto* b = new ImageButton(QString::fromLatin1(image), this);
        b->setObjectName(QString::fromLatin1(name));
        b->setFixedSize(40, 40);
        b->setFocusPolicy(Qt::NoFocus);
        row->addWidget(b);
        return b;
    };
    rewind_ = make("rewind_btn_1", "fullScreenRewindButton");
    playPause_ = make("play_1", "fullScreenPlayPauseButton");
    fastForward_ = make("fast_forward_btn_1", "fullScreenFastForwardButton");
    exit_ = make("fullscreen_exit_btn_1", "fullScreenExitButton");
    setFixedSize(sizeHint());
    fade_->setDuration(kFadeMilliseconds);
}

void FullscreenControlBar::fadeIn(const QRect& screenGeometry) {
    move(screenGeometry.x() + (screenGeometry.width() - width()) / 2,
         screenGeometry.bottom() - height() - kBottomMargin);
    fade_->stop();
    setWindowOpacity(0.0);
    show();
    raise();
    fade_->setStartValue(0.0);
    fade_->setEndValue(1.0);
    fade_->start();
}

void FullscreenControlBar::hideNow() {
    fade_->stop();
    setWindowOpacity(0.0);
    hide();
}

void FullscreenControlBar::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const QPixmap bg = ImageLibrary::pixmap("fullscreen_control_bg", size());
    if (!bg.isNull()) {
        p.drawPixmap(0, 0, bg);
        return;
    }
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(20, 22, 26, 220));
    p.drawRoundedRect(rect(), 12, 12);
}

}  // namespace tarvik
