#!/usr/bin/env bash
# Configures and builds Lumidor, its tests and benchmarks into build/.
#
#   bash scripts/build.sh [--configure-only | target ...]
#
# LUMIDOR_BUILD_DIR picks another folder, LUMIDOR_BUILD_TYPE another CMake
# build type, LUMIDOR_SANITIZE=address|thread a sanitized build. Named
# targets are built alone; without any, everything is. ccache is used when
# it is installed.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${LUMIDOR_BUILD_DIR:-$here/build}"
args=(-DCMAKE_BUILD_TYPE="${LUMIDOR_BUILD_TYPE:-RelWithDebInfo}" -DLUMIDOR_SANITIZE="${LUMIDOR_SANITIZE:-}")
if command -v ccache >/dev/null; then
  args+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
fi
cmake -S "$here" -B "$build" -G Ninja "${args[@]}" >/dev/null
[ "${1:-}" = --configure-only ] && exit 0
targets=()
for t in "$@"; do targets+=(--target "$t"); done
cmake --build "$build" -j"$(nproc)" "${targets[@]}"
