#pragma once
// Information about a camera, one class per interface kind, each built from
// the camera. For a GigE camera the information comes from discovery and from
// GVCP reads that do not need control of the camera.
#include "Vorlen/GenICam/ICamera.h"

namespace Vorlen {
namespace GenICam {

class CInternalCameraInfo
{
public:
    explicit CInternalCameraInfo(const Memory::TSharedPtr<ICamera>& camera);
    virtual ~CInternalCameraInfo();

    bool isValid() const;
    CString getModelName() const;
    CString getSerialNum() const;
    CString getVenderName() const;
    CString getManufactureInfo() const;
    CString getVersion() const;

protected:
    Memory::TSharedPtr<ICamera> m_camera;
};

class CInternalGigECameraInfo : public CInternalCameraInfo
{
public:
    explicit CInternalGigECameraInfo(const Memory::TSharedPtr<ICamera>& camera);

    CString getIpAddress() const;
    CString getSubnetMask() const;
    CString getGateway() const;
    CString getMacAddress() const;
    // "DHCP", "Persistent IP", "LLA" joined by ", ": the configurations the
    // camera has enabled.
    CString getIpconfig() const;
    CString getProtocolVersion() const;   // "2.0"
    // Reads the control channel privilege register (works without control).
    bool getAccessPermission(ECameraAccessPermission& permission) const;
};

class CInternalUsbCameraInfo : public CInternalCameraInfo
{
public:
    explicit CInternalUsbCameraInfo(const Memory::TSharedPtr<ICamera>& camera);

    CString getDeviceGuid() const;
    bool getDriverValid() const;
    CString getMaxPower() const;
    CString getSpeedType() const;
    CString getSpeedSupportType() const;
};

class CInternalCLCameraInfo : public CInternalCameraInfo
{
public:
    explicit CInternalCLCameraInfo(const Memory::TSharedPtr<ICamera>& camera);
};

class CInternalPCIeCameraInfo : public CInternalCameraInfo
{
public:
    explicit CInternalPCIeCameraInfo(const Memory::TSharedPtr<ICamera>& camera);
};

class CInternalGenTLCameraInfo : public CInternalCameraInfo
{
public:
    explicit CInternalGenTLCameraInfo(const Memory::TSharedPtr<ICamera>& camera);

    bool getAccessStatus(int& status) const;
    CString getDeviceID() const;
    CString getTLType() const;
};

} // namespace GenICam
} // namespace Vorlen
