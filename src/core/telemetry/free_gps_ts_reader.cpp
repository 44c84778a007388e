// Layout: ExifTool's M2TS.pm (ParsePID and ProcessM2TS: the Novatek records
// of a private stream, on PID 0x0300 when the program map leaves it out, with
// or without a 164-byte head); packets, PES headers and the PAT / PMT tables
// per ISO/IEC 13818-1.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "core/telemetry/content_readers.h"
#include "core/telemetry/free_gps_record.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/timed_telemetry.h"

namespace tarvik::readers {

namespace {

constexpr std::size_t kPacket = 188;
constexpr int kMaxRecords = TimedTelemetry::kSlots / 10;  // one a second
constexpr std::size_t kHead = 164;                         // before the record in some cameras' units
constexpr std::size_t kUnit = kHead + kFreeGpsRecordSize;  // all of a unit that is looked at
constexpr std::uint64_t kFirstRecordWithin = 20u << 20;    // as the MP4 scan: a clip without any gives up soon
constexpr std::uint16_t kUnlistedPid = 0x0300;
constexpr std::size_t kMaxPids = 16;
constexpr std::size_t kMaxPrograms = 8;

enum : std::uint8_t { kPrivateData = 0x06 };

// What the program maps say of a PID: nothing yet, a private data stream,
// or anything else.
enum class Listed : std::uint8_t { No, Private, Other };

struct Unit {
    std::uint16_t pid = 0;
    bool open = false;  // a PES unit started and is being gathered
    std::size_t size = 0;
    unsigned char bytes[kUnit];
};

class TsScan {
public:
    TsScan() { listed_.fill(Listed::No); }

    // One 188-byte packet.
    void packet(const unsigned char* p) {
        const bool start = p[1] & 0x40;
        const std::uint16_t pid = static_cast<std::uint16_t>((p[1] & 0x1f) << 8 | p[2]);
        if (!(p[3] & 0x10)) return;  // no payload
        std::size_t at = 4;
        if (p[3] & 0x20) at += 1u + p[4];
        if (at >= kPacket) return;
        if (pid == 0) {
            if (start) programs(p + at, kPacket - at);
        } else if (std::find(pmts_.begin(), pmts_.begin() + pmtCount_, pid) != pmts_.begin() + pmtCount_) {
            if (start) programMap(p + at, kPacket - at);
        } else if (candidate(pid)) {
            payload(pid, start, p + at, kPacket - at);
        }
    }

    // Units still open at the end of the file.
    void flush() {
        for (Unit& u : units_)
            if (u.open) close(u);
    }

    int records() const { return records_; }
    bool full() const { return records_ >= kMaxRecords; }
    TimedTelemetry& timed() { return timed_; }

private:
    bool candidate(std::uint16_t pid) const {
        if (locked_ >= 0) return pid == locked_;
        const Listed l = listed_[pid];
        return l == Listed::Private || (pid == kUnlistedPid && l == Listed::No);
    }

    // Table sections that fit their packet; cameras write tiny ones.
    static const unsigned char* section(const unsigned char* d, std::size_t n, std::uint8_t table, std::size_t& len) {
        if (n < 1 || 1u + d[0] + 8 > n) return nullptr;
        const unsigned char* s = d + 1 + d[0];
        n -= 1u + d[0];
        len = static_cast<std::size_t>((s[1] & 0x0f) << 8 | s[2]) + 3;
        if (s[0] != table || (s[1] & 0xc0) != 0x80 || len > n || len < 12) return nullptr;
        return s;
    }

    void programs(const unsigned char* d, std::size_t n) {
        std::size_t len = 0;
        const unsigned char* s = section(d, n, 0x00, len);
        if (!s) return;
        for (std::size_t i = 8; i + 4 <= len - 4 && pmtCount_ < kMaxPrograms; i += 4) {
            const auto pid = static_cast<std::uint16_t>((s[i + 2] & 0x1f) << 8 | s[i + 3]);
            if ((s[i] | s[i + 1]) != 0 && std::find(pmts_.begin(), pmts_.begin() + pmtCount_, pid) ==
                                              pmts_.begin() + pmtCount_)
                pmts_[pmtCount_++] = pid;
        }
    }

    void programMap(const unsigned char* d, std::size_t n) {
        std::size_t len = 0;
        const unsigned char* s = section(d, n, 0x02, len);
        if (!s) return;
        std::size_t i = 12 + static_cast<std::size_t>((s[10] & 0x0f) << 8 | s[11]);
        while (i + 5 <= len - 4) {
            const auto pid = static_cast<std::uint16_t>((s[i + 1] & 0x1f) << 8 | s[i + 2]);
            listed_[pid] = s[i] == kPrivateData ? Listed::Private : Listed::Other;
            i += 5 + static_cast<std::size_t>((s[i + 3] & 0x0f) << 8 | s[i + 4]);
        }
    }

