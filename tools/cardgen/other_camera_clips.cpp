#include <algorithm>
#include <cmath>
#include <fstream>

#include "cardgen/mp4_box_writer.h"
#include "cardgen/other_camera_layouts.h"
#include "cardgen/ts_private_stream.h"

namespace tarvik::cardgen {

namespace fs = std::filesystem;

namespace {

constexpr long long kUnixStartMs = 1795249800000LL;  // 2026-11-21 08:30:00 UTC, the drive's start



// Payloads in one added mdat box; returns their offsets.
std::vector<std::uint64_t> addMediaData(Mp4BoxWriter& w, const std::vector<std::string>& payloads) {
    std::vector<std::uint64_t> offsets;
    std::uint64_t at = w.nextOffset() + 8;
    std::string all;
    for (const std::string& p : payloads) {
        offsets.push_back(at);
        at += p.size();
        all += p;
    }
    w.addTopLevel(box("mdat", all));
    return offsets;
}

bool writeText(const fs::path& p, const std::string& text) {
    std::ofstream f(p, std::ios::binary | std::ios::trunc);
    f << text;
    return static_cast<bool>(f);
}

// The log's lines without their "[ms]" time codes.
std::string withoutTimeCodes(const std::string& log) {
    std::string out;
    for (std::size_t at = 0; at < log.size();) {
        std::size_t end = log.find('\n', at);
        if (end == std::string::npos) end = log.size();
        const std::size_t dollar = log.find('$', at);
        if (dollar < end) out += log.substr(dollar, end - dollar) + "\n";
        at = end + 1;
    }
    return out;
}

std::string srtTime(int s) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%02d:%02d:%02d,000", s / 3600, s / 60 % 60, s % 60);
    return buf;
}

}  // namespace

std::string metadataTrack(const char* handler, const char* format, const std::vector<std::uint32_t>& sizes,
                          const std::vector<std::uint64_t>& offsets) {
    const auto n = static_cast<std::uint32_t>(sizes.size());
    std::string tkhd;
    for (std::uint32_t v : {0u, 0u, 99u, 0u, n * 1000}) putBe32(tkhd, v);
    tkhd.append(8 + 8, '\0');
    for (std::uint32_t v : {0x10000u, 0u, 0u, 0u, 0x10000u, 0u, 0u, 0u, 0x40000000u}) putBe32(tkhd, v);
    tkhd.append(8, '\0');
    std::string mdhd;
    for (std::uint32_t v : {0u, 0u, 1000u, n * 1000}) putBe32(mdhd, v);
    putBe32(mdhd, 0x55c40000);  // language "und"
    std::string hdlr(4, '\0');
    hdlr += handler;
    hdlr.append(12, '\0');
    hdlr += std::string("Telemetry") + '\0';
    std::string entry(6, '\0');
    putBe16(entry, 1);
    putBe32(entry, 0);
    std::string stsd;
    putBe32(stsd, 1);
    stsd += box(format, entry);
    std::string stts, stsc, stsz, stco;
    for (std::uint32_t v : {1u, n, 1000u}) putBe32(stts, v);
    for (std::uint32_t v : {1u, 1u, 1u, 1u}) putBe32(stsc, v);
    putBe32(stsz, 0);
    putBe32(stsz, n);
    for (std::uint32_t s : sizes) putBe32(stsz, s);
    putBe32(stco, n);
    for (std::uint64_t o : offsets) putBe32(stco, static_cast<std::uint32_t>(o));
    std::string dref;
    putBe32(dref, 1);
    dref += fullBox("url ", "", 1);
    const std::string stbl = box("stbl", fullBox("stsd", stsd) + fullBox("stts", stts.substr(0)) +
                                             fullBox("stsc", stsc) + fullBox("stsz", stsz) + fullBox("stco", stco));
    const std::string minf = box("minf", fullBox("nmhd", "") + box("dinf", fullBox("dref", dref)) + stbl);
    const std::string mdia = box("mdia", fullBox("mdhd", mdhd) + fullBox("hdlr", hdlr) + minf);
    return box("trak", fullBox("tkhd", tkhd, 7) + mdia);
}

