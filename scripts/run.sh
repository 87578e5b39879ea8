#!/usr/bin/env bash
# Installs what is missing, builds and starts Lumidor. When no real camera
# answers, two simulated GigE Vision cameras are started on loopback first and
# stopped again when Lumidor exits.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
bash "$here/scripts/install-deps.sh"
bash "$here/scripts/build.sh"
build="${LUMIDOR_BUILD_DIR:-$here/build}"
bin="$build/bin"

pids=()
cleanup() { for p in "${pids[@]:-}"; do [ -n "$p" ] && kill "$p" 2>/dev/null || true; done; }
trap cleanup EXIT

if [ -z "$(timeout 5 arv-tool-0.8 2>/dev/null | grep -v '^No device found' || true)" ]; then
  echo "No camera found: starting two simulated cameras"
  bash "$here/scripts/loopback.sh" 2
  addr2=127.0.0.2
  # Read the list first: with pipefail, grep -q closing the pipe early
  # would make the whole test fail now and then.
  lo_addresses="$(ip -4 addr show dev lo 2>/dev/null || true)"
  grep -q "inet 127.0.0.2/" <<<"$lo_addresses" || addr2=""
  "$bin/lumidor-simcam" --address 127.0.0.1 --serial LUM-SIM-01 & pids+=($!)
  if [ -n "$addr2" ]; then
    "$bin/lumidor-simcam" --address "$addr2" --serial LUM-SIM-02 & pids+=($!)
  else
    echo "127.0.0.2 is not available (not root): one simulated camera only"
  fi
  sleep 1
fi

# The log configuration is looked up in the folder Lumidor starts in.
cd "$bin"
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "No display: running under xvfb-run"
  xvfb-run -a -s "-screen 0 1600x1000x24" ./Lumidor "$@"
else
  ./Lumidor "$@"
fi
