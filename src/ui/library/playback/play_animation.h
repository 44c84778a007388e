#pragma once
// The dashboard's sign of life while a clip plays: the shock-car and earth
// icons swap between their two pictures once a second.

#include <QObject>
#include <cstdint>

class QLabel;
class QTimer;

namespace tarvik {

class PlayAnimation : public QObject {
    Q_OBJECT
public:
    static constexpr int kIntervalMilliseconds = 1000;

    PlayAnimation(QLabel* shockCarImageView, QLabel* earthImageView, QObject* parent = nullptr);

    void startPlayAnimation();
    void stopPlayAnimation();
    bool isRunning() const;
    void playAnimationTimerCallback();

    std::uint32_t playAnimationIdx() const { return playAnimationIdx_; }
    // 1 or 2: the picture shown by the last tick, 0 before any.
    int shownFrame() const { return shownFrame_; }

private:
    QLabel* shockCar_;
    QLabel* earth_;
    QTimer* playAnimationTimer_;
    std::uint32_t playAnimationIdx_ = 0;
    int shownFrame_ = 0;
};

}  // namespace tarvik
