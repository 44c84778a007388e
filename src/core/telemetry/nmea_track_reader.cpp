// Layout: 3GPP TS 26.245 timed text samples (16-bit big-endian length, then
// the text) of a "text"/"sbtl" track, holding NMEA 0183 RMC/GGA sentences.
#include <algorithm>
#include <string>

#include "core/telemetry/content_readers.h"
#include "core/telemetry/mp4_track.h"
#include "core/telemetry/nmea_sentences.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/timed_telemetry.h"

namespace tarvik::readers {

namespace {
constexpr std::uint32_t kMaxSample = 4096;  // a sample holds a few sentences
}

int readNmeaTrack(const BoundedFile& file, OrvoClipData& out) {
    TimedTelemetry timed;
    mp4::Box moov;
    if (!mp4::findTopLevel(file, "moov", moov)) return timed.finish(out);
    std::string buf;
    for (const mp4::Track& t : mp4::tracks(file, moov)) {
        if (!(t.handlerIs("text") || t.handlerIs("sbtl") || t.handlerIs("subt")) ||
            !(t.formatIs("tx3g") || t.formatIs("text")))
            continue;
        for (const mp4::Sample& s : t.samples) {
            if (s.size < 2 || s.size > kMaxSample) continue;
            buf.resize(s.size);
            if (!file.readAt(s.offset, buf.data(), s.size)) break;
            const std::size_t len = std::min<std::size_t>(mp4::be16(reinterpret_cast<const unsigned char*>(buf.data())), s.size - 2);
            // The sample's time is the fix's: sentences of one sample are one moment.
            nmea::MomentMerger merger;
            auto emit = [&](double, const TimedFix& fix) { timed.addFix(s.time, fix); };
            nmea::forEachSentence(std::string_view(buf).substr(2, len),
                                  [&](std::string_view, const nmea::Sentence& n) { merger.addAndEmit(s.time, n, emit); });
            merger.flush(emit);
            if (!timed.empty()) timed.extendTo(s.time + s.duration);
        }
        if (!timed.empty()) break;
    }
    return timed.finish(out);
}

}  // namespace tarvik::readers
