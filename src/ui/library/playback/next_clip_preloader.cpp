#include "ui/library/playback/next_clip_preloader.h"

#include <algorithm>

#include "core/library/clip_catalogue.h"
#include "core/media/playable_files.h"
#include "ui/library/playback/clip_navigation.h"
#include "ui/library/player/orvo_av_view.h"

namespace tarvik {

NextClipPreloader::NextClipPreloader(ClipCatalogue& catalogue, OrvoAVView* big, OrvoAVView* small, QObject* parent)
    : QObject(parent), catalogue_(catalogue), big_(big), small_(small) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &NextClipPreloader::preloadNext);
}

void NextClipPreloader::clipStarted(const std::string& url) {
    url_ = url;
    if (url.empty()) return timer_.stop();
    timer_.start(kDelayMs);
}

void NextClipPreloader::preloadNext() {
    const auto& list = catalogue_.filteredVideoFileList();
    const auto it = std::find(list.begin(), list.end(), url_);
    if (it == list.end()) return;
    const int next = nextClipRow(list, static_cast<int>(it - list.begin()));
    if (next < 0 || next >= static_cast<int>(list.size()) || list[static_cast<std::size_t>(next)] == url_) return;
    const PlayableFiles files = playableFilesOf(list[static_cast<std::size_t>(next)]);
    if (files.needsConversion || files.files.empty()) return;
    big_->preload(QByteArray::fromStdString(files.files[0]));
    if (files.files.size() >= 2) small_->preload(QByteArray::fromStdString(files.files[1]));
}

}  // namespace tarvik
