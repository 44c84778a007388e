#include "core/settings/m420/record_text.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace tarvik::recordtext {

bool isValidUtf8(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size()) {
        auto c = static_cast<unsigned char>(s[i]);
        int extra;
        std::uint32_t cp;
        if (c < 0x80) { ++i; continue; }
        if ((c & 0xE0) == 0xC0) { extra = 1; cp = c & 0x1F; }
        else if ((c & 0xF0) == 0xE0) { extra = 2; cp = c & 0x0F; }
        else if ((c & 0xF8) == 0xF0) { extra = 3; cp = c & 0x07; }
        else return false;
        if (i + extra >= s.size()) return false;
        for (int k = 1; k <= extra; ++k) {
            auto d = static_cast<unsigned char>(s[i + k]);
            if ((d & 0xC0) != 0x80) return false;
            cp = (cp << 6) | (d & 0x3F);
        }
        static constexpr std::uint32_t minimum[] = {0, 0x80, 0x800, 0x10000};
        if (cp < minimum[extra] || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return false;
        i += extra + 1;
    }
    return true;
}

std::optional<std::string> utf8UpToNul(const std::uint8_t* data, std::size_t size) {
    const void* nul = std::memchr(data, 0, size);
    std::size_t n = nul ? static_cast<std::size_t>(static_cast<const std::uint8_t*>(nul) - data) : size;
    std::string s(reinterpret_cast<const char*>(data), n);
    if (!isValidUtf8(s)) return std::nullopt;
    return s;
}

std::int64_t leadingInteger(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size() && (s[i] == ' ' || s[i] == '\t' || s[i] == '\n' || s[i] == '\r')) ++i;
    bool neg = false;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) neg = s[i++] == '-';
    std::int64_t v = 0;
    constexpr std::int64_t cap = std::numeric_limits<std::int32_t>::max();
    for (; i < s.size() && s[i] >= '0' && s[i] <= '9'; ++i) v = std::min<std::int64_t>(v * 10 + (s[i] - '0'), cap + 1);
    return neg ? -v : std::min(v, cap);
}

std::int32_t readLe32(const std::uint8_t* p) {
    std::uint32_t v = std::uint32_t(p[0]) | std::uint32_t(p[1]) << 8 | std::uint32_t(p[2]) << 16 | std::uint32_t(p[3]) << 24;
    return static_cast<std::int32_t>(v);
}

void writeLe32(std::uint8_t* p, std::uint32_t v) {
    for (int k = 0; k < 4; ++k) p[k] = static_cast<std::uint8_t>(v >> (8 * k));
}

}  // namespace tarvik::recordtext
