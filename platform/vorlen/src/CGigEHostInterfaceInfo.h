#pragma once
// The host network card a GigE Vision camera is reached through.
#include "Gvcp.h"
#include "Vorlen/GenICam/CInterfaceInfo.h"

namespace Vorlen {
namespace GenICam {

class CGigEHostInterfaceInfo : public CGigEInterfaceInfo
{
public:
    explicit CGigEHostInterfaceInfo(const Gvcp::SHostInterface& host) : m_host(host) {}
    CString getDescription() const override { return m_host.name; }
    CString getIpAddress() const override { return Gvcp::ipToString(m_host.ip); }
    CString getSubnetMask() const override { return Gvcp::ipToString(m_host.mask); }
    CString getGateway() const override { return Gvcp::ipToString(m_host.gateway); }
    CString getMacAddress() const override { return m_host.mac; }

private:
    Gvcp::SHostInterface m_host;
};

} // namespace GenICam
} // namespace Vorlen
