#include "core/telemetry/mp4_track.h"

#include <algorithm>
#include <cstring>

namespace tarvik::mp4 {

bool Track::handlerIs(const char* t) const { return std::memcmp(handler, t, 4) == 0; }
bool Track::formatIs(const char* t) const { return std::memcmp(format, t, 4) == 0; }

namespace {

const unsigned char* bytes(const std::string& s) { return reinterpret_cast<const unsigned char*>(s.data()); }

// A full box's entry count and entries (at most maxEntries of entrySize bytes
// after `skip` bytes of header fields).
struct Table {
    std::string data;
    std::size_t count = 0;
    const unsigned char* at(std::size_t i, std::size_t entrySize, std::size_t skip) const {
        return bytes(data) + skip + i * entrySize;
    }
};

bool readTable(const BoundedFile& file, const Box& stbl, const char* type, std::size_t entrySize,
               std::size_t maxEntries, Table& out, std::size_t skip = 8) {
    Box b;
    if (!findChild(file, stbl, type, b) || b.size() < skip) return false;
    std::string head = payload(file, b, skip);
    if (head.size() < skip) return false;
    const std::size_t claimed = be32(bytes(head) + skip - 4);
    const std::size_t fits = static_cast<std::size_t>((b.size() - skip) / entrySize);
    out.count = std::min({claimed, fits, maxEntries});
    out.data = payload(file, b, skip + out.count * entrySize);
    return out.data.size() == skip + out.count * entrySize;
}

void trackTimes(const BoundedFile& file, const Box& mdia, std::uint32_t& timescale, double& duration) {
    Box mdhd;
    timescale = 0;
    duration = 0;
    if (!findChild(file, mdia, "mdhd", mdhd)) return;
    const std::string p = payload(file, mdhd, 32);
    if (p.size() >= 24 && p[0] == 0) {
        timescale = be32(bytes(p) + 12);
        if (timescale) duration = static_cast<double>(be32(bytes(p) + 16)) / timescale;
    } else if (p.size() >= 32 && p[0] == 1) {
        timescale = be32(bytes(p) + 20);
        if (timescale) duration = static_cast<double>(be64(bytes(p) + 24)) / timescale;
    }
}

void listSamples(const BoundedFile& file, const Box& stbl, std::uint32_t timescale, std::size_t maxSamples,
                 double maxSeconds, Track& track) {
    Table stts, stsc, stsz, stco;
    if (!readTable(file, stbl, "stts", 8, maxSamples, stts) || !readTable(file, stbl, "stsc", 12, maxSamples, stsc) ||
        stsc.count == 0)
        return;
    // stsz: a fixed size for all samples, or a table of sizes.
    Box b;
    std::uint32_t fixedSize = 0;
    if (!findChild(file, stbl, "stsz", b)) return;
    {
        const std::string head = payload(file, b, 12);
        if (head.size() < 12) return;
        fixedSize = be32(bytes(head) + 4);
        if (!fixedSize && !readTable(file, stbl, "stsz", 4, maxSamples, stsz, 12)) return;
        if (fixedSize) stsz.count = std::min<std::size_t>(be32(bytes(head) + 8), maxSamples);
    }
    bool wide = false;
    if (!readTable(file, stbl, "stco", 4, maxSamples, stco)) {
        if (!readTable(file, stbl, "co64", 8, maxSamples, stco)) return;
        wide = true;
    }
    std::size_t sample = 0, sttsEntry = 0, sttsLeft = stts.count ? be32(stts.at(0, 8, 8)) : 0;
    std::uint64_t ticks = 0;
    std::size_t stscEntry = 0;
    for (std::size_t chunk = 0; chunk < stco.count && sample < stsz.count; ++chunk) {
        while (stscEntry + 1 < stsc.count && be32(stsc.at(stscEntry + 1, 12, 8)) <= chunk + 1) ++stscEntry;
        const std::size_t perChunk = be32(stsc.at(stscEntry, 12, 8) + 4);
        std::uint64_t offset = wide ? be64(stco.at(chunk, 8, 8)) : be32(stco.at(chunk, 4, 8));
        for (std::size_t k = 0; k < perChunk && sample < stsz.count; ++k, ++sample) {
            while (sttsLeft == 0 && sttsEntry + 1 < stts.count) sttsLeft = be32(stts.at(++sttsEntry, 8, 8));
            if (sttsLeft == 0) return;  // no time for this sample
            --sttsLeft;
            const std::uint32_t delta = be32(stts.at(sttsEntry, 8, 8) + 4);
            Sample s;
            s.offset = offset;
            s.size = fixedSize ? fixedSize : be32(stsz.at(sample, 4, 12));
            s.time = static_cast<double>(ticks) / timescale;
            s.duration = static_cast<double>(delta) / timescale;
            if (s.time >= maxSeconds) return;
            track.samples.push_back(s);
            offset += s.size;
            ticks += delta;
        }
    }
}

}  // namespace

std::vector<Track> tracks(const BoundedFile& file, const Box& moov, std::size_t maxSamples, double maxSeconds) {
    std::vector<Track> out;
    for (const Box& trak : children(file, moov.payload, moov.end, 256)) {
        if (!trak.is("trak")) continue;
        Box mdia, hdlr, minf, stbl, stsd;
        if (!findChild(file, trak, "mdia", mdia) || !findChild(file, mdia, "hdlr", hdlr) ||
            !findChild(file, mdia, "minf", minf) || !findChild(file, minf, "stbl", stbl) ||
            !findChild(file, stbl, "stsd", stsd))
            continue;
        Track t;
        const std::string h = payload(file, hdlr, 12);
        const std::string d = payload(file, stsd, 16);
        if (h.size() < 12 || d.size() < 16) continue;
        std::memcpy(t.handler, h.data() + 8, 4);
        std::memcpy(t.format, d.data() + 12, 4);
        std::uint32_t timescale = 0;
        trackTimes(file, mdia, timescale, t.duration);
        if (timescale == 0) continue;
        listSamples(file, stbl, timescale, maxSamples, maxSeconds, t);
        out.push_back(std::move(t));
    }
    return out;
}

}  // namespace tarvik::mp4
