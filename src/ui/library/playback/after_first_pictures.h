#pragma once
// Holds back work that can wait until the players show their first pictures
// (or until a deadline, should a picture never come). On two cores every
// other process competes with the decoders for that first picture: drawing
// the route in the map's page alone made opening a pair a fifth slower.

#include <QList>
#include <QMetaObject>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>

namespace tarvik {

class OrvoAVView;

class AfterFirstPictures : public QObject {
    Q_OBJECT
public:
    explicit AfterFirstPictures(QObject* parent = nullptr);

    // Runs `work` once each of `views` has shown a picture (at once when all
    // already show one: the telemetry may come in after the pictures), at the
    // latest after `deadlineMs`. Replaces work given before and not yet run.
    void run(const QList<OrvoAVView*>& views, std::function<void()> work, int deadlineMs);
    // Drops the work not yet run.
    void cancel();

private:
    void pictureShown(OrvoAVView* view);
    void finish();

    QList<QPointer<OrvoAVView>> waiting_;
    QList<QMetaObject::Connection> connections_;
    std::function<void()> work_;
    QTimer deadline_;
};

}  // namespace tarvik
