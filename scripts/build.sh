#!/usr/bin/env bash
# Configures and builds Lumidor, its tests and benchmarks into build/.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${LUMIDOR_BUILD_DIR:-$here/build}"
cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE="${LUMIDOR_BUILD_TYPE:-RelWithDebInfo}" >/dev/null
cmake --build "$build" -j"$(nproc)"
