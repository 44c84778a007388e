#include "core/telemetry/text_fields.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>

#include <vector>

#include "core/util/bounded_file.h"

namespace tarvik::text {

bool isSpace(unsigned char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

std::string_view trim(std::string_view s) {
    std::size_t b = 0, e = s.size();
    while (b < e && isSpace(static_cast<unsigned char>(s[b]))) ++b;
    while (e > b && isSpace(static_cast<unsigned char>(s[e - 1]))) --e;
    return s.substr(b, e - b);
}

int intValue(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size() && isSpace(static_cast<unsigned char>(s[i]))) ++i;
    bool neg = false;
    if (i < s.size() && (s[i] == '-' || s[i] == '+')) neg = s[i++] == '-';
    std::int64_t v = 0;
    for (; i < s.size() && s[i] >= '0' && s[i] <= '9'; ++i) {
        v = v * 10 + (s[i] - '0');
        if (v > static_cast<std::int64_t>(INT_MAX) + 1) v = static_cast<std::int64_t>(INT_MAX) + 1;
    }
    if (neg) return v > INT_MAX ? INT_MIN : static_cast<int>(-v);
    return v > INT_MAX ? INT_MAX : static_cast<int>(v);
}

float floatValue(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size() && isSpace(static_cast<unsigned char>(s[i]))) ++i;
    const std::size_t start = i;
    if (i < s.size() && (s[i] == '-' || s[i] == '+')) ++i;
    const std::size_t digitsFrom = i;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9') ++i;
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && s[i] >= '0' && s[i] <= '9') ++i;
    }
    if (i == digitsFrom || (i == digitsFrom + 1 && s[digitsFrom] == '.')) return 0.0f;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < s.size() && (s[j] == '-' || s[j] == '+')) ++j;
        if (j < s.size() && s[j] >= '0' && s[j] <= '9') {
            while (j < s.size() && s[j] >= '0' && s[j] <= '9') ++j;
            i = j;
        }
    }
    std::size_t from = start;
    if (s[from] == '+') ++from;  // from_chars takes no plus sign
    float v = 0.0f;
    auto r = std::from_chars(s.data() + from, s.data() + i, v);
    if (r.ec == std::errc::result_out_of_range) {
        // Overflow becomes infinity, underflow zero, as strtof would give.
        bool neg = s[from] == '-';
        bool big = false;
        for (std::size_t k = from; k < i && s[k] != 'e' && s[k] != 'E'; ++k)
            if (s[k] >= '1' && s[k] <= '9') big = true;
        std::size_t e = s.find_first_of("eE", from);
        if (e != std::string_view::npos && e < i && big) big = intValue(s.substr(e + 1, i - e - 1)) > 0;
        v = big ? (neg ? -HUGE_VALF : HUGE_VALF) : (neg ? -0.0f : 0.0f);
    }
    return v;
}

void split(std::string_view s, char sep, std::vector<std::string_view>& out) {
    out.clear();
    std::size_t from = 0;
    for (;;) {
        std::size_t p = s.find(sep, from);
        if (p == std::string_view::npos) {
            out.push_back(s.substr(from));
            return;
        }
        out.push_back(s.substr(from, p - from));
        from = p + 1;
    }
}

std::vector<std::string_view> split(std::string_view s, char sep) {
    std::vector<std::string_view> out;
    split(s, sep, out);
    return out;
}

std::size_t splitBounded(std::string_view s, char sep, std::vector<std::string_view>& out,
                         std::size_t maxKeep) {
    std::size_t from = 0, n = 0;
    for (;;) {
        std::size_t p = s.find(sep, from);
        ++n;
        if (out.size() < maxKeep) out.push_back(s.substr(from, p == std::string_view::npos ? s.npos : p - from));
        if (p == std::string_view::npos) return n;
        from = p + 1;
    }
}

bool isValidUtf8(const unsigned char* p, std::size_t n) {
    std::size_t i = 0;
    while (i < n) {
        // Fast path over plain ASCII, eight bytes at a time.
        while (i + 8 <= n) {
            std::uint64_t w;
            __builtin_memcpy(&w, p + i, 8);
            if (w & 0x8080808080808080ull) break;
            i += 8;
        }
        if (i >= n) break;
        unsigned char c = p[i];
        if (c < 0x80) {
            ++i;
            continue;
        }
        std::size_t len;
        std::uint32_t cp;
        if (c >= 0xC2 && c <= 0xDF) len = 2, cp = c & 0x1F;
        else if (c >= 0xE0 && c <= 0xEF) len = 3, cp = c & 0x0F;
        else if (c >= 0xF0 && c <= 0xF4) len = 4, cp = c & 0x07;
        else return false;
        if (i + len > n) return false;
        for (std::size_t k = 1; k < len; ++k) {
            if ((p[i + k] & 0xC0) != 0x80) return false;
            cp = (cp << 6) | (p[i + k] & 0x3F);
        }
        if ((len == 3 && cp < 0x800) || (len == 4 && (cp < 0x10000 || cp > 0x10FFFF)) ||
            (cp >= 0xD800 && cp <= 0xDFFF))
            return false;
        i += len;
    }
    return true;
}

std::int64_t truncToInt64(double v) {
    if (!(v > -9.2e18 && v < 9.2e18)) return 0;
    return static_cast<std::int64_t>(v);
}

bool isValidUtf8(const BoundedFile& file, std::size_t from) {
    constexpr std::size_t kBlock = 1u << 20;
    // Three bytes past the block: a block ends before a character that
    // straddles it, never inside one (a longer run of continuation bytes is
    // invalid wherever it is cut).
    const std::size_t n = file.size();
    std::vector<unsigned char> buf(std::min(kBlock + 3, n > from ? n - from : 0));
    for (std::size_t b = from; b < n;) {
        const std::size_t want = std::min(buf.size(), n - b);
        const std::size_t got = file.readSome(b, buf.data(), want);
        if (got < want) return false;
        std::size_t e = std::min(kBlock, got);
        while (e < got && (buf[e] & 0xC0) == 0x80) ++e;
        if (!isValidUtf8(buf.data(), e)) return false;
        b += e;
    }
    return true;
}

}  // namespace tarvik::text
