// Discovery and the list of known cameras.
#include "Vorlen/GenICam/CSystem.h"

#include <cstdlib>
#include <set>

#include "CCameraDiscovery.h"
#include "CLibraryLifetime.h"
#include "Gvcp.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;
using Memory::TSharedPtr;

bool CSystem::discovery(TVector<TSharedPtr<ICamera>>& cameras, EInterfaceType type)
{
    cameras.clear();
    if (CLibraryLifetime::refuse())
        return false;
    std::vector<CCameraDiscovery::CameraPtr> found;
    if (type == typeGigEVision)
        found = CCameraDiscovery().gigE();
    else if (type == typeUsb3Vision)
        found = CCameraDiscovery().usb();
    else {
        // No Camera Link, PCIe or GenTL transport behind this library.
        clearLastError();
        return true;
    }
    std::set<std::string> keys;
    for (const auto& camera : found) {
        keys.insert(camera->getKey().str());
        cameras.push_back(camera);
    }
    CCameraRegistry::instance().setSeen(type, keys);
    clearLastError();
    return true;
}

bool CSystem::discoveryEx(TVector<TSharedPtr<ICamera>>& cameras, EDiscoveryMode mode, _DiscoveryModeInfo info)
{
    if (mode == discoveryBroadcast)
        return discovery(cameras, typeGigEVision);
    cameras.clear();
    if (CLibraryLifetime::refuse())
        return false;
    if (mode != discoveryUnicast) {
        setLastError(ERR_INVALID_PARAMETER, "discovery mode");
        return false;
    }
    info.ipAddress[sizeof(info.ipAddress) - 1] = 0;
    std::string address(info.ipAddress);
    // "a.b.c.d" or "a.b.c.d:port" (a camera behind a port forward).
    uint16_t port = Gvcp::kPort;
    const std::string::size_type colon = address.find(':');
    if (colon != std::string::npos) {
        const long p = std::strtol(address.c_str() + colon + 1, nullptr, 10);
        if (p <= 0 || p > 65535) {
            setLastError(ERR_INVALID_PARAMETER, info.ipAddress);
            return false;
        }
        port = uint16_t(p);
        address.resize(colon);
    }
    uint32_t ip = 0;
    if (!Gvcp::parseIp(address.c_str(), ip)) {
        setLastError(ERR_INVALID_PARAMETER, info.ipAddress);
        return false;
    }
    CCameraDiscovery::CameraPtr camera =
        CCameraDiscovery().unicast(ip, port, info.timeoutMs ? info.timeoutMs : 1000, info.ipAddress);
    if (!camera)
        return false;
    cameras.push_back(camera);
    clearLastError();
    return true;
}

bool CSystem::getCameraPtrAll(TVector<TSharedPtr<ICamera>>& cameras)
{
    cameras.clear();
    if (CLibraryLifetime::refuse())
        return false;
    for (const auto& camera : CCameraRegistry::instance().listed())
        cameras.push_back(camera);
    clearLastError();
    return true;
}

} // namespace GenICam
} // namespace Vorlen
