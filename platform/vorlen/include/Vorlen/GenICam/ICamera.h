#pragma once
// A camera handed out by discovery. CInternalCamera is the same object with
// the operations the application uses; the camera keeps its key across
// discoveries, so the same physical camera is always the same object.
#include "Vorlen/GenICam/Defs.h"
#include "Vorlen/Memory/TSharedPtr.h"

namespace Vorlen {
namespace GenICam {

class ICamera
{
public:
    virtual ~ICamera() = default;

    virtual CString getKey() const = 0;
    virtual CString getName() const = 0;
    virtual CString getSerialNumber() const = 0;
    virtual CString getVendorName() const = 0;
    virtual EInterfaceType getType() const = 0;
    virtual bool isConnected() const = 0;
};

class CInternalCamera : public ICamera
{
public:
    // Take control of the camera (GigE: control or exclusive privilege).
    virtual bool connect(ECameraAccessPermission permission = accessPermissionControl) = 0;
    virtual bool disConnect() = 0;

    virtual bool isDriverInstalled(bool& installed) const = 0;

    // GigE Vision link settings; false with ERR_NOT_SUPPORTED on other kinds.
    virtual bool setAnswerTimeout(unsigned short ms) = 0;
    virtual bool setHeartbeatIntervel(unsigned short ms) = 0;

    // GigE Vision FORCEIP: temporary address, also for a camera outside the
    // host's subnet. Texts are dotted quads.
    virtual bool forceIpAddress(const char* ip, const char* mask, const char* gateway) = 0;

    // Writes the camera's GenICam description to a file.
    virtual bool downLoadGenICamXML(const char* path) = 0;
    virtual CString getDefXMLFilename() const = 0;
};

using ICameraPtr = Memory::TSharedPtr<ICamera>;
using CInternalCameraPtr = Memory::TSharedPtr<CInternalCamera>;

} // namespace GenICam
} // namespace Vorlen
