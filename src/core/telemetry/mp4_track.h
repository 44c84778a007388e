#pragma once
// A track of an MP4/MOV and where its samples lie, from its sample tables
// (stts, stsc, stsz, stco/co64). Only the first samples a clip's telemetry
// can use are listed, so a table claiming millions of entries costs nothing.

#include <cstdint>
#include <string>
#include <vector>

#include "core/telemetry/mp4_boxes.h"

namespace tarvik::mp4 {

struct Sample {
    std::uint64_t offset = 0;
    std::uint32_t size = 0;
    double time = 0;      // seconds from the track's start
    double duration = 0;  // seconds
};

struct Track {
    char handler[4] = {};  // hdlr's handler type: "vide", "meta", "text", "sbtl", ...
    char format[4] = {};   // the first sample description's format: "gpmd", "tx3g", ...
    double duration = 0;   // seconds
    std::vector<Sample> samples;

    bool handlerIs(const char* t) const;
    bool formatIs(const char* t) const;
};

// The tracks of a moov box with their first samples: at most `maxSamples`
// each, and none that starts at or after `maxSeconds`.
std::vector<Track> tracks(const BoundedFile& file, const Box& moov, std::size_t maxSamples = 4096,
                          double maxSeconds = 65.0);

}  // namespace tarvik::mp4
