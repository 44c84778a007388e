#pragma once
// Readers of the telemetry layouts of other camera families, each recognised
// by the file's own content (boxes, sample formats, markers), never by its
// name. Each fills `out` from sample 0 at ten samples a second, sets its GPS
// count and returns the sample count; foreign, truncated, encrypted or
// hostile input gives 0.

#include <cstdint>
#include <string_view>

#include "core/util/bounded_file.h"

namespace tarvik {
class OrvoClipData;
class TimedTelemetry;
}  // namespace tarvik

namespace tarvik::readers {

// GPMF in a "gpmd" metadata track: GPS5 / GPS9 positions, ACCL G readings.
int readGpmf(const BoundedFile& file, OrvoClipData& out);
// "freeGPS " blocks listed by the "gps " box in moov.
int readFreeGpsIndexed(const BoundedFile& file, OrvoClipData& out);
// The same blocks found by a bounded scan of mdat (no "gps " box).
int readFreeGpsScan(const BoundedFile& file, OrvoClipData& out);
// The blocks' records in a private stream of an MPEG-TS (or M2TS) file.
int readFreeGpsTs(const BoundedFile& file, OrvoClipData& out);
// A top-level "free" box holding a "gps " NMEA log and a "3gf " G table.
int readFreeBoxLog(const BoundedFile& file, OrvoClipData& out);
// The top-level "GPS " box of 36-byte records.
int readGpsRecordBox(const BoundedFile& file, OrvoClipData& out);
// NMEA sentences as the samples of a text or subtitle track.
int readNmeaTrack(const BoundedFile& file, OrvoClipData& out);

// Side files beside a clip: an NMEA log (".nmea", ".gps"; lines may start
// with a "[milliseconds]" time code) and a ".3gf" G table.
int readSideFiles(const BoundedFile* nmeaLog, const BoundedFile* gTable, OrvoClipData& out);

// Shared by the box and side-file readers. Times of a log's "[ms]" codes are
// taken from startMs (the clip's start), else from the first code; lines
// without codes by their sentences' clock.
void addNmeaLog(std::string_view text, long long startMs, TimedTelemetry& into);
// 10-byte records: big-endian 32-bit milliseconds from the clip's start, then
// three big-endian signed 16-bit axes (up, across, along) in 1/128 g.
void addGTable(const BoundedFile& file, std::uint64_t from, std::uint64_t to, TimedTelemetry& into);

}  // namespace tarvik::readers
