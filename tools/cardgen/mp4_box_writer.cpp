#include "cardgen/mp4_box_writer.h"

#include <fstream>
#include <iterator>

namespace tarvik::cardgen {

void putBe16(std::string& s, std::uint16_t v) {
    s += static_cast<char>(v >> 8);
    s += static_cast<char>(v);
}
void putBe32(std::string& s, std::uint32_t v) {
    for (int i = 3; i >= 0; --i) s += static_cast<char>(v >> (8 * i));
}
void putBe64(std::string& s, std::uint64_t v) {
    putBe32(s, static_cast<std::uint32_t>(v >> 32));
    putBe32(s, static_cast<std::uint32_t>(v));
}
void putLe32(std::string& s, std::uint32_t v) {
    for (int i = 0; i < 4; ++i) s += static_cast<char>(v >> (8 * i));
}

std::string box(const char* type, const std::string& payload) {
    std::string s;
    putBe32(s, static_cast<std::uint32_t>(payload.size() + 8));
    s.append(type, 4);
    return s + payload;
}

std::string fullBox(const char* type, const std::string& payload, std::uint32_t flags) {
    std::string p;
    putBe32(p, flags & 0xffffff);
    return box(type, p + payload);
}

bool Mp4BoxWriter::load(const std::filesystem::path& mp4) {
    std::ifstream f(mp4, std::ios::binary);
    const std::string all((std::istreambuf_iterator<char>(f)), std::istreambuf_iterator<char>());
    std::size_t at = 0, moov = std::string::npos;
    while (at + 8 <= all.size()) {
        const auto* p = reinterpret_cast<const unsigned char*>(all.data() + at);
        const std::size_t size = std::size_t{p[0]} << 24 | std::size_t{p[1]} << 16 | std::size_t{p[2]} << 8 | p[3];
        if (size < 8 || at + size > all.size()) return false;
        if (all.compare(at + 4, 4, "moov") == 0) moov = at;
        at += size;
        if (moov != std::string::npos && at != all.size()) return false;  // moov must be last
    }
    if (moov == std::string::npos) return false;
    head_ = all.substr(0, moov);
    moovChildren_ = all.substr(moov + 8);
    extra_.clear();
    return true;
}

bool Mp4BoxWriter::setCreationTime(std::int64_t unixSeconds) {
    const std::size_t at = moovChildren_.find("mvhd");
    if (at == std::string::npos || at + 12 > moovChildren_.size() || moovChildren_[at + 4] != 0) return false;
    std::string t;
    putBe32(t, static_cast<std::uint32_t>(unixSeconds + 2082844800LL));  // seconds since 1904
    moovChildren_.replace(at + 8, 4, t);
    return true;
}

bool Mp4BoxWriter::save(const std::filesystem::path& out) const {
    std::ofstream f(out, std::ios::binary | std::ios::trunc);
    const std::string moov = box("moov", moovChildren_);
    f.write(head_.data(), static_cast<std::streamsize>(head_.size()));
    f.write(extra_.data(), static_cast<std::streamsize>(extra_.size()));
    f.write(moov.data(), static_cast<std::streamsize>(moov.size()));
    return static_cast<bool>(f);
}

}  // namespace tarvik::cardgen
