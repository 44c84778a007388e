#pragma once
// Keeps the rear camera's player on the front player's time: the front sets
// the time and the rear follows. Whatever the front is asked (rate, seek)
// the rear is asked at once; whenever the front stands still (paused, a
// frame step, a seek done) the rear is seeked exactly to the front's frame;
// while both play, the rear runs a little faster or slower until it is level
// again. A seek while playing holds both pictures until both players have
// found their frame, then lets both go together. A rear that ends sooner
// holds its last picture meanwhile.

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>

class QTimer;

namespace tarvik {

class MpvPlayer;

class FrontRearLock : public QObject {
    Q_OBJECT
public:
    explicit FrontRearLock(QObject* parent = nullptr);

    // The rear may be null: a front alone has nothing to follow it.
    void lock(MpvPlayer* front, MpvPlayer* rear);
    void release();
    MpvPlayer* front() const;
    MpvPlayer* rear() const;

private:
    void onFrontTime(double seconds);
    void onRearTime(double seconds);
    void mirrorRate(float rate);
    void mirrorSeek(double seconds);
    void follow();
    void standWithFront(double frontTime);
    void playWithFront(double frontTime);
    // Where the rear should be for a front time: its own end when the front is past it.
    double rearTargetFor(double frontTime) const;
    bool pastRearEnd(double frontTime) const;
    void seekRear(double seconds);
    // Seconds since a time was reported.
    double sinceReport(qint64 at) const;
    // Both stand still (still counting as playing) until both found their frame.
    void closeGate();
    void openGate();

    QPointer<MpvPlayer> front_;
    QPointer<MpvPlayer> rear_;
    QList<QMetaObject::Connection> connections_;
    QElapsedTimer clock_;
    // Times as last reported, and when: a picture's time holds for a frame,
    // so both are carried forward to one moment before they are compared.
    double frontTime_ = 0.0;
    qint64 frontAt_ = 0;
    double rearTime_ = 0.0;
    qint64 rearAt_ = 0;
    // A time reported since the latest seek of its player.
    bool frontFresh_ = true;
    bool rearFresh_ = true;
    double offset_ = 0.0;  // front minus rear while playing, smoothed
    double lastTarget_ = -1.0;
    qint64 holdUntil_ = 0;  // the rear stands still until then, waiting for the front
    qint64 seekSentAt_ = -1;
    double seekLead_ = 0.1;  // how long a seek of the rear took while playing
    bool gated_ = false;
    QTimer* gateTimer_;
};

}  // namespace tarvik
