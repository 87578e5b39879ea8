#pragma once
// The USB port of a USB3 Vision camera, as far as the kernel tells.
#include "UsbInfo.h"
#include "Vorlen/GenICam/CInterfaceInfo.h"

namespace Vorlen {
namespace GenICam {

class CUsbHostInterfaceInfo : public CUsbInterfaceInfo
{
public:
    CUsbHostInterfaceInfo(const std::string& description, const SUsbSysfsInfo& usb)
        : m_description(description), m_usb(usb)
    {
    }
    CString getDescription() const override { return m_description; }
    CString getVendorId() const override { return m_usb.vendorId; }
    CString getDeviceId() const override { return m_usb.productId; }
    CString getSubsystemId() const override { return CString(); }
    CString getsubRevision() const override { return m_usb.revision; }
    CString getSpeed() const override { return usbSpeedName(m_usb.speedMbps); }

private:
    std::string m_description;
    SUsbSysfsInfo m_usb;
};

} // namespace GenICam
} // namespace Vorlen
