#pragma once
// String helpers the viewer needs around a card's language list and its
// settings bytes: turning a language code into an English name, and the
// hexadecimal text the camera's settings page exchanges with the viewer.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

// The English name of a language code as found on a card ("ko" -> "Korean").
// Codes without a name come back unchanged, so a menu always has a title.
std::string languageTitleByExpandingCode(std::string_view code);

// Number of entries in the language-name table.
std::size_t languageTitleCount();

// Bytes from hexadecimal text, two characters a byte. Each pair is parsed the
// way strtoul parses base 16 (stopping at the first non-digit, so "G1" gives 0
// and "1G" gives 1); an odd last character is parsed alone. Nothing is
// rejected: the page that produces this text is not ours to trust or fix.
std::vector<std::uint8_t> dataFromHexString(std::string_view text);

// The inverse for well-formed data: two upper-case digits a byte, no
// separators; empty data gives the empty string.
std::string hexStringFromData(const std::uint8_t* data, std::size_t size);
inline std::string hexStringFromData(const std::vector<std::uint8_t>& data) {
    return hexStringFromData(data.data(), data.size());
}

}  // namespace tarvik
