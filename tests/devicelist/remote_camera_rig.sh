#!/usr/bin/env bash
# A camera network beyond a router, for the remote-camera tests: this
# namespace -- veth -- router namespace -- veth -- camera namespace. A route
# leads to the camera's subnet, but broadcast discovery stops at the router,
# so only a unicast probe finds a camera there.
#
#   bash remote_camera_rig.sh up NAME     creates NAME_r and NAME_c; prints nothing
#   bash remote_camera_rig.sh down NAME   removes both (and the links with them)
#
# Addresses: here 10.77.1.1/24, router 10.77.1.2 and 10.77.2.1, camera
# 10.77.2.2/24. Run the camera with: ip netns exec NAME_c <program>.
# Needs root (or CAP_NET_ADMIN and CAP_SYS_ADMIN); fails with the reason.
set -euo pipefail

fail() { echo "remote_camera_rig.sh: $*" >&2; exit 3; }

action="${1:-}"
name="${2:-}"
[ -n "$action" ] && [ -n "$name" ] || { echo "usage: $0 up|down NAME" >&2; exit 2; }
router="${name}_r"
camera="${name}_c"
here_link="${name:0:8}h"   # interface names stay under 16 characters

down() {
  ip netns del "$camera" 2>/dev/null || true
  ip netns del "$router" 2>/dev/null || true
  ip link del "$here_link" 2>/dev/null || true
  ip route del 10.77.2.0/24 2>/dev/null || true
}

case "$action" in
  down) down; exit 0 ;;
  up) ;;
  *) echo "usage: $0 up|down NAME" >&2; exit 2 ;;
esac

command -v ip >/dev/null || fail "ip is missing (package iproute2)"
# Namespaces left by an earlier run that died (named after its process id).
for ns in $(ip netns list 2>/dev/null | awk '{print $1}' | grep -E '^lumi[0-9]+_[rc]$' || true); do
  pid="${ns#lumi}"; pid="${pid%_*}"
  kill -0 "$pid" 2>/dev/null || ip netns del "$ns" 2>/dev/null || true
done
trap 'down' ERR
ip netns add "$router" 2>/dev/null || fail "cannot create the namespace $router (needs root: ip netns add)"
ip netns add "$camera" || fail "cannot create the namespace $camera"
ip link add "$here_link" type veth peer name rA netns "$router" || fail "cannot create a veth pair"
ip -n "$router" link add rB type veth peer name cB netns "$camera" || fail "cannot create the second veth pair"

ip addr add 10.77.1.1/24 dev "$here_link"
ip link set "$here_link" up
ip route add 10.77.2.0/24 via 10.77.1.2 dev "$here_link" || fail "cannot add the route to the camera subnet"

ip -n "$router" link set lo up
ip -n "$router" addr add 10.77.1.2/24 dev rA
ip -n "$router" addr add 10.77.2.1/24 dev rB
ip -n "$router" link set rA up
ip -n "$router" link set rB up
ip netns exec "$router" sysctl -q -w net.ipv4.ip_forward=1 || fail "cannot enable forwarding in $router"

ip -n "$camera" link set lo up
ip -n "$camera" addr add 10.77.2.2/24 dev cB
ip -n "$camera" link set cB up
ip -n "$camera" route add default via 10.77.2.1 || fail "cannot add the camera's default route"
trap - ERR
