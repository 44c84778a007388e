#!/bin/sh
# Processor time of one mpv playing a front/rear pair composed into one
# picture by lavfi-complex, against two mpv processes playing the same files,
# 20 s each: what the one-handle design for keeping the two views in step
# would cost. Run under a display (xvfb-run -a -s "-screen 0 1920x1080x24").
# Usage: probe_one_handle_pair.sh FRONT.mp4 REAR.mp4 (make bench leaves a
# 1080p30 pair in /tmp/tarvik-bench-play-pair/card).
set -e
front=${1:?front clip}
rear=${2:?rear clip}
common="--no-config --really-quiet --hwdec=no --ao=null --sid=no --length=20"
cpu() { /usr/bin/time -f "%U %S" "$@" 2>&1 >/dev/null | tail -1 | awk '{ print $1 + $2 }'; }
echo "two processes: $(cpu sh -c "mpv $common --geometry=640x360 '$front' & mpv $common --geometry=640x360 '$rear' & wait") s"
echo "one, composed: $(cpu mpv $common --geometry=1280x360 --external-file="$rear" \
    --lavfi-complex='[vid1][vid2]hstack[vo]' "$front") s"
