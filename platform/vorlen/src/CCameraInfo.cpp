// Camera information from discovery and from GVCP reads that need no control.
#include "Vorlen/GenICam/CCameraInfo.h"

#include <cstdio>

#include "CAravisCamera.h"
#include "Gvcp.h"
#include "UsbInfo.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

using Info = CAravisCamera::SDiscoveryInfo;

namespace {

constexpr uint32_t kIpConfigPersistent = 0x1;
constexpr uint32_t kIpConfigDhcp = 0x2;
constexpr uint32_t kIpConfigLla = 0x4;

bool info(const Memory::TSharedPtr<ICamera>& camera, CAravisCamera::SDiscoveryInfo& out)
{
    CAravisCamera* c = toAravisCamera(camera);
    if (!c) {
        setLastError(ERR_INVALID_HANDLE, "camera");
        return false;
    }
    out = c->discoveryInfo();
    clearLastError();
    return true;
}

// One text of what discovery learnt; empty (and the last error set) for a
// camera that is not ours.
CString field(const Memory::TSharedPtr<ICamera>& camera, std::string CAravisCamera::SDiscoveryInfo::*member)
{
    CAravisCamera::SDiscoveryInfo i;
    return info(camera, i) ? CString(i.*member) : CString();
}

} // namespace

CInternalCameraInfo::CInternalCameraInfo(const Memory::TSharedPtr<ICamera>& camera) : m_camera(camera)
{
}

CInternalCameraInfo::~CInternalCameraInfo() = default;

bool CInternalCameraInfo::isValid() const
{
    return toAravisCamera(m_camera) != nullptr;
}

CString CInternalCameraInfo::getModelName() const { return field(m_camera, &Info::model); }
CString CInternalCameraInfo::getSerialNum() const { return field(m_camera, &Info::serial); }
CString CInternalCameraInfo::getVenderName() const { return field(m_camera, &Info::vendor); }
CString CInternalCameraInfo::getManufactureInfo() const { return field(m_camera, &Info::manufacturerInfo); }
CString CInternalCameraInfo::getVersion() const { return field(m_camera, &Info::version); }

CInternalGigECameraInfo::CInternalGigECameraInfo(const Memory::TSharedPtr<ICamera>& camera)
    : CInternalCameraInfo(camera)
{
}

CString CInternalGigECameraInfo::getIpAddress() const { return field(m_camera, &Info::ipAddress); }
CString CInternalGigECameraInfo::getSubnetMask() const { return field(m_camera, &Info::subnetMask); }
CString CInternalGigECameraInfo::getGateway() const { return field(m_camera, &Info::gateway); }
CString CInternalGigECameraInfo::getMacAddress() const { return field(m_camera, &Info::macAddress); }
CString CInternalGigECameraInfo::getIpconfig() const
{
    CAravisCamera::SDiscoveryInfo i;
    if (!info(m_camera, i))
        return CString();
    // A camera outside the subnet of the interface it answered on cannot be
    // reached until it gets another address.
    uint32_t ip = 0, hostIp = 0, hostMask = 0;
    if (Gvcp::parseIp(i.ipAddress.c_str(), ip) && Gvcp::parseIp(i.hostIp.c_str(), hostIp) &&
        Gvcp::parseIp(i.hostMask.c_str(), hostMask) && hostMask != 0 && (ip & hostMask) != (hostIp & hostMask))
        return "Invalid On This Interface";
    std::string text;
    auto add = [&text](const char* s) {
        if (!text.empty())
            text += ", ";
        text += s;
    };
    if (i.ipConfigCurrent & kIpConfigDhcp)
        add("DHCP");
    if (i.ipConfigCurrent & kIpConfigPersistent)
        add("Persistent IP");
    if (i.ipConfigCurrent & kIpConfigLla)
        add("LLA");
    return text;
}

