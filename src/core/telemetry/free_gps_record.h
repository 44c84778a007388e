#pragma once
// The record inside a "freeGPS " block, from its time of day on: six
// little-endian 32-bit fields (hour, minute, second, year, month, day), the
// status and hemisphere letters, then float ddmm.mmmm latitude and longitude
// and the speed in knots. The cameras write the same record into their
// MPEG-TS private streams, without the block around it.

#include <cstddef>

namespace tarvik {
struct TimedFix;
}

namespace tarvik::readers {

enum class FreeGpsRecord { Unknown, NoFix, Fix };

// Time of day through the knots.
constexpr std::size_t kFreeGpsRecordSize = 40;

// `r` holds kFreeGpsRecordSize bytes. `refined`, when given, holds the same
// position as two doubles (16 bytes apart) that win when they agree with the
// floats. Unknown records (a clock out of range, no status letter, no
// position) give no sample at all.
FreeGpsRecord parseFreeGpsRecord(const unsigned char* r, const unsigned char* refined, TimedFix& fix);

}  // namespace tarvik::readers
