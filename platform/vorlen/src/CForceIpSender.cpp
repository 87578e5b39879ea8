#include "CForceIpSender.h"

#include "Gvcp.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

bool CForceIpSender::send(const char* ip, const char* mask, const char* gateway, unsigned int timeoutMs,
                          CAravisCamera::SDiscoveryInfo& updated) const
{
    using namespace Infra;
    uint32_t newIp = 0, newMask = 0, newGateway = 0;
    if (!Gvcp::parseIp(ip, newIp) || !Gvcp::parseIp(mask, newMask)) {
        setLastError(ERR_INVALID_PARAMETER, "address or mask");
        return false;
    }
    if (gateway && *gateway && !Gvcp::parseIp(gateway, newGateway)) {
        setLastError(ERR_INVALID_PARAMETER, "gateway");
        return false;
    }
    const int err = sendTo(newIp, newMask, newGateway, timeoutMs);
    if (err == ERR_INVALID_PARAMETER) {
        setLastError(err, "camera MAC or address unknown");
        return false;
    }
    if (err != ERR_OK) {
        setLastError(err, m_info.key.c_str());
        LOG_ERROR("FORCEIP %s -> %s failed: %s", m_info.key.c_str(), ip, getErrMsg(err));
        return false;
    }
    updated = m_info;
    updated.ipAddress = Gvcp::ipToString(newIp);
    updated.subnetMask = Gvcp::ipToString(newMask);
    updated.gateway = Gvcp::ipToString(newGateway);
    return true;
}

int CForceIpSender::sendTo(uint32_t ip, uint32_t mask, uint32_t gateway, unsigned int timeoutMs) const
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