CString CInternalGigECameraInfo::getProtocolVersion() const
{
    CAravisCamera::SDiscoveryInfo i;
    if (!info(m_camera, i))
        return CString();
    char text[16];
    std::snprintf(text, sizeof(text), "%d.%d", int(i.gvcpVersionMajor), int(i.gvcpVersionMinor));
    return text;
}

bool CInternalGigECameraInfo::getAccessPermission(ECameraAccessPermission& permission) const
{
    CAravisCamera* c = toAravisCamera(m_camera);
    if (!c || !c->isGigE()) {
        setLastError(c ? ERR_NOT_SUPPORTED : ERR_INVALID_HANDLE, "access permission");
        return false;
    }
    if (c->lossUnclosed())
        return c->failLost();   // no round trip to a camera known to be gone
    if (c->isConnected()) {
        permission = c->heldPermission();
        clearLastError();
        return true;
    }
    const CAravisCamera::SDiscoveryInfo i = c->discoveryInfo();
    uint32_t ip = 0;
    if (!Gvcp::parseIp(i.ipAddress.c_str(), ip)) {
        setLastError(ERR_INVALID_PARAMETER, "camera address");
        return false;
    }
    uint32_t ccp = 0;
    const int err = Gvcp::readRegister(ip, Gvcp::REG_CCP, ccp, c->answerTimeoutMs());
    if (err != ERR_OK) {
        setLastError(err, i.ipAddress.c_str());
        return false;
    }
    // CCP: bit 31 exclusive, bit 30 control, bit 29 switchover enabled.
    if (ccp & 0x1)
        permission = accessPermissionExclusive;
    else if (ccp & 0x2)
        permission = (ccp & 0x4) ? accessPermissionControlWithSwitchover : accessPermissionControl;
    else
        permission = accessPermissionOpen;
    clearLastError();
    return true;
}

CInternalUsbCameraInfo::CInternalUsbCameraInfo(const Memory::TSharedPtr<ICamera>& camera)
    : CInternalCameraInfo(camera)
{
}

CString CInternalUsbCameraInfo::getDeviceGuid() const { return field(m_camera, &Info::usbGuid); }

bool CInternalUsbCameraInfo::getDriverValid() const
{
    // Aravis reaches USB3 Vision cameras through libusb; no driver to check.
    return isValid();
}

CString CInternalUsbCameraInfo::getMaxPower() const
{
    CAravisCamera::SDiscoveryInfo i;
    SUsbSysfsInfo usb;
    if (!info(m_camera, i) || !usbSysfsInfo(i.serial, usb))
        return CString();
    return usb.maxPower;
}

CString CInternalUsbCameraInfo::getSpeedType() const
{
    CAravisCamera::SDiscoveryInfo i;
    SUsbSysfsInfo usb;
    if (!info(m_camera, i))
        return CString();
    if (usbSysfsInfo(i.serial, usb))
        return usbSpeedName(usb.speedMbps);
    return i.usbSpeed;
}

CString CInternalUsbCameraInfo::getSpeedSupportType() const
{
    // USB3 Vision devices are SuperSpeed devices.
    return isValid() ? CString("Super") : CString();
}

CInternalCLCameraInfo::CInternalCLCameraInfo(const Memory::TSharedPtr<ICamera>& camera)
    : CInternalCameraInfo(camera)
{
}

CInternalPCIeCameraInfo::CInternalPCIeCameraInfo(const Memory::TSharedPtr<ICamera>& camera)
    : CInternalCameraInfo(camera)
{
}

CInternalGenTLCameraInfo::CInternalGenTLCameraInfo(const Memory::TSharedPtr<ICamera>& camera)
    : CInternalCameraInfo(camera)
{
}

bool CInternalGenTLCameraInfo::getAccessStatus(int& status) const
{
    status = 0;
    setLastError(ERR_NOT_SUPPORTED, "GenTL");
    return false;
}

CString CInternalGenTLCameraInfo::getDeviceID() const
{
    return CString();
}

CString CInternalGenTLCameraInfo::getTLType() const
{
    return CString();
}

} // namespace GenICam
} // namespace Vorlen
