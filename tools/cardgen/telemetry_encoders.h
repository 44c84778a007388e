#pragma once
// How each camera layout writes a drive's telemetry: the text and binary
// records, the tail text, the SRT cues. Shared by the clip writers and by the
// tests that read the clips back.

#include <string>
#include <vector>

#include "cardgen/demo_drive.h"

namespace tarvik::cardgen {

// A chunk to place into an AVI's movi list at a time (seconds from the clip's start).
struct TextChunk {
    double time = 0;
    std::string tag;  // "02tx" or "03tx"
    std::string payload;
};

// "GPRMC,hhmmss.000,A,ddmm.mmmm,N,dddmm.mmmm,E,knots,..." (status "V" without a fix).
// `name` is the first field as the layout spells it ("GPRMC", "GNRMC", "$GPRMC", "G$GPRMC").
std::string rmcSentence(const DriveFix& fix, int second, const std::string& name = "GPRMC");

// What each layout can hold of a G reading.
DriveG quantizeGeneralBinary(DriveG g);  // one byte 128 - g: -127..128
DriveG quantizeKrtBinary(DriveG g);      // one byte (g + 1280) / 10: steps of 10
DriveG quantizeText(DriveG g);           // the last field read back whole: -99..999

// Marker "QZRVT7" and one line per reading, 10 readings a second expected.
std::string tailText(const std::vector<TelemetrySecond>& secs);
// "gsensor"/"gsensori" records for each reading, a position record per second.
std::vector<TextChunk> textRecordChunks(const std::vector<TelemetrySecond>& secs, const std::string& tag,
                                        bool gsensori);
// Binary 'M' readings and NMEA text; the general family marks seconds without
// a fix with a 'T' chunk every other time instead of a "V" sentence.
std::vector<TextChunk> binaryChunks(const std::vector<TelemetrySecond>& secs, const std::string& tag, bool krt);
// One cue per reading (10 a second, 100 ms each); the last cue of a second also
// carries the position record.
std::string srtTrack(const std::vector<TelemetrySecond>& secs, bool crlf = false);

}  // namespace tarvik::cardgen
