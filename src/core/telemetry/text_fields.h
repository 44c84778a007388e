#pragma once
// Number and field reading with the leniency the cameras' text relies on:
// leading white space skipped, the longest numeric prefix taken, 0 when there
// is none, integers saturated instead of overflowing.

#include <cstdint>
#include <string_view>
#include <vector>

namespace tarvik {
class BoundedFile;
}

namespace tarvik::text {

int intValue(std::string_view s);
float floatValue(std::string_view s);

bool isSpace(unsigned char c);
std::string_view trim(std::string_view s);

// Splits at every occurrence of sep; n separators give n + 1 fields.
void split(std::string_view s, char sep, std::vector<std::string_view>& out);
std::vector<std::string_view> split(std::string_view s, char sep);

// Appends the fields of s (split at sep) to out while out holds fewer than
// maxKeep; returns how many fields s has. Keeps hostile lines from costing
// memory in proportion to their separators.
std::size_t splitBounded(std::string_view s, char sep, std::vector<std::string_view>& out,
                         std::size_t maxKeep = 16);

// The field at index i, or empty when there are fewer fields.
inline std::string_view field(const std::vector<std::string_view>& f, std::size_t i) {
    return i < f.size() ? f[i] : std::string_view{};
}

bool isValidUtf8(const unsigned char* p, std::size_t n);

// Whether the file from `from` on is valid UTF-8, read a megabyte at a time
// (never cutting a character in two); false when the file cannot be read.
bool isValidUtf8(const BoundedFile& file, std::size_t from);

// Float to integer the way a C cast on this platform behaves for the values
// that matter, without undefined behaviour for the ones that do not: NaN and
// values outside the 64-bit range give 0.
std::int64_t truncToInt64(double v);

}  // namespace tarvik::text
