#pragma once
// Reads a clip's telemetry whatever layout its camera uses, as the player
// would: an MP4/MOV's subtitle track (read in-process), a KRT clip by its
// own reader, anything else by the general readers.

#include <string>

namespace tarvik {

class OrvoClipData;

// Fills data; empty when the clip holds no telemetry or cannot be read.
void loadClipTelemetry(const std::string& path, OrvoClipData& data);

}  // namespace tarvik
