#include "ui/library/playback/clip_failure_watch.h"

#include "ui/l10n/orvo_languages.h"
#include "ui/library/player/orvo_av_view.h"

namespace tarvik {

ClipFailureWatch::ClipFailureWatch(OrvoAVView* view, QObject* parent) : QObject(parent), view_(view) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &ClipFailureWatch::reportFailure);
    connect(view, &OrvoAVView::firstFrameShown, this, [this] {
        picture_ = true;
        timer_.stop();
    });
}

void ClipFailureWatch::watch() {
    picture_ = false;
    armed_ = true;
    timer_.start(kFirstPictureMs);
}

void ClipFailureWatch::opened() {
    if (armed_ && !picture_) timer_.start(kFirstPictureMs);
}

void ClipFailureWatch::disarm() {
    armed_ = false;
    timer_.stop();
}

void ClipFailureWatch::reportFailure() {
    if (!armed_) return;
    disarm();
    emit failed();
}

QString ClipFailureWatch::reasonText(ClipFileState state) {
    switch (state) {
    case ClipFileState::Missing:
        return tr_k("동영상 파일을 찾을 수 없습니다.");
    case ClipFileState::Unreadable:
        return tr_k("동영상 파일을 읽을 수 없습니다.");
    case ClipFileState::Empty:
        return tr_k("동영상 파일이 비어 있습니다.");
    case ClipFileState::Truncated:
        return tr_k("동영상 파일이 중간에 잘려 있습니다.");
    case ClipFileState::Ok:
        break;
    }
    return tr_k("지원하지 않는 형식으로 인코딩된 동영상입니다.");
}

}  // namespace tarvik
