#pragma once
// Text and number helpers shared by the record reader and the card detection.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvik::recordtext {

// The bytes up to the first NUL as UTF-8; nothing when they are not UTF-8.
std::optional<std::string> utf8UpToNul(const std::uint8_t* data, std::size_t size);
bool isValidUtf8(std::string_view s);
// The leading integer of a text (blanks, sign, digits), 0 when there is none;
// saturates instead of overflowing.
std::int64_t leadingInteger(std::string_view s);
std::int32_t readLe32(const std::uint8_t* p);
void writeLe32(std::uint8_t* p, std::uint32_t v);

}  // namespace tarvik::recordtext
