#pragma once
// Which row of the filtered clip list the previous/next buttons move to.
// Front/rear MP4 pairs count as one recording, so stepping never lands on the
// rear half of a pair. Plain rules over the list; no interface involved.

#include <string>
#include <string_view>
#include <vector>

#include "core/telemetry/mp4_clip_path.h"

namespace tarvik {

// The row after `selected`, wrapping to 0 and skipping the selected clip's
// rear partner; -1 when nothing is selected.
int nextClipRow(const std::vector<std::string>& list, int selected);

// The row before `selected`, landing on the front file of a preceding pair;
// -1 on the first row or without a selection (no wrap backwards).
int previousClipRow(const std::vector<std::string>& list, int selected);

}  // namespace tarvik
