#!/usr/bin/env bash
# Adds the loopback addresses 127.0.0.2..N that extra simulated cameras listen
# on. Needs root; without it only 127.0.0.1 is used.
n="${1:-5}"
for i in $(seq 2 "$n"); do
  if ! ip -4 addr show dev lo 2>/dev/null | grep -q "inet 127.0.0.$i/"; then
    if [ "$(id -u)" -eq 0 ]; then
      ip addr add "127.0.0.$i/8" dev lo 2>/dev/null || true
    elif command -v sudo >/dev/null && sudo -n true 2>/dev/null; then
      sudo ip addr add "127.0.0.$i/8" dev lo 2>/dev/null || true
    fi
  fi
done
