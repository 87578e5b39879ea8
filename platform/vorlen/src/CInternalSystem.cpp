// Host interfaces of cameras and the library's version.
#include "Vorlen/GenICam/CSystem.h"

#include <cstdio>

#include "CAravisCamera.h"
#include "CGigEHostInterfaceInfo.h"
#include "CUsbHostInterfaceInfo.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;
using Memory::TSharedPtr;

TSharedPtrGigEInterfaceInfo CInternalSystem::getGigEInterfaceInfoByCamera(const TSharedPtr<ICamera>& camera)
{
    CAravisCamera* c = toAravisCamera(camera);
    if (!c || !c->isGigE()) {
        setLastError(c ? ERR_NOT_SUPPORTED : ERR_INVALID_HANDLE, "GigE interface");
        return TSharedPtrGigEInterfaceInfo();
    }
    const CAravisCamera::SDiscoveryInfo info = c->discoveryInfo();
    // Looked up again at every call: the host's network setup may have
    // changed since the camera was found.
    uint32_t ip = 0;
    Gvcp::SHostInterface host;
    if (!Gvcp::parseIp(info.ipAddress.c_str(), ip) || !Gvcp::hostInterfaceFor(ip, host)) {
        setLastError(ERR_NOT_FOUND, "no network interface reaches the camera");
        return TSharedPtrGigEInterfaceInfo();
    }
    clearLastError();
    return TSharedPtrGigEInterfaceInfo(std::make_shared<CGigEHostInterfaceInfo>(host));
}

TSharedPtrUsbInterfaceInfo CInternalSystem::getUsbInterfaceInfoByCamera(const TSharedPtr<ICamera>& camera)
{
    CAravisCamera* c = toAravisCamera(camera);
    if (!c || c->getType() != typeUsb3Vision) {
        setLastError(c ? ERR_NOT_SUPPORTED : ERR_INVALID_HANDLE, "USB interface");
        return TSharedPtrUsbInterfaceInfo();
    }
    SUsbSysfsInfo usb;
    usbSysfsInfo(c->discoveryInfo().serial, usb);
    clearLastError();
    return TSharedPtrUsbInterfaceInfo(std::make_shared<CUsbHostInterfaceInfo>("USB3 Vision", usb));
}

TSharedPtrCLInterfaceInfo CInternalSystem::getCLInterfaceInfoByCamera(const TSharedPtr<ICamera>&)
{
    setLastError(ERR_NOT_SUPPORTED, "Camera Link");
    return TSharedPtrCLInterfaceInfo();
}

TSharedPtrPCIeInterfaceInfo CInternalSystem::getPCIeInterfaceInfoByCamera(const TSharedPtr<ICamera>&)
{
    setLastError(ERR_NOT_SUPPORTED, "PCIe");
    return TSharedPtrPCIeInterfaceInfo();
}

TSharedPtrGenTLInterfaceInfo CInternalSystem::getGenTLInterfaceInfoByCamera(const TSharedPtr<ICamera>&)
{
    setLastError(ERR_NOT_SUPPORTED, "GenTL");
    return TSharedPtrGenTLInterfaceInfo();
}

CString CInternalSystem::getVersion() const
{
    char text[64];
    std::snprintf(text, sizeof(text), "Vorlen GenICam over Aravis %u.%u.%u", arv_get_major_version(),
                  arv_get_minor_version(), arv_get_micro_version());
    return text;
}

} // namespace GenICam
} // namespace Vorlen
