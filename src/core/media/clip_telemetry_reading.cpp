#include "core/media/clip_telemetry_reading.h"

#include <cctype>

#include "core/media/subtitle_track.h"
#include "core/telemetry/content_telemetry.h"
#include "core/telemetry/krt_clip_name.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"

namespace tarvik {

namespace {

std::string lowerExtension(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::size_t dot = path.rfind('.');
    if (dot == std::string::npos || (slash != std::string::npos && dot < slash)) return {};
    std::string e = path.substr(dot);
    for (char& c : e) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return e;
}

std::string fileName(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace

void readClipTelemetry(const std::string& path, OrvoClipData& data, SubtitleData* cues, bool krt) {
    const std::string ext = lowerExtension(path);
    if (ext == ".mp4" || ext == ".mov") {
        SubtitleTrack::load(path, data, cues);
        if (data.clipDataCount() > 0) return;
        // A track of cues that are not the viewer's own telemetry (NMEA text,
        // say) must not stand in for the samples read below.
        if (cues) cues->loadFromText({});
        // Other families keep theirs in boxes and tracks of their own. A MOV
        // may also carry the tail text or records of the AVI cameras; an MP4
        // is not scanned for them (a whole clip read from the card, while it
        // plays, for nothing).
        if (readTelemetryByContent(path, data) == 0 && ext == ".mov") data.loadVideoFileCilpDataFromFilePath(path);
        return;
    }
    // A transport stream holds none of the AVI cameras' layouts: it is not
    // scanned for them.
    if (ext == ".ts" && !krt) {
        readTelemetryByContent(path, data);
        return;
    }
    if (krt || isKrtClipName(fileName(path))) {
        data.loadVideoFileCilpDataFromFilePath_KRT(path);
        return;
    }
    data.loadVideoFileCilpDataFromFilePath(path);
    if (data.clipDataCount() == 0) readTelemetryByContent(path, data);
}

}  // namespace tarvik
