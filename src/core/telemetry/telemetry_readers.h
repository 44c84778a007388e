#pragma once
// The five readers of the layouts cameras use to store telemetry in or beside
// a clip. Each fills `out` from sample 0 on, sets its GPS count and returns the
// number of samples; foreign, truncated or hostile input gives 0 and never
// reads outside the file.

#include "core/util/bounded_file.h"

namespace tarvik {
class OrvoClipData;
}

namespace tarvik::readers {

// Lines "t,lat,lng,speed,gx,gy,gz" after the "QZRVT7" marker near the end.
int readTailText(const BoundedFile& file, OrvoClipData& out);
// "gsensor"/"gsensori"/"GPRMC" text records behind "02tx"/"03tx" tags found by a byte scan.
int readTextRecords(const BoundedFile& file, OrvoClipData& out);
// Cues of an SRT side file.
int readSrtCues(const BoundedFile& file, OrvoClipData& out);

enum class AviFamily { General, Krt };
// Binary 'M' readings, NMEA text and 'T' marks in AVI text chunks.
int readAviChunks(const BoundedFile& file, AviFamily family, OrvoClipData& out);

}  // namespace tarvik::readers
