#pragma once
// A clip that cannot be shown must end in an alert, never in a black player:
// the large player's error, its end before any picture, or no picture within
// a few seconds of loading or of opening all count, and each load fails at
// most once.

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <string>

#include "core/library/clip_file_check.h"

namespace tarvik {

class OrvoAVView;

class ClipFailureWatch : public QObject {
    Q_OBJECT
public:
    // Loading and decoding the first picture take well under a second on
    // the card's clips; the alert must come within five.
    static constexpr int kFirstPictureMs = 4000;

    explicit ClipFailureWatch(OrvoAVView* view, QObject* parent = nullptr);

    // A new clip starts loading into the view.
    void watch();
    // The player opened the clip and found a picture stream: the time for
    // the first picture starts again, so a slow start is not taken for a
    // broken clip.
    void opened();
    // Nothing is loading any more (stopped, or already refused).
    void disarm();
    bool hasShownPicture() const { return picture_; }
    // The player gave up on the clip, or ended it before any picture;
    // ignored unless this load is still watched.
    void reportFailure();

    // The informative text of the alert for a clip in this state.
    static QString reasonText(ClipFileState state);

signals:
    // Once per watch(): the clip cannot be shown.
    void failed();

private:
    QPointer<OrvoAVView> view_;
    QTimer timer_;
    bool armed_ = false;
    bool picture_ = false;
};

}  // namespace tarvik
