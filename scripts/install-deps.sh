#!/usr/bin/env bash
# Installs the Debian packages Lumidor needs to build, run and test.
# Quiet and quick when everything is already there.
set -euo pipefail

PACKAGES=(
  build-essential cmake ninja-build pkg-config ccache
  qtbase5-dev qtbase5-dev-tools libqt5svg5-dev
  qttools5-dev qttools5-dev-tools qttranslations5-l10n fonts-wqy-microhei
  libaravis-dev aravis-tools-cli libusb-1.0-0-dev
  libopencv-imgproc-dev libopencv-imgcodecs-dev
  libavformat-dev libavcodec-dev libavutil-dev libswscale-dev ffmpeg
  liblog4cpp5-dev
  xvfb xauth x11-apps imagemagick iproute2
)

missing=()
for p in "${PACKAGES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  SUDO=""
  if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
  export DEBIAN_FRONTEND=noninteractive
  $SUDO apt-get update -qq
  $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
