#pragma once
// Data added to an MPEG-TS file the way cameras add their GPS records: one
// PES unit a record on a PID of its own, listed in the program map as a
// private data stream (type 0x06) or left out of it.

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tarvik::cardgen {

// Spreads the units evenly over the file's packets, one PES unit each, on
// `pid`; `listed` adds the PID to every program map. False when the file is
// not a transport stream of 188-byte packets with a program map.
bool addTsPrivateStream(const std::filesystem::path& ts, std::uint16_t pid, const std::vector<std::string>& units,
                        bool listed);

// The MPEG-2 CRC of a table section.
std::uint32_t mpegCrc32(const unsigned char* p, std::size_t n);

}  // namespace tarvik::cardgen
