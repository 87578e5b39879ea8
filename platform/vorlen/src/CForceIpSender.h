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

    // An Infra error code: ERR_OK once the camera acknowledged.
    int send(uint32_t ip, uint32_t mask, uint32_t gateway, unsigned int timeoutMs) const;

private:
    const CAravisCamera::SDiscoveryInfo& m_info;
};

} // namespace GenICam
} // namespace Vorlen
