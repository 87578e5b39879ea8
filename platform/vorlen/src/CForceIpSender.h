#pragma once
// Sends GigE Vision FORCEIP to a camera. The camera may sit outside the
// host's subnet, so the command goes to its MAC by broadcast on the
// interface it was found on; loopback has no broadcast, and the camera's
// own address is used there.
#include <cstdint>

#include "CAravisCamera.h"

namespace Vorlen {
namespace GenICam {

class CForceIpSender
{
public:
    explicit CForceIpSender(const CAravisCamera::SDiscoveryInfo& info) : m_info(info) {}

    // Sends the addresses (dotted quads; an empty or null gateway is
    // 0.0.0.0) and waits for the acknowledge. On success updated carries
    // the camera's new address, mask and gateway; otherwise false with the
    // last error set.
    bool send(const char* ip, const char* mask, const char* gateway, unsigned int timeoutMs,
              CAravisCamera::SDiscoveryInfo& updated) const;

private:
    int sendTo(uint32_t ip, uint32_t mask, uint32_t gateway, unsigned int timeoutMs) const;

    const CAravisCamera::SDiscoveryInfo& m_info;
};

} // namespace GenICam
} // namespace Vorlen
