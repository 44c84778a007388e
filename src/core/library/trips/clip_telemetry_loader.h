#pragma once
// Reads a clip's telemetry whatever layout its camera uses, as the player
// would: an MP4/MOV's subtitle track (or the .srt the converter left beside
// it), a KRT clip by its own reader, anything else by the general readers.

#include <string>

namespace tarvik {

class OrvoClipData;

// Fills data; false only when ffmpeg was needed and could not be run.
// $TARVIK_FFMPEG names the ffmpeg to use.
bool loadClipTelemetry(const std::string& path, OrvoClipData& data);

}  // namespace tarvik
