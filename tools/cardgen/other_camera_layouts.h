#pragma once
// Clips of camera families other than the viewer's own, each holding the
// demo drive's telemetry in its family's layout, built from the public
// descriptions of those layouts. Each writer also says what the file holds
// after the layout's rounding, which is what a reader must give back.

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "cardgen/demo_drive.h"
#include "cardgen/video_maker.h"

namespace tarvik::cardgen {

enum class OtherLayout {
    Gpmf,            // "gpmd" track, GPS5 at 10 Hz and ACCL at 50 Hz
    Gpmf9,           // the same with GPS9
    FreeGpsIndexed,  // "freeGPS " blocks and the "gps " index box in moov
    FreeGpsScanned,  // the blocks without the index
    FreeGpsTs,       // MPEG-TS: the blocks' records after a 164-byte head, in a listed private stream
    FreeGpsTsUnlisted,  // MPEG-TS: the bare records on PID 0x0300, left out of the program map
    FreeBoxLog,      // "free" box with sttm, a "gps " NMEA log and a "3gf " G table
    GpsRecordBox,    // top-level "GPS " box of 36-byte records
    NmeaTrack,       // RMC and GGA as the cues of a mov_text track
    SideFiles,       // NMEA log and G table as .gps / .3gf beside the clip
};

struct WrittenFix {
    double t = 0;  // seconds from the clip's start
    bool valid = false;
    double lat = 0, lng = 0, kmh = 0;
};
struct WrittenG {
    double t = 0;
    double x = 0, y = 0, z = 0;  // 1/128 g
};
struct WrittenTelemetry {
    std::vector<WrittenFix> fixes;
    std::vector<WrittenG> gs;
};

// `video.seconds` of the drive from `driveOffset`, one fix a second (ten for GPMF).
bool writeOtherCameraClip(OtherLayout layout, const VideoSpec& video, int driveOffset,
                          const std::filesystem::path& out, WrittenTelemetry* written = nullptr,
                          std::string* log = nullptr);

// The pieces, for tests that break them and for the fuzzers' seeds.
// One second of GPMF (a DEVC holding the GPS and ACCL streams).
std::string gpmfSecond(int driveSecond, bool gps9, WrittenTelemetry* written = nullptr, double clipSecond = 0);
// A 0x8000-byte "freeGPS " block for one second.
std::string freeGpsBlock(int driveSecond, WrittenTelemetry* written = nullptr, double clipSecond = 0);
// One second's record as a transport stream carries it, after a 164-byte head when `head`.
std::string freeGpsTsRecord(int driveSecond, bool head, WrittenTelemetry* written = nullptr, double clipSecond = 0);
// One 36-byte "GPS " box record.
std::string gpsRecord(int driveSecond, WrittenTelemetry* written = nullptr, double clipSecond = 0);
// "[ms]$GPRMC...\n[ms]$GPGGA...\n" lines for `seconds` seconds; startMs is the clip's start.
std::string nmeaLog(int driveOffset, int seconds, long long startMs, WrittenTelemetry* written = nullptr);
// 10-byte G records at 10 Hz.
std::string gTable(int driveOffset, int seconds, WrittenTelemetry* written = nullptr);
// A track of one sample a second (1000 ticks a second) whose samples lie at
// `offsets`: handler "meta" and format "gpmd" for GPMF, say.
std::string metadataTrack(const char* handler, const char* format, const std::vector<std::uint32_t>& sizes,
                          const std::vector<std::uint64_t>& offsets);
// An NMEA sentence with its checksum: "$" + body + "*hh".
std::string nmeaSentence(const std::string& body);

}  // namespace tarvik::cardgen
