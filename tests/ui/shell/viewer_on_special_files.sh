#!/bin/sh
# The viewer starts on a card whose settings files are FIFOs, a socket and a
# folder, shows its window and quits on its own: its card detection opens no
# file that can block. Usage: viewer_on_special_files.sh VIEWER WORKDIR
set -eu
viewer=$1
work=$2
rm -rf "$work"
for kind in m420 krt; do
    card=$work/$kind/card
    mkdir -p "$card/SETTING/lang" "$card/SETTING/time.dat"
    if [ "$kind" = m420 ]; then
        mkfifo "$card/SETTING/setup.cfg"
        python3 -c 'import socket, sys; socket.socket(socket.AF_UNIX).bind(sys.argv[1])' "$card/SETTING/lang/ver.dat" ||
            mkfifo "$card/SETTING/lang/ver.dat"
    else
        mkfifo "$card/SETTING/blackbox.cfg"
    fi
    HOME=$work/$kind XDG_CONFIG_HOME=$work/$kind/.config \
        timeout 60 "$viewer" --folder "$card" --screenshot "$work/$kind/window.png"
    test -s "$work/$kind/window.png"
done
