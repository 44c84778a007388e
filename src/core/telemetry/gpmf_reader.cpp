// Layout: GoPro's open GPMF format description (gpmf-parser,
// README "KLV Design"): 4-byte key, type, structure size, big-endian repeat.
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "core/telemetry/content_readers.h"
#include "core/telemetry/mp4_track.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/timed_telemetry.h"

namespace tarvik::readers {

namespace {

using mp4::be16;
using mp4::be32;

constexpr std::size_t kMaxPayload = 1u << 20;
constexpr int kMaxDepth = 4;
constexpr double kStandardGravity = 9.80665;

// What a stream's SCAL, TYPE and GPSF said before its data.
struct StreamState {
    std::vector<double> scale;
    std::string type;
    int fix = -1;  // GPSF: 0 none, 2 and 3 a fix; -1 not given
    double at(std::size_t i) const {
        const double s = scale.empty() ? 1.0 : (scale.size() == 1 ? scale[0] : (i < scale.size() ? scale[i] : 0.0));
        return s == 0.0 ? 1.0 : s;
    }
};

struct Klv {
    const unsigned char* key;
    char type;
    std::size_t structSize, repeat;
    const unsigned char* data;
    std::size_t size() const { return structSize * repeat; }
};

double scalar(char type, const unsigned char* p) {
    switch (type) {
    case 'l': return static_cast<std::int32_t>(be32(p));
    case 'L': return be32(p);
    case 's': return static_cast<std::int16_t>(be16(p));
    case 'S': return be16(p);
    case 'b': return static_cast<std::int8_t>(p[0]);
    case 'B': return p[0];
    case 'f': {
        const std::uint32_t u = be32(p);
        float f;
        std::memcpy(&f, &u, 4);
        return f;
    }
    default: return 0;
    }
}

std::size_t width(char type) {
    switch (type) {
    case 'l': case 'L': case 'f': return 4;
    case 's': case 'S': return 2;
    case 'b': case 'B': return 1;
    default: return 0;
    }
}

class PayloadReader {
public:
    PayloadReader(TimedTelemetry& into, double t0, double duration) : into_(into), t0_(t0), duration_(duration) {}

    void walk(const unsigned char* p, std::size_t n, int depth) {
        StreamState state;
        for (std::size_t at = 0; at + 8 <= n;) {
            Klv k{p + at, static_cast<char>(p[at + 4]), p[at + 5], be16(p + at + 6), p + at + 8};
            const std::size_t padded = (k.size() + 3) & ~std::size_t{3};
            if (padded > n - at - 8) return;  // a lying size ends the payload
            if (k.type == 0) {
                if (depth < kMaxDepth) walk(k.data, k.size(), depth + 1);
            } else {
                item(k, state);
            }
            at += 8 + padded;
        }
    }

private:
    bool keyIs(const Klv& k, const char* name) { return std::memcmp(k.key, name, 4) == 0; }
    double entryTime(std::size_t i, std::size_t n) const { return t0_ + duration_ * i / n; }

    void item(const Klv& k, StreamState& s) {
        if (keyIs(k, "SCAL")) {
            const std::size_t w = width(k.type);
            s.scale.clear();
            if (w == 0 || k.structSize != w) return;
            for (std::size_t i = 0; i < k.repeat && i < 16; ++i) s.scale.push_back(scalar(k.type, k.data + i * w));
        } else if (keyIs(k, "TYPE") && k.type == 'c') {
            s.type.assign(reinterpret_cast<const char*>(k.data), k.size());
            s.type.erase(s.type.find_last_not_of('\0') + 1);
        } else if (keyIs(k, "GPSF") && k.structSize == 4 && k.repeat >= 1) {
            s.fix = static_cast<int>(be32(k.data));
        } else if (keyIs(k, "GPS5") && k.type == 'l' && k.structSize == 20) {
            for (std::size_t i = 0; i < k.repeat; ++i) {
                const unsigned char* e = k.data + i * 20;
                TimedFix f;
                f.lat = static_cast<std::int32_t>(be32(e)) / s.at(0);
                f.lng = static_cast<std::int32_t>(be32(e + 4)) / s.at(1);
                f.kmh = static_cast<std::int32_t>(be32(e + 12)) / s.at(3) * 3.6;
                f.valid = s.fix != 0 && (f.lat != 0 || f.lng != 0);
                into_.addFix(entryTime(i, k.repeat), f);
            }
        } else if (keyIs(k, "GPS9") && k.type == '?' && k.structSize == 32 && s.type == "lllllllSS") {
            for (std::size_t i = 0; i < k.repeat; ++i) {
                const unsigned char* e = k.data + i * 32;
                TimedFix f;
                f.lat = static_cast<std::int32_t>(be32(e)) / s.at(0);
                f.lng = static_cast<std::int32_t>(be32(e + 4)) / s.at(1);
                f.kmh = static_cast<std::int32_t>(be32(e + 12)) / s.at(3) * 3.6;
                f.valid = be16(e + 30) != 0 && (f.lat != 0 || f.lng != 0);
                into_.addFix(entryTime(i, k.repeat), f);
            }
        } else if (keyIs(k, "ACCL") && k.type == 's' && k.structSize == 6) {
            for (std::size_t i = 0; i < k.repeat; ++i) {
                const unsigned char* e = k.data + i * 6;
                const double toG = 128.0 / kStandardGravity;
                into_.addG(entryTime(i, k.repeat), scalar('s', e) / s.at(0) * toG, scalar('s', e + 2) / s.at(1) * toG,
                           scalar('s', e + 4) / s.at(2) * toG);
            }
        }
    }

    TimedTelemetry& into_;
    double t0_, duration_;
};

}  // namespace

int readGpmf(const BoundedFile& file, OrvoClipData& out) {
    TimedTelemetry timed;
    mp4::Box moov;
    if (!mp4::findTopLevel(file, "moov", moov)) return timed.finish(out);
    std::string buf;
    for (const mp4::Track& t : mp4::tracks(file, moov)) {
        if (!t.formatIs("gpmd")) continue;
        for (const mp4::Sample& s : t.samples) {
            if (s.size < 8 || s.size > kMaxPayload) continue;
            buf.resize(s.size);
            if (!file.readAt(s.offset, buf.data(), s.size)) break;
            PayloadReader(timed, s.time, s.duration)
                .walk(reinterpret_cast<const unsigned char*>(buf.data()), buf.size(), 0);
            timed.extendTo(s.time + s.duration);
        }
        break;  // the first telemetry track only
    }
    return timed.finish(out);
}

}  // namespace tarvik::readers
