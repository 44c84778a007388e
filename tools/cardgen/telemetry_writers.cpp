#include "cardgen/card_plan.h"

namespace tarvik::cardgen {

// Telemetry layouts are added by the telemetry work; until then clips carry
// pictures only.
bool writeClip(const ClipPlan& clip, const std::filesystem::path& out, std::string* log) {
    return makeVideo(clip.video, out, log);
}

}  // namespace tarvik::cardgen
