#pragma once
// The host-side interface through which a camera is reached.
#include "Vorlen/GenICam/Defs.h"
#include "Vorlen/Memory/TSharedPtr.h"

namespace Vorlen {
namespace GenICam {

class CInterfaceInfo
{
public:
    virtual ~CInterfaceInfo() = default;
    virtual CString getDescription() const = 0;
};

// Network card a GigE camera was found on.
class CGigEInterfaceInfo : public CInterfaceInfo
{
public:
    virtual CString getIpAddress() const = 0;
    virtual CString getSubnetMask() const = 0;
    virtual CString getGateway() const = 0;
    virtual CString getMacAddress() const = 0;
};

// USB controller of a USB3 Vision camera.
class CUsbInterfaceInfo : public CInterfaceInfo
{
public:
    virtual CString getVendorId() const = 0;
    virtual CString getDeviceId() const = 0;
    virtual CString getSubsystemId() const = 0;
    virtual CString getsubRevision() const = 0;
    virtual CString getSpeed() const = 0;
};

class CCLInterfaceInfo : public CInterfaceInfo
{
public:
    virtual CString getPortId() const = 0;
    virtual CString getVendorName() const = 0;
};

class CPCIeInterfaceInfo : public CInterfaceInfo
{
};

class CGenTLInterfaceInfo : public CInterfaceInfo
{
public:
    virtual CString getInterfaceID() const = 0;
    virtual CString getVendorName() const = 0;
};

using TSharedPtrGigEInterfaceInfo = Memory::TSharedPtr<CGigEInterfaceInfo>;
using TSharedPtrUsbInterfaceInfo = Memory::TSharedPtr<CUsbInterfaceInfo>;
using TSharedPtrCLInterfaceInfo = Memory::TSharedPtr<CCLInterfaceInfo>;
using TSharedPtrPCIeInterfaceInfo = Memory::TSharedPtr<CPCIeInterfaceInfo>;
using TSharedPtrGenTLInterfaceInfo = Memory::TSharedPtr<CGenTLInterfaceInfo>;

} // namespace GenICam
} // namespace Vorlen