bool writeOtherCameraClip(OtherLayout layout, const VideoSpec& video, int from, const fs::path& out,
                          WrittenTelemetry* written, std::string* log) {
    using L = OtherLayout;
    const int n = std::clamp(static_cast<int>(std::lround(video.seconds)), 1, 65);
    const long long startMs = kUnixStartMs + from * 1000LL;
    std::error_code ec;
    fs::create_directories(out.parent_path(), ec);
    if (layout == L::NmeaTrack) {
        // One cue a second holding that second's sentences.
        const fs::path srt = out.string() + ".nmea.srt";
        std::string cues;
        for (int i = 0; i < n; ++i)
            cues += std::to_string(i + 1) + "\n" + srtTime(i) + " --> " + srtTime(i + 1) + "\n" +
                    withoutTimeCodes(nmeaLog(from + i, 1, 0)) + "\n";
        if (written) nmeaLog(from, n, 0, written);
        VideoSpec v = video;
        v.subtitleSrt = srt;
        const bool ok = writeText(srt, cues) && makeVideo(v, out, log);
        fs::remove(srt, ec);
        return ok;
    }
    if (!makeVideo(video, out, log)) return false;
    if (layout == L::SideFiles) {
        fs::path stem = out;
        stem.replace_extension();
        return writeText(stem.string() + ".gps", nmeaLog(from, n, startMs, written)) &&
               writeText(stem.string() + ".3gf", gTable(from, n, written));
    }
    if (layout == L::FreeGpsTs || layout == L::FreeGpsTsUnlisted) {
        const bool listed = layout == L::FreeGpsTs;
        std::vector<std::string> units;
        for (int i = 0; i < n; ++i) units.push_back(freeGpsTsRecord(from + i, listed, written, i));
        if (addTsPrivateStream(out, listed ? 0x0101 : 0x0300, units, listed)) return true;
        if (log) *log = "ffmpeg wrote no transport stream with a program map: " + out.string();
        return false;
    }
    Mp4BoxWriter w;
    if (!w.load(out)) {
        if (log) *log = "ffmpeg wrote no MP4 with moov at its end: " + out.string();
        return false;
    }
    w.setCreationTime(kUnixStartMs / 1000 + 90 * 60 + from);  // the clips of the drive start at 10:00
    std::vector<std::string> payloads;
    switch (layout) {
    case L::Gpmf:
    case L::Gpmf9: {
        std::vector<std::uint32_t> sizes;
        for (int i = 0; i < n; ++i) {
            payloads.push_back(gpmfSecond(from + i, layout == L::Gpmf9, written, i));
            sizes.push_back(static_cast<std::uint32_t>(payloads.back().size()));
        }
        w.addToMoov(metadataTrack("meta", "gpmd", sizes, addMediaData(w, payloads)));
        break;
    }
    case L::FreeGpsIndexed:
    case L::FreeGpsScanned: {
        for (int i = 0; i < n; ++i) payloads.push_back(freeGpsBlock(from + i, written, i));
        const std::vector<std::uint64_t> offsets = addMediaData(w, payloads);
        std::string index;
        putBe32(index, 0);
        putBe32(index, static_cast<std::uint32_t>(n));
        for (int i = 0; i < n; ++i) {
            putBe32(index, static_cast<std::uint32_t>(offsets[i]));
            putBe32(index, static_cast<std::uint32_t>(payloads[i].size()));
        }
        if (layout == L::FreeGpsIndexed) w.addToMoov(box("gps ", index));
        break;
    }
    case L::FreeBoxLog: {
        std::string start;
        putBe64(start, static_cast<std::uint64_t>(startMs));
        const std::string nmea = nmeaLog(from, n, startMs, written);
        w.addTopLevel(box("free", box("sttm", start) + box("gps ", nmea) + box("3gf ", gTable(from, n, written))));
        break;
    }
    case L::GpsRecordBox: {
        std::string records;
        for (int i = 0; i < n; ++i) records += gpsRecord(from + i, written, i);
        w.addTopLevel(box("GPS ", records + std::string(36, '\0')));
        break;
    }
    default:
        return false;
    }
    return w.save(out);
}

}  // namespace tarvik::cardgen
