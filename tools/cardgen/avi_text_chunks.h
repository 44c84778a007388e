#pragma once
// ffmpeg cannot write the text chunks dash cameras put into an AVI, so they
// are woven into the movi list afterwards, next to the video frames of their
// time. The file stays playable: idx1 is rewritten for the moved frames and
// the OpenDML indexes, whose absolute offsets would now be wrong, are dropped.

#include <filesystem>
#include <string>
#include <vector>

#include "cardgen/telemetry_encoders.h"

namespace tarvik::cardgen {

bool addTextChunksToAvi(const std::filesystem::path& avi, const std::vector<TextChunk>& chunks, int fps,
                        std::string* error = nullptr);

}  // namespace tarvik::cardgen