    Unit* unitOf(std::uint16_t pid, bool create) {
        for (Unit& u : units_)
            if (u.pid == pid) return &u;
        if (!create || units_.size() >= kMaxPids) return nullptr;
        units_.emplace_back();
        units_.back().pid = pid;
        return &units_.back();
    }

    void payload(std::uint16_t pid, bool start, const unsigned char* d, std::size_t n) {
        Unit* u = unitOf(pid, start);
        if (!u) return;
        if (start) {
            if (u->open) close(*u);
            // A PES header: start code, stream id, length, then (for the
            // streams that have them) flags and the header's own length.
            if (n < 9 || d[0] != 0 || d[1] != 0 || d[2] != 1) return;
            const std::uint8_t id = d[3];
            std::size_t at = 6;
            const bool plain = id == 0xbc || id == 0xbe || id == 0xbf || id == 0xf0 || id == 0xf1 ||
                               id == 0xf2 || id == 0xf8 || id == 0xff;
            if (!plain) {
                if ((d[6] & 0xc0) != 0x80) return;
                at = 9u + d[8];
            }
            if (at > n) return;
            u->open = true;
            u->size = 0;
            d += at;
            n -= at;
        }
        if (!u->open) return;
        const std::size_t take = std::min(n, kUnit - u->size);
        std::memcpy(u->bytes + u->size, d, take);
        u->size += take;
        if (u->size == kUnit) close(*u);
    }

    // A unit holds the record at its start, or after the 164-byte head.
    void close(Unit& u) {
        u.open = false;
        if (full()) return;
        TimedFix fix;
        FreeGpsRecord kind = FreeGpsRecord::Unknown;
        for (std::size_t at : {std::size_t{0}, kHead}) {
            if (u.size < at + kFreeGpsRecordSize) break;
            fix = TimedFix{};
            kind = parseFreeGpsRecord(u.bytes + at, nullptr, fix);
            if (kind != FreeGpsRecord::Unknown) break;
        }
        if (kind == FreeGpsRecord::Unknown) return;
        // One stream of records: a second one would count its seconds twice.
        locked_ = u.pid;
        timed_.addFix(records_, fix);
        timed_.extendTo(records_ + 1.0);
        ++records_;
    }

    std::array<Listed, 0x2000> listed_;
    std::array<std::uint16_t, kMaxPrograms> pmts_{};
    std::size_t pmtCount_ = 0;
    std::vector<Unit> units_;
    int locked_ = -1;
    int records_ = 0;
    TimedTelemetry timed_;
};

// 188-byte packets, or 192 with a 4-byte time code in front (M2TS); the sync
// byte of four packets in a row tells.
std::size_t packetPrefix(const BoundedFile& file, bool& found) {
    unsigned char head[4 * 192 + 4];
    found = false;
    const std::size_t n = file.readSome(0, head, sizeof head);
    for (std::size_t prefix : {std::size_t{0}, std::size_t{4}}) {
        const std::size_t len = kPacket + prefix;
        if (n < 4 * len) continue;
        bool sync = true;
        for (std::size_t i = 0; i < 4 && sync; ++i) sync = head[i * len + prefix] == 0x47;
        if (sync) {
            found = true;
            return prefix;
        }
    }
    return 0;
}

}  // namespace

int readFreeGpsTs(const BoundedFile& file, OrvoClipData& out) {
    bool ts = false;
    const std::size_t prefix = packetPrefix(file, ts);
    TimedTelemetry none;
    if (!ts) return none.finish(out);
    const std::size_t len = kPacket + prefix;
    auto scan = std::make_unique<TsScan>();
    std::vector<unsigned char> buf(len * 2048);
    for (std::uint64_t at = 0; !scan->full();) {
        if (scan->records() == 0 && at >= kFirstRecordWithin) break;
        const std::size_t n = file.readSome(at, buf.data(), buf.size()) / len * len;
        if (n == 0) break;
        bool sync = true;
        for (std::size_t p = prefix; p < n && sync && !scan->full(); p += len) {
            sync = buf[p] == 0x47;
            if (sync) scan->packet(buf.data() + p);
        }
        // Past a lost sync byte the packets cannot be told apart.
        if (!sync) break;
        at += n;
    }
    scan->flush();
    return scan->timed().finish(out);
}

}  // namespace tarvik::readers
