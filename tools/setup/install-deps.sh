#!/usr/bin/env bash
# Installs the Debian packages the viewer needs to build, run and test, and only
# those that are missing. Nothing is downloaded from anywhere but Debian.
set -euo pipefail

packages=(
  cmake ninja-build g++ pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-webengine-dev qt6-webengine-dev-tools
  qt6-webchannel-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6opengl6-dev
  qt6-qpa-plugins libqt6svg6 qt6-translations-l10n
  libmpv-dev ffmpeg libjs-leaflet libavformat-dev libavcodec-dev libavutil-dev
  libimage-exiftool-perl liburing-dev libcli11-dev nlohmann-json3-dev gpsbabel lintian
  libgtest-dev libgmock-dev libbenchmark-dev
  mpv  # the plain player the playback benchmark compares with
  clang libclang-rt-14-dev
  xvfb xauth libgl1-mesa-dri libglx-mesa0
  desktop-file-utils appstream
  fonts-noto-cjk fonts-dejavu-core
  dbus python3-dbusmock udisks2 dosfstools
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing missing packages: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then
  sudo="sudo"
fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -q
$sudo apt-get install -y -q --no-install-recommends "${missing[@]}"
