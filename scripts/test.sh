#!/usr/bin/env bash
# Installs what is missing, builds, and runs the tests inside a network
# namespace that holds only the loopback interface (scripts/netns.sh): no
# test sends a packet beyond this machine. CTest starts each test in a
# namespace of its own as well, so the tests run side by side, one per core.
#
#   bash scripts/test.sh [--sanitize | --tsan] [ctest arguments...]
#
#   (none)       every test, plain build in build/
#   --sanitize   every test built with AddressSanitizer and
#                UndefinedBehaviorSanitizer in build-asan/
#   --tsan       the threaded suites (device, discovery, video, sdk_stream,
#                the camera-loss test and the message bus) built with
#                ThreadSanitizer in build-tsan/
#
# Further arguments go to ctest (for example -R test_core_bus, or -j1 to run
# one test at a time). Installation
# and build run outside the namespace; only the test run goes in. The exit
# status is ctest's: non-zero when any test fails.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

mode=plain
case "${1:-}" in
  --sanitize|--asan) mode=address; shift ;;
  --tsan) mode=thread; shift ;;
esac

case "$mode" in
  plain)   build="${LUMIDOR_BUILD_DIR:-$here/build}"; sanitize="" ;;
  address) build="${LUMIDOR_BUILD_DIR:-$here/build-asan}"; sanitize=address ;;
  thread)  build="${LUMIDOR_BUILD_DIR:-$here/build-tsan}"; sanitize=thread ;;
esac

bash "$here/scripts/install-deps.sh"

# Fail before the long build when the namespace cannot be made.
bash "$here/scripts/netns.sh" true

selection=()
if [ "$mode" = thread ]; then
  # Configure first to learn the test names, then build only those.
  LUMIDOR_BUILD_DIR="$build" LUMIDOR_SANITIZE="$sanitize" bash "$here/scripts/build.sh" --configure-only
  mapfile -t names < <(cd "$build" && { ctest -N -L '^(device|discovery|video|sdk_stream)$'; ctest -N -R '^(test_core_bus|test_sdk_loss)$'; } \
                       | sed -n 's/^ *Test *#[0-9]*: *//p' | sort -u)
  [ ${#names[@]} -gt 0 ] || { echo "test.sh: no threaded test found in $build" >&2; exit 1; }
  LUMIDOR_BUILD_DIR="$build" LUMIDOR_SANITIZE="$sanitize" bash "$here/scripts/build.sh" "${names[@]}"
  selection=(-R "^($(IFS='|'; echo "${names[*]}"))\$")
else
  LUMIDOR_BUILD_DIR="$build" LUMIDOR_SANITIZE="$sanitize" bash "$here/scripts/build.sh"
fi

cd "$build"
echo "Running the tests of $build in a loopback-only network namespace"
exec bash "$here/scripts/netns.sh" env QT_QPA_PLATFORM=offscreen \
  ctest --output-on-failure -j"$(nproc)" "${selection[@]}" "$@"
