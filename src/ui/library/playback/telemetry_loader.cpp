#include "ui/library/playback/telemetry_loader.h"

#include "core/media/clip_telemetry_reading.h"

namespace tarvik {

TelemetryLoader::TelemetryLoader(QObject* parent) : QObject(parent) {
    // One read at a time: a newer clip's read waits for the last one's end
    // rather than competing with it for the card.
    pool_.setMaxThreadCount(1);
}

TelemetryLoader::~TelemetryLoader() { pool_.waitForDone(); }

std::shared_ptr<LoadedTelemetry> TelemetryLoader::read(const std::string& clip) {
    auto t = std::make_shared<LoadedTelemetry>();
    t->track = std::make_unique<SubtitleData>();
    readClipTelemetry(clip, t->clip, t->track.get());
    // Without cues the dashboard reads the samples, as for an AVI.
    if (t->track->empty()) t->track.reset();
    return t;
}

void TelemetryLoader::load(const std::string& clip) {
    const quint64 id = ++current_;
    pool_.start([this, id, clip] {
        std::shared_ptr<LoadedTelemetry> t = read(clip);
        // Delivered on the interface thread, and only if no newer read began.
        QMetaObject::invokeMethod(this, [this, id, t] {
            if (id == current_) emit loaded(t);
        }, Qt::QueuedConnection);
    });
}

}  // namespace tarvik
