#include "core/media/subtitle_track.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <cstdio>

#include "core/media/libav_input.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"
#include "core/telemetry/telemetry_readers.h"
#include "core/util/bounded_file.h"

namespace tarvik {

namespace {

// The text a cue carries. A mov_text sample is a 16-bit length and that many
// bytes of text (style boxes may follow); SRT and plain-text samples are text.
std::string_view cueText(AVCodecID codec, const AVPacket& pkt) {
    const char* d = reinterpret_cast<const char*>(pkt.data);
    const std::size_t n = pkt.size > 0 ? static_cast<std::size_t>(pkt.size) : 0;
    if (codec == AV_CODEC_ID_MOV_TEXT) {
        if (n < 2) return {};
        const std::size_t len = (static_cast<std::size_t>(pkt.data[0]) << 8) | pkt.data[1];
        return {d + 2, std::min(len, n - 2)};
    }
    if (codec == AV_CODEC_ID_SUBRIP || codec == AV_CODEC_ID_TEXT) return {d, n};
    return {};
}

void appendTime(std::string& out, std::int64_t ms) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%02d:%02d:%02d,%03d", static_cast<int>(ms / 3600000),
                  static_cast<int>(ms / 60000) % 60, static_cast<int>(ms / 1000) % 60, static_cast<int>(ms % 1000));
    out += buf;
}

// One cue as the SRT muxer writes it after the text encoder: line breaks
// become CR LF, carriage returns of the sample are dropped.
void appendCue(std::string& out, int index, std::int64_t start, std::int64_t end, std::string_view text) {
    out += std::to_string(index);
    out += '\n';
    appendTime(out, start);
    out += " --> ";
    appendTime(out, end);
    out += '\n';
    for (char c : text) {
        if (c == '\r') continue;
        if (c == '\n') out += "\r\n";
        else out += c;
    }
    out += "\n\n";
}

}  // namespace

std::optional<std::string> SubtitleTrack::srtText(const std::string& clipPath) {
    LibavInput in(clipPath);
    if (!in) return std::nullopt;
    AVFormatContext* fmt = in.get();
    int track = -1;
    for (unsigned i = 0; i < fmt->nb_streams; ++i) {
        const bool wanted = track < 0 && fmt->streams[i]->codecpar->codec_type == AVMEDIA_TYPE_SUBTITLE;
        if (wanted) track = static_cast<int>(i);
        // The demuxer then skips the other streams' samples without reading them.
        else fmt->streams[i]->discard = AVDISCARD_ALL;
    }
    std::string out;
    if (track < 0) return out;
    const AVStream* st = fmt->streams[track];
    const AVCodecID codec = st->codecpar->codec_id;
    AVPacket* pkt = av_packet_alloc();
    if (!pkt) return out;
    int index = 1;
    while (out.size() < kMaxTextBytes && av_read_frame(fmt, pkt) >= 0) {
        if (pkt->stream_index == track && pkt->pts != AV_NOPTS_VALUE && pkt->duration >= 0) {
            const std::string_view text = cueText(codec, *pkt);
            if (!text.empty()) {
                // The same rounding as ffmpeg's: to microseconds, then to milliseconds.
                const std::int64_t us = av_rescale_q(pkt->pts, st->time_base, AV_TIME_BASE_Q);
                const std::int64_t start = av_rescale_q(us, AV_TIME_BASE_Q, AVRational{1, 1000});
                const std::int64_t length = av_rescale_q(pkt->duration, st->time_base, AVRational{1, 1000});
                if (start >= 0) appendCue(out, index++, start, start + length, text);
            }
        }
        av_packet_unref(pkt);
    }
    av_packet_free(&pkt);
    if (!in.stillWhole()) return std::nullopt;  // a track cut short while it was read is no track
    return out;
}

bool SubtitleTrack::load(const std::string& clipPath, OrvoClipData& data, SubtitleData* cues) {
    const std::optional<std::string> text = srtText(clipPath);
    data = OrvoClipData();
    const std::string_view t = text ? std::string_view(*text) : std::string_view();
    data.setClipDataCount(t.empty() ? 0 : readers::readSrtCues(BoundedFile(t.data(), t.size()), data));
    if (cues) cues->loadFromText(t);
    return text.has_value();
}

}  // namespace tarvik
