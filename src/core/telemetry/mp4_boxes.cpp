#include "core/telemetry/mp4_boxes.h"

#include <algorithm>
#include <cstring>

namespace tarvik::mp4 {

bool Box::is(const char* t) const { return std::memcmp(type, t, 4) == 0; }

std::uint16_t be16(const unsigned char* p) { return static_cast<std::uint16_t>(p[0] << 8 | p[1]); }
std::uint32_t be32(const unsigned char* p) {
    return std::uint32_t{p[0]} << 24 | std::uint32_t{p[1]} << 16 | std::uint32_t{p[2]} << 8 | p[3];
}
std::uint64_t be64(const unsigned char* p) { return std::uint64_t{be32(p)} << 32 | be32(p + 4); }
std::uint32_t le32(const unsigned char* p) {
    return std::uint32_t{p[3]} << 24 | std::uint32_t{p[2]} << 16 | std::uint32_t{p[1]} << 8 | p[0];
}

namespace {

bool printable(const unsigned char* t) {
    for (int i = 0; i < 4; ++i)
        if (t[i] < 0x20 || t[i] > 0x7e) return false;
    return true;
}

// The box at `at`, which must end by `to`. `topLevel` allows size 0 (to the end).
bool boxAt(const BoundedFile& file, std::uint64_t at, std::uint64_t to, bool topLevel, Box& box) {
    unsigned char h[16];
    if (at + 8 > to || !file.readAt(at, h, 8)) return false;
    if (!printable(h + 4)) return false;
    std::uint64_t size = be32(h);
    std::uint64_t header = 8;
    if (size == 1) {
        if (at + 16 > to || !file.readAt(at + 8, h + 8, 8)) return false;
        size = be64(h + 8);
        header = 16;
    } else if (size == 0) {
        if (!topLevel) return false;
        size = to - at;
    }
    if (size < header || size > to - at) return false;
    std::memcpy(box.type, h + 4, 4);
    box.start = at;
    box.payload = at + header;
    box.end = at + size;
    return true;
}

}  // namespace

std::vector<Box> children(const BoundedFile& file, std::uint64_t from, std::uint64_t to, std::size_t limit) {
    std::vector<Box> out;
    Box b;
    for (std::uint64_t at = from; out.size() < limit && boxAt(file, at, to, false, b); at = b.end) out.push_back(b);
    return out;
}

std::vector<Box> topLevel(const BoundedFile& file) {
    std::vector<Box> out;
    const std::uint64_t size = file.size();
    Box b;
    for (std::uint64_t at = 0; out.size() < 4096 && boxAt(file, at, size, true, b); at = b.end) out.push_back(b);
    static const char* const kFirst[] = {"ftyp", "moov", "mdat", "free", "skip", "wide", "pnot"};
    bool known = false;
    for (const char* t : kFirst) known = known || (!out.empty() && out[0].is(t));
    if (!known) out.clear();
    return out;
}

bool findTopLevel(const BoundedFile& file, const char* type, Box& out) {
    for (const Box& b : topLevel(file))
        if (b.is(type)) return out = b, true;
    return false;
}

bool findChild(const BoundedFile& file, const Box& parent, const char* type, Box& out) {
    for (const Box& b : children(file, parent.payload, parent.end)) {
        if (b.is(type)) {
            out = b;
            return true;
        }
    }
    return false;
}

std::string payload(const BoundedFile& file, const Box& box, std::size_t max) {
    const std::size_t n = static_cast<std::size_t>(std::min<std::uint64_t>(box.size(), max));
    std::string s(n, '\0');
    if (n && !file.readAt(box.payload, s.data(), n)) s.clear();
    return s;
}

}  // namespace tarvik::mp4
