#pragma once
// What ffprobe (beside the ffmpeg in use) says of an incident's clips: the
// exporter decides from it whether sound goes along, whether the picture can
// be copied, and how wide the overlay's frame is.

#include <string>

#include "core/library/incident/incident_span.h"
#include "core/library/incident/incident_video.h"

namespace tarvik {

// The entries asked for (e.g. "codec_name", "width,height") of a clip's first
// stream of a kind ("a" or "v"), comma-separated; "" when it cannot tell.
std::string probeFirstStream(const std::string& clip, const char* kind, const char* entries);

bool hasSound(const std::string& clip);

// The width, at a height of 720, of the picture the layout makes of the
// span's clips: the overlay is drawn on a frame of that shape, so that its
// route inset stays square beside a rear picture. 1280 when unknown.
int overlayFrameWidth(const IncidentSpan& span, IncidentLayout layout);

}  // namespace tarvik
