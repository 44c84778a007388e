// Layout: ExifTool's QuickTime.pm ("Pittasoft" free box: sttm, "gps ",
// "3gf ") and QuickTimeStream.pl (ProcessNMEA, Process_3gf); the 3gf record
// axes and scale from the public 3gf grammar of Synalyze It! (synalysis/Grammars).
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "core/telemetry/content_readers.h"
#include "core/telemetry/mp4_boxes.h"
#include "core/telemetry/nmea_sentences.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/timed_telemetry.h"

namespace tarvik::readers {

namespace {

constexpr std::size_t kMaxLog = 1u << 20;  // an hour of 1 Hz RMC and GGA is 500 KiB
constexpr std::size_t kRecord = 10;
constexpr std::size_t kMaxRecords = 8192;  // 65 s at over 100 Hz

bool timeCode(std::string_view prefix, long long& ms) {
    const std::size_t open = prefix.find('['), close = prefix.find(']');
    if (open == std::string_view::npos || close == std::string_view::npos || close <= open + 1 ||
        close - open > 19)
        return false;
    ms = 0;
    for (std::size_t i = open + 1; i < close; ++i) {
        if (prefix[i] < '0' || prefix[i] > '9') return false;
        ms = ms * 10 + (prefix[i] - '0');
    }
    return true;
}

bool freeBoxOfLogs(const BoundedFile& file, const mp4::Box& box) {
    const std::vector<mp4::Box> kids = mp4::children(file, box.payload, box.end, 64);
    static const char* const kFirst[] = {"cprt", "sttm", "ptnm", "ptrh", "thum", "gps ", "3gf "};
    for (const char* t : kFirst)
        if (!kids.empty() && kids[0].is(t)) return true;
    return false;
}

}  // namespace

void addNmeaLog(std::string_view text, long long startMs, TimedTelemetry& into) {
    nmea::MomentMerger merger;
    nmea::DayClock clock;
    long long firstMs = -1;
    double last = -1, gap = 1.0;
    auto emit = [&](double t, const TimedFix& fix) {
        into.addFix(t, fix);
        if (last >= 0 && t > last && t - last < gap) gap = t - last;
        last = std::max(last, t);
    };
    nmea::forEachSentence(text, [&](std::string_view prefix, const nmea::Sentence& s) {
        long long ms;
        double t;
        if (timeCode(prefix, ms)) {
            if (firstMs < 0) firstMs = startMs >= 0 ? startMs : ms;
            t = static_cast<double>(ms - firstMs) / 1000.0;
        } else if (s.secondOfDay >= 0) {
            t = clock.since(s.secondOfDay);
        } else {
            return;
        }
        merger.addAndEmit(t, s, emit);
    });
    merger.flush(emit);
    if (last >= 0) into.extendTo(last + gap);
}

void addGTable(const BoundedFile& file, std::uint64_t from, std::uint64_t to, TimedTelemetry& into) {
    if (to <= from) return;
    const std::size_t n = static_cast<std::size_t>(std::min<std::uint64_t>((to - from) / kRecord, kMaxRecords));
    std::string buf(n * kRecord, '\0');
    if (n == 0 || !file.readAt(from, buf.data(), buf.size())) return;
    const auto* p = reinterpret_cast<const unsigned char*>(buf.data());
    double last = -1, gap = 1.0;
    for (std::size_t i = 0; i < n; ++i, p += kRecord) {
        const std::uint32_t ms = mp4::be32(p);
        if (ms == 0xffffffffu) break;
        auto axis = [&](int k) { return static_cast<double>(static_cast<std::int16_t>(mp4::be16(p + 4 + 2 * k))); };
        const double t = ms / 1000.0;
        into.addG(t, axis(2), axis(1), axis(0));
        if (last >= 0 && t > last) gap = std::min(gap, t - last);
        last = std::max(last, t);
    }
    // The last reading holds for one reading interval.
    if (last >= 0) into.extendTo(last + gap);
}

int readFreeBoxLog(const BoundedFile& file, OrvoClipData& out) {
    TimedTelemetry timed;
    for (const mp4::Box& top : mp4::topLevel(file)) {
        if (!top.is("free") || !freeBoxOfLogs(file, top)) continue;
        const std::vector<mp4::Box> kids = mp4::children(file, top.payload, top.end, 64);
        // The recording's start, in Unix milliseconds, is what the log's time codes count from.
        long long startMs = -1;
        for (const mp4::Box& b : kids) {
            const std::string v = b.is("sttm") ? mp4::payload(file, b, 8) : std::string();
            if (v.size() == 8)
                startMs = static_cast<long long>(mp4::be64(reinterpret_cast<const unsigned char*>(v.data())) & 0x7fffffffffffffffull);
        }
        for (const mp4::Box& b : kids) {
            if (b.is("gps ")) {
                addNmeaLog(mp4::payload(file, b, kMaxLog), startMs, timed);
            } else if (b.is("3gf ")) {
                addGTable(file, b.payload, b.end, timed);
            }
        }
        break;
    }
    return timed.finish(out);
}

int readSideFiles(const BoundedFile* nmeaLog, const BoundedFile* gTable, OrvoClipData& out) {
    TimedTelemetry timed;
    if (nmeaLog) {
        std::string text(std::min<std::size_t>(nmeaLog->size(), kMaxLog), '\0');
        text.resize(nmeaLog->readSome(0, text.data(), text.size()));
        addNmeaLog(text, -1, timed);
    }
    if (gTable) addGTable(*gTable, 0, gTable->size(), timed);
    return timed.finish(out);
}

}  // namespace tarvik::readers
