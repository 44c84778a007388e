#pragma once
// What a player needs from mpv's track list: whether the file has a video
// track (cover art does not count) and the coded size of the selected one.

#include <QSize>

struct mpv_node;

namespace tarvik {

// An empty size when no video track is selected or its size is unknown.
QSize videoTrackSize(const mpv_node& tracks, bool* anyVideo);

}  // namespace tarvik
