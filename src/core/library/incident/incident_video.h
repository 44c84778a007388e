#pragma once
// The ffmpeg command that makes incident.mp4: every part of the span trimmed
// to the frame at its in and out points, the parts joined without a gap, the
// two cameras placed by the layout, all in one filter graph, so that no frame
// is decoded twice and none by the program itself.

#include <string>
#include <vector>

#include "core/library/incident/incident_span.h"

namespace tarvik {

enum class IncidentLayout { Front, Rear, Side, PictureInPicture };

// "front", "rear", "side", "pip".
const char* layoutName(IncidentLayout layout);
bool layoutFromName(const std::string& name, IncidentLayout* layout);
bool layoutNeedsRear(IncidentLayout layout);

struct IncidentVideoOptions {
    IncidentLayout layout = IncidentLayout::Side;
    int crf = 20;  // H.264 quality: lower is better and larger
    // An ASS file drawn over the picture; its path must need no escaping in
    // a filter graph (letters, digits, '/', '-', '_', '.').
    std::string overlayFile;
    // The front clips' sound goes along (every front clip of the span must have one).
    bool frontAudio = false;
    // The picture's own packets, unchanged: only where nothing asks for a
    // new picture (see `canCopyPicture`).
    bool copyPicture = false;
};

// Whether the span's picture can go into incident.mp4 as the camera wrote
// it: one camera, no overlay, one whole clip (a cut inside a clip would
// start on a key frame, not on the in point), in a codec MP4 holds.
bool canCopyPicture(const IncidentSpan& span, const IncidentVideoOptions& options, const std::string& codec);

// The ffmpeg that does the work: $TARVIK_FFMPEG, else "ffmpeg" on PATH.
std::string incidentFfmpeg();

// ffmpeg's arguments writing the span to `output` (an .mp4).
std::vector<std::string> incidentVideoArguments(const IncidentSpan& span, const IncidentVideoOptions& options,
                                                const std::string& output);

// ffmpeg's arguments writing the span's first picture, laid out and
// overlaid the same way, to `output` (a .png).
std::vector<std::string> incidentStillArguments(const IncidentSpan& span, const IncidentVideoOptions& options,
                                                const std::string& output);

}  // namespace tarvik
