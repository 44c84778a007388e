#include "ui/library/playback/after_first_pictures.h"

#include "ui/library/player/orvo_av_view.h"

namespace tarvik {

AfterFirstPictures::AfterFirstPictures(QObject* parent) : QObject(parent) {
    deadline_.setSingleShot(true);
    connect(&deadline_, &QTimer::timeout, this, &AfterFirstPictures::finish);
}

void AfterFirstPictures::run(const QList<OrvoAVView*>& views, std::function<void()> work, int deadlineMs) {
    cancel();
    work_ = std::move(work);
    for (OrvoAVView* v : views) {
        if (!v || v->showsPicture()) continue;
        waiting_ << v;
        connections_ << connect(v, &OrvoAVView::firstFrameShown, this, [this, v] { pictureShown(v); });
    }
    if (waiting_.isEmpty()) return finish();
    deadline_.start(deadlineMs);
}

void AfterFirstPictures::cancel() {
    for (const auto& c : connections_) disconnect(c);
    connections_.clear();
    waiting_.clear();
    deadline_.stop();
    work_ = nullptr;
}

void AfterFirstPictures::pictureShown(OrvoAVView* view) {
    waiting_.removeIf([view](const QPointer<OrvoAVView>& v) { return v.isNull() || v == view; });
    if (waiting_.isEmpty()) finish();
}

void AfterFirstPictures::finish() {
    std::function<void()> work = std::move(work_);
    cancel();
    if (work) work();
}

}  // namespace tarvik
