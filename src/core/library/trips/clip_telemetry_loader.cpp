#include "core/library/trips/clip_telemetry_loader.h"

#include "core/media/clip_telemetry_reading.h"

namespace tarvik {

void loadClipTelemetry(const std::string& path, OrvoClipData& data) { readClipTelemetry(path, data); }

}  // namespace tarvik
