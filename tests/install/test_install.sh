#!/usr/bin/env bash
# test_install.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
build=$1
prefix=$(mktemp -d /tmp/tarvik-install-XXXXXX)
card=$(mktemp -d /tmp/tarvik-install-card-XXXXXX)
trap 'rm -rf "$prefix" "$card"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$prefix" >/dev/null

id=org.tarvik.Viewer
for f in bin/tarvik bin/tarvik-viewer share/tarvik/settings/default_Q260.cfg \
         share/applications/$id.desktop share/metainfo/$id.metainfo.xml \
         share/icons/hicolor/scalable/apps/$id.svg share/icons/hicolor/48x48/apps/$id.png \
         share/icons/hicolor/256x256/apps/$id.png share/tarvik/translations/tarvik_fr.qm; do
  [ -s "$prefix/$f" ] || fail "$f not installed"
done
# The PNG header's width and height, big-endian at bytes 16 and 20.
[ "$(od -An -tu1 -j16 -N8 "$prefix/share/icons/hicolor/48x48/apps/$id.png" | tr -s ' ')" = " 0 0 0 48 0 0 0 48" ] \
  || fail "48x48 icon has another size"

# The manual pages render, and say what the programs say of themselves.
for page in tarvik tarvik-viewer; do
  text=$(MANWIDTH=80 man -l "$prefix/share/man/man1/$page.1.gz" 2>&1) || fail "man -l $page.1: $text"
  grep -q "^NAME" <<<"$text" || fail "$page.1 renders without a NAME section"
  grep -q "$("$prefix/bin/tarvik" --version | cut -d' ' -f2)" <<<"$text" || fail "$page.1 names another version"
done
# Help and the version need no display.
[ "$(env -u DISPLAY "$prefix/bin/tarvik-viewer" --version)" = "$("$prefix/bin/tarvik" --version | sed 's/tarvik/tarvik-viewer/')" ] \
  || fail "tarvik-viewer --version"
env -u DISPLAY "$prefix/bin/tarvik-viewer" --help | grep -q "^Usage: tarvik-viewer" || fail "tarvik-viewer --help"
status=0; env -u DISPLAY "$prefix/bin/tarvik-viewer" --no-such-option >/dev/null 2>&1 || status=$?
[ "$status" = 2 ] || fail "tarvik-viewer with an unknown option exits $status"

desktop-file-validate "$prefix/share/applications/$id.desktop"
appstreamcli validate --no-net --explain "$prefix/share/metainfo/$id.metainfo.xml"

# A KRT card whose settings file is missing shows the factory settings, which
# the installed tool must find under its own prefix.
mkdir -p "$card/setting" && : > "$card/setting/blackbox.cfg"
out=$("$prefix/bin/tarvik" card "$card")
grep -q "=" <<<"$(sed -n '8,$p' <<<"$out")" || fail "installed tarvik found no factory settings: $out"

# The installed viewer starts and draws its window.
mkdir -p "$HOME" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
shot="$build/test-home/test_install/installed-viewer.png"
rm -f "$shot"
timeout 120 "$prefix/bin/tarvik-viewer" --screenshot "$shot" >/dev/null 2>&1 || fail "installed viewer did not quit cleanly"
[ -s "$shot" ] || fail "installed viewer wrote no screenshot"
echo "install OK"
