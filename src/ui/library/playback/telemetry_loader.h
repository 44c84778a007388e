#pragma once
// Reads a clip's telemetry on a thread of its own. The general readers scan a
// whole AVI, which from a slow card takes seconds for a long clip; the
// interface, and the players' first pictures, do not wait for that.

#include <QObject>
#include <QThreadPool>
#include <memory>
#include <string>

#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"

namespace tarvik {

struct LoadedTelemetry {
    OrvoClipData clip;
    std::unique_ptr<SubtitleData> track;  // the cues, for a clip with a subtitle track
};

class TelemetryLoader : public QObject {
    Q_OBJECT
public:
    explicit TelemetryLoader(QObject* parent = nullptr);
    ~TelemetryLoader() override;  // waits for a read under way

    // Starts reading `clip`; what a read started before would deliver is dropped.
    void load(const std::string& clip);
    // Drops what the read under way would deliver.
    void cancel() { ++current_; }
    // Returns once no read has a file open.
    void waitForRead() { pool_.waitForDone(); }

signals:
    void loaded(std::shared_ptr<LoadedTelemetry> telemetry);

private:
    // How a clip's telemetry is read: an MP4's subtitle track, the KRT
    // family's reader, or the general readers.
    static std::shared_ptr<LoadedTelemetry> read(const std::string& clip);

    QThreadPool pool_;
    quint64 current_ = 0;
};

}  // namespace tarvik
