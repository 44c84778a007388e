#include "ui/library/playback/play_animation.h"

#include <QLabel>
#include <QTimer>

#include "ui/controls/image_library.h"

namespace tarvik {

PlayAnimation::PlayAnimation(QLabel* shockCarImageView, QLabel* earthImageView, QObject* parent)
    : QObject(parent), shockCar_(shockCarImageView), earth_(earthImageView), playAnimationTimer_(new QTimer(this)) {
    playAnimationTimer_->setInterval(kIntervalMilliseconds);
    connect(playAnimationTimer_, &QTimer::timeout, this, &PlayAnimation::playAnimationTimerCallback);
}

void PlayAnimation::startPlayAnimation() {
    stopPlayAnimation();
    playAnimationTimer_->start();
}

void PlayAnimation::stopPlayAnimation() { playAnimationTimer_->stop(); }

bool PlayAnimation::isRunning() const { return playAnimationTimer_->isActive(); }

void PlayAnimation::playAnimationTimerCallback() {
    const int k = static_cast<int>(playAnimationIdx_ & 1u) + 1;
    ++playAnimationIdx_;
    shownFrame_ = k;
    for (QLabel* label : {shockCar_, earth_}) {
        if (!label) continue;
        const QString name = QString(label == shockCar_ ? "shock_gage%1" : "earth%1").arg(k);
        label->setPixmap(ImageLibrary::pixmap(name));
        label->show();
    }
}

}  // namespace tarvik
