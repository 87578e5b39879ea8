#!/usr/bin/env bash
# Runs a command in a network namespace of its own that holds nothing but the
# loopback interface, with the addresses 127.0.0.2..N that the simulated
# cameras listen on. Whatever the command sends (discovery broadcasts
# included) stays on this machine, and no real camera on the network can
# answer it. Tests and benchmarks run through here; CTest starts every test
# through here, so each test has a namespace of its own and tests run in
# parallel. Nesting works: a command inside one namespace can make another.
#
# The command also gets a mount namespace of its own (private propagation):
# what it mounts, a small tmpfs for a full-disk test for instance, is seen by
# nobody else and goes away with it. LUMIDOR_NETNS=1 tells it where it runs.
#
#   bash scripts/netns.sh [--addresses N] command [arguments...]
#
# Needs root, or unprivileged user namespaces (then the command runs as the
# namespace's root, mapped to the calling user). Fails with the reason when
# neither is available or the rig cannot be set up.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
self="$here/scripts/netns.sh"

fail() { echo "netns.sh: $*" >&2; exit 3; }

addresses=5
inside=0
while [ $# -gt 0 ]; do
  case "$1" in
    --addresses) addresses="${2:?--addresses needs a number}"; shift 2 ;;
    --inside) inside=1; shift ;;
    --) shift; break ;;
    *) break ;;
  esac
done
[ $# -gt 0 ] || { echo "usage: bash scripts/netns.sh [--addresses N] command [arguments...]" >&2; exit 2; }
case "$addresses" in ''|*[!0-9]*) fail "--addresses takes a number, not '$addresses'" ;; esac

if [ "$inside" -eq 0 ]; then
  command -v unshare >/dev/null || fail "unshare is missing (package util-linux)"
  command -v ip >/dev/null || fail "ip is missing (package iproute2; scripts/install-deps.sh installs it)"
  if [ "$(id -u)" -eq 0 ] && unshare -n -m true 2>/dev/null; then
    exec unshare -n -m -- bash "$self" --inside --addresses "$addresses" -- "$@"
  elif [ "$(id -u)" -ne 0 ] && unshare -r -n -m true 2>/dev/null; then
    exec unshare -r -n -m -- bash "$self" --inside --addresses "$addresses" -- "$@"
  fi
  fail "cannot create a network namespace (unshare -n -m was refused). The tests send camera \
discovery broadcasts and must run isolated on loopback: run as root (sudo), or allow \
unprivileged user namespaces (sysctl kernel.unprivileged_userns_clone=1 and \
user.max_user_namespaces > 0), or in a container started with CAP_SYS_ADMIN."
fi

# Inside the namespace: bring loopback up and add the camera addresses.
ip link set lo up || fail "cannot bring the loopback interface up inside the namespace"
bash "$here/scripts/loopback.sh" "$addresses"
present="$(ip -4 addr show dev lo)"
for i in $(seq 1 "$addresses"); do
  grep -q "inet 127.0.0.$i/" <<<"$present" \
    || fail "127.0.0.$i is missing on the loopback interface inside the namespace"
done
others="$(ip -o link show | awk -F': ' '{print $2}' | grep -v '^lo$' || true)"
[ -z "$others" ] || fail "the namespace holds interfaces besides loopback: $others"

export LUMIDOR_NETNS=1
exec "$@"
