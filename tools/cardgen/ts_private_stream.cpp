#include "cardgen/ts_private_stream.h"

#include <fstream>
#include <iterator>

namespace tarvik::cardgen {

namespace {

constexpr std::size_t kPacket = 188;
constexpr char kPrivate = 0x06;  // stream type: PES private data

std::uint16_t pidOf(const std::string& p) { return static_cast<std::uint16_t>((p[1] & 0x1f) << 8 | (p[2] & 0xff)); }

// The packets of one PES unit (private stream 1, with a PTS); the last one is
// padded by its adaptation field.
std::vector<std::string> pesPackets(std::uint16_t pid, const std::string& unit, int index, int& counter) {
    const std::uint64_t pts = 126000 + 90000ull * static_cast<std::uint64_t>(index);
    std::string pes = {0, 0, 1, static_cast<char>(0xbd)};
    const std::size_t len = 3 + 5 + unit.size();
    pes += static_cast<char>(len >> 8);
    pes += static_cast<char>(len & 0xff);
    pes += {static_cast<char>(0x80), static_cast<char>(0x80), 5};
    pes += static_cast<char>(0x21 | ((pts >> 29) & 0x0e));
    pes += static_cast<char>(pts >> 22);
    pes += static_cast<char>(0x01 | ((pts >> 14) & 0xfe));
    pes += static_cast<char>(pts >> 7);
    pes += static_cast<char>(0x01 | ((pts << 1) & 0xfe));
    pes += unit;
    std::vector<std::string> out;
    for (std::size_t at = 0; at < pes.size(); at += kPacket - 4) {
        const std::size_t n = std::min(kPacket - 4, pes.size() - at);
        std::string p = {0x47, static_cast<char>((at == 0 ? 0x40 : 0) | pid >> 8), static_cast<char>(pid & 0xff)};
        const std::size_t stuffing = kPacket - 4 - n;
        p += static_cast<char>((stuffing ? 0x30 : 0x10) | (counter++ & 0x0f));
        if (stuffing) {
            p += static_cast<char>(stuffing - 1);
            if (stuffing > 1) p += static_cast<char>(0);
            if (stuffing > 2) p.append(stuffing - 2, static_cast<char>(0xff));
        }
        p += pes.substr(at, n);
        out.push_back(p);
    }
    return out;
}

// Adds the stream to a program map packet that holds the whole table.
bool listInMap(std::string& p, std::uint16_t pid) {
    if (!(p[1] & 0x40)) return true;
    std::size_t at = 4;
    if (p[3] & 0x20) at += 1 + static_cast<unsigned char>(p[4]);
    at += 1 + static_cast<unsigned char>(p[at]);
    const std::size_t len = static_cast<std::size_t>((p[at + 1] & 0x0f) << 8 | (p[at + 2] & 0xff)) + 3;
    if (at + len + 5 > kPacket) return false;
    std::string s = p.substr(at, len - 4);
    s += {kPrivate, static_cast<char>(0xe0 | pid >> 8), static_cast<char>(pid & 0xff), static_cast<char>(0xf0), 0};
    const std::size_t newLen = s.size() + 4 - 3;
    s[1] = static_cast<char>((s[1] & 0xf0) | (newLen >> 8));
    s[2] = static_cast<char>(newLen & 0xff);
    const std::uint32_t crc = mpegCrc32(reinterpret_cast<const unsigned char*>(s.data()), s.size());
    for (int shift : {24, 16, 8, 0}) s += static_cast<char>(crc >> shift);
    p.replace(at, s.size(), s);
    return true;
}

}  // namespace

std::uint32_t mpegCrc32(const unsigned char* p, std::size_t n) {
    std::uint32_t crc = 0xffffffff;
    for (std::size_t i = 0; i < n; ++i) {
        crc ^= static_cast<std::uint32_t>(p[i]) << 24;
        for (int b = 0; b < 8; ++b) crc = crc & 0x80000000 ? crc << 1 ^ 0x04c11db7 : crc << 1;
    }
    return crc;
}

bool addTsPrivateStream(const std::filesystem::path& ts, std::uint16_t pid, const std::vector<std::string>& units,
                        bool listed) {
    std::string all;
    {
        std::ifstream f(ts, std::ios::binary);
        all.assign(std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>());
    }
    if (all.empty() || all.size() % kPacket != 0) return false;
    std::vector<std::string> packets;
    for (std::size_t at = 0; at < all.size(); at += kPacket) {
        packets.push_back(all.substr(at, kPacket));
        if (packets.back()[0] != 0x47) return false;
    }
    // The program map's PID from the association table (one program).
    int map = -1;
    for (const std::string& p : packets) {
        if (pidOf(p) != 0 || !(p[1] & 0x40) || (p[3] & 0x20)) continue;
        const std::size_t at = 5 + static_cast<unsigned char>(p[4]);
        map = (p[at + 10] & 0x1f) << 8 | (p[at + 11] & 0xff);
        break;
    }
    if (map < 0) return false;
    std::vector<std::string> out;
    int counter = 0;
    std::size_t next = 0;
    for (std::size_t i = 0; i < packets.size(); ++i) {
        std::string p = packets[i];
        if (pidOf(p) == map && listed && !listInMap(p, pid)) return false;
        out.push_back(p);
        // After the first tables, then evenly.
        while (next < units.size() && i >= 2 && (i - 2) * units.size() >= next * (packets.size() - 2)) {
            for (std::string& q : pesPackets(pid, units[next], static_cast<int>(next), counter)) out.push_back(q);
            ++next;
        }
    }
    for (; next < units.size(); ++next)
        for (std::string& q : pesPackets(pid, units[next], static_cast<int>(next), counter)) out.push_back(q);
    std::ofstream f(ts, std::ios::binary | std::ios::trunc);
    for (const std::string& p : out) f << p;
    return static_cast<bool>(f);
}

}  // namespace tarvik::cardgen
