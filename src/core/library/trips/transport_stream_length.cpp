#include "core/library/trips/transport_stream_length.h"

#include <unistd.h>

#include <optional>
#include <vector>

namespace tarvik {

namespace {

constexpr std::size_t kPacket = 188;
constexpr std::uint64_t kLook = 1u << 20;  // of the start and of the end
constexpr double kClock = 27e6;

// The 27 MHz clock reference a packet's adaptation field carries.
std::optional<std::uint64_t> clockOf(const unsigned char* p) {
    if (p[0] != 0x47 || !(p[3] & 0x20) || p[4] < 7 || !(p[5] & 0x10)) return std::nullopt;
    const std::uint64_t base = std::uint64_t(p[6]) << 25 | std::uint64_t(p[7]) << 17 | std::uint64_t(p[8]) << 9 |
                               std::uint64_t(p[9]) << 1 | p[10] >> 7;
    const std::uint64_t ext = std::uint64_t(p[10] & 1) << 8 | p[11];
    return base * 300 + ext;
}

std::size_t readSome(int fd, std::uint64_t off, unsigned char* buf, std::size_t n) {
    std::size_t got = 0;
    while (got < n) {
        const ssize_t r = ::pread(fd, buf + got, n - got, static_cast<off_t>(off + got));
        if (r <= 0) break;
        got += static_cast<std::size_t>(r);
    }
    return got;
}

}  // namespace

ContainerInfo inspectTransportStream(int fd, std::uint64_t size) {
    ContainerInfo info;
    unsigned char head[4 * 192];
    if (readSome(fd, 0, head, sizeof head) < sizeof head) return info;
    std::size_t prefix = 0;
    for (; prefix <= 4; prefix += 4) {
        bool sync = true;
        for (std::size_t i = 0; i < 4 && sync; ++i) sync = head[i * (kPacket + prefix) + prefix] == 0x47;
        if (sync) break;
    }
    if (prefix > 4) return info;
    const std::size_t len = kPacket + prefix;
    // A stream cut inside its last packet (power lost) plays to the cut: it
    // has no index to lose, so the part packet is passed over.
    const std::uint64_t packets = size / len;
    const std::uint64_t look = std::min<std::uint64_t>(packets, kLook / len);
    std::vector<unsigned char> buf(static_cast<std::size_t>(look * len));
    std::optional<std::uint64_t> first, last;
    if (readSome(fd, 0, buf.data(), buf.size()) == buf.size())
        for (std::size_t at = prefix; at < buf.size() && !first; at += len) first = clockOf(buf.data() + at);
    if (readSome(fd, (packets - look) * len, buf.data(), buf.size()) == buf.size())
        for (std::size_t at = buf.size() - len + prefix; !last; at -= len) {
            last = clockOf(buf.data() + at);
            if (at < len) break;
        }
    info.state = ContainerState::Playable;
    if (first && last) {
        // The base counts 33 bits of 90 kHz and may wrap once within a clip.
        constexpr std::uint64_t kWrap = (std::uint64_t{1} << 33) * 300;
        const std::uint64_t span = *last >= *first ? *last - *first : *last + kWrap - *first;
        info.seconds = static_cast<double>(span) / kClock;
    }
    return info;
}

}  // namespace tarvik
