#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
bash "$here/scripts/install-deps.sh"
bash "$here/scripts/build.sh"
bash "$here/scripts/loopback.sh" 5
build="${LUMIDOR_BUILD_DIR:-$here/build}"
cd "$build"
export QT_QPA_PLATFORM=offscreen
ctest --output-on-failure -j1 "$@"
