#pragma once
// Finds cameras: Aravis' device lists of GigE Vision and USB3 Vision,
// completed by what the cameras themselves tell (GigE Vision device
// information: masks, gateways, IP configuration), and unicast probes of
// single addresses. Every camera found goes into the registry.
#include <string>
#include <vector>

#include "CCameraRegistry.h"

namespace Vorlen {
namespace GenICam {

class CCameraDiscovery
{
public:
    using CameraPtr = CCameraRegistry::CameraPtr;

    std::vector<CameraPtr> gigE();
    std::vector<CameraPtr> usb();
    // The camera answering at ip:port, or null with the last error set.
    // address is the text the caller gave (the registry's unicast key).
    CameraPtr unicast(uint32_t ip, uint16_t port, unsigned int timeoutMs, const std::string& address);

private:
    struct SEntry
    {
        std::string id, physicalId, address, vendor, model, serial, manufacturerInfo, protocol;
    };
    static std::vector<SEntry> aravisDevices(ArvInterface* iface);
    static CAravisCamera::SDiscoveryInfo infoFromEntry(const SEntry& e, EInterfaceType type);
    static void initAravisOnce();
};

} // namespace GenICam
} // namespace Vorlen
