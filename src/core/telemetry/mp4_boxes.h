#pragma once
// Walking the boxes of an MP4/MOV (ISO 14496-12) through bounded reads: only
// box headers and the boxes asked for are read. A size of zero (other than
// the last top-level box), below the header, or past the enclosing box ends
// the walk at once, so a zero-filled or lying file costs a few reads.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/util/bounded_file.h"

namespace tarvik::mp4 {

struct Box {
    char type[4] = {};
    std::uint64_t start = 0;    // first byte of the header
    std::uint64_t payload = 0;  // first byte after the header
    std::uint64_t end = 0;      // one past the last byte

    bool is(const char* t) const;
    std::uint64_t size() const { return end - payload; }
};

// Boxes inside [from, to), in order; at most `limit`. Stops at the first box
// that cannot be right.
std::vector<Box> children(const BoundedFile& file, std::uint64_t from, std::uint64_t to, std::size_t limit = 4096);
// The top-level boxes, when the file starts like an MP4/MOV (its first box is
// one of the types these files begin with); empty otherwise.
std::vector<Box> topLevel(const BoundedFile& file);
// The first top-level box of `type` (see topLevel).
bool findTopLevel(const BoundedFile& file, const char* type, Box& out);
// The first child of `type`, searched in [from, to).
bool findChild(const BoundedFile& file, const Box& parent, const char* type, Box& out);

// Up to `max` bytes of a box's payload (fewer when the box is smaller).
std::string payload(const BoundedFile& file, const Box& box, std::size_t max);

std::uint16_t be16(const unsigned char* p);
std::uint32_t be32(const unsigned char* p);
std::uint64_t be64(const unsigned char* p);
std::uint32_t le32(const unsigned char* p);

}  // namespace tarvik::mp4
