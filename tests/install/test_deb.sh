#!/usr/bin/env bash
# test_deb.sh BUILD_DIR: `make deb`'s package as Debian's tools see it:
# lintian finds no error or warning, the package holds what a desktop needs,
# and both programs run from its unpacked tree.
set -euo pipefail
build=$1
out=$(mktemp -d /tmp/tarvik-deb-XXXXXX)
trap 'rm -rf "$out"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

(cd "$build" && cpack -G DEB -B "$out" >/dev/null) || fail "cpack"
deb=$(ls "$out"/tarvik-viewer_*_amd64.deb)
[ -s "$deb" ] || fail "no package"

lintian --fail-on error,warning "$deb" || fail "lintian"

files=$(dpkg-deb -c "$deb" | awk '{print $6}')
id=org.tarvik.Viewer
for f in usr/bin/tarvik usr/bin/tarvik-viewer usr/share/applications/$id.desktop \
         usr/share/metainfo/$id.metainfo.xml usr/share/icons/hicolor/256x256/apps/$id.png \
         usr/share/man/man1/tarvik.1.gz usr/share/man/man1/tarvik-viewer.1.gz \
         usr/share/tarvik/translations/tarvik_ja.qm usr/share/doc/tarvik-viewer/copyright; do
  grep -qx "./$f" <<<"$files" || fail "$f not in the package"
done
depends=$(dpkg-deb -f "$deb" Depends)
for p in libmpv2 libqt6webenginecore6 ffmpeg; do
  grep -q "$p" <<<"$depends" || fail "$p not among the dependencies: $depends"
done

root="$out/root"
dpkg -x "$deb" "$root"
version=$("$root/usr/bin/tarvik" --version)
[ "$version" = "tarvik $(dpkg-deb -f "$deb" Version)" ] || fail "tarvik --version: $version"
mkdir -p "$HOME" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
timeout 120 "$root/usr/bin/tarvik-viewer" --screenshot "$out/window.png" >/dev/null 2>&1 \
  || fail "the packaged viewer did not quit cleanly"
[ -s "$out/window.png" ] || fail "the packaged viewer wrote no screenshot"
echo "package OK: $(basename "$deb")"
