#pragma once
// How long an MPEG-TS clip runs, from its packets' program clock: the first
// clock reference near the start and the last near the end. Only those two
// stretches are read, so a long clip costs no more than a short one.

#include <cstdint>

#include "core/library/trips/clip_container.h"

namespace tarvik {

// Playable, with its seconds when it carries clock references, for a file of
// synchronised 188-byte packets (192 with a time code in front); Unreadable
// when it is no transport stream at all.
ContainerInfo inspectTransportStream(int fd, std::uint64_t size);

}  // namespace tarvik
