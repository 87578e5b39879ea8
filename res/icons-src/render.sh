#!/usr/bin/env bash
# Renders every SVG icon of this folder to ../Pic/<name>.png at the size the
# SVG declares (16 px status marks, 24 px tool icons, 256 px application icon).
# The PNGs are committed, so a build never needs this; run it after editing
# an SVG. Needs rsvg-convert (Debian package librsvg2-bin).
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
out="$here/../Pic"
mkdir -p "$out"
command -v rsvg-convert >/dev/null || { echo "rsvg-convert not found: apt-get install librsvg2-bin" >&2; exit 1; }
for svg in "$here"/*.svg; do
  name="$(basename "$svg" .svg)"
  rsvg-convert --format=png --output "$out/$name.png" "$svg"
done
echo "rendered $(ls "$here"/*.svg | wc -l) icons into $out"
