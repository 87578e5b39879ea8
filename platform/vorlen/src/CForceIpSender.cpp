#include "CForceIpSender.h"

#include "Gvcp.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

int CForceIpSender::send(uint32_t ip, uint32_t mask, uint32_t gateway, unsigned int timeoutMs) const
{
    uint64_t mac = 0;
    uint32_t cameraIp = 0;
    if (!Gvcp::parseMac(m_info.macAddress.c_str(), mac) || !Gvcp::parseIp(m_info.ipAddress.c_str(), cameraIp))
        return Infra::ERR_INVALID_PARAMETER;
    Gvcp::SHostInterface host;
    bool found = false;
    for (const Gvcp::SHostInterface& h : Gvcp::hostInterfaces()) {
        if (h.name == m_info.hostInterfaceName && Gvcp::ipToString(h.ip) == m_info.hostIp) {
            host = h;
            found = true;
            break;
        }
    }
    if (!found)
        found = Gvcp::hostInterfaceFor(cameraIp, host);
    uint32_t destination = cameraIp;
    uint32_t bindIp = 0;
    if (found && !host.loopback) {
        destination = host.broadcast ? host.broadcast : 0xFFFFFFFFu;
        bindIp = host.ip;
    }
    return Gvcp::forceIp(destination, bindIp, mac, ip, mask, gateway, timeoutMs);
}

} // namespace GenICam
} // namespace Vorlen
