#pragma once
// Discovery and the registry of known cameras (singletons).
//
// The library's threads (loss watchdogs, message channels, event delivery,
// releases of lost cameras) and the cameras it keeps live until
// CSystem::shutdownInstance() (or CInternalSystem::shutdownInstance(), the
// same thing). The application's lifetime owner calls it once, last, after
// every device is closed and before the application object goes: it closes
// the cameras still connected, joins every thread of the library and drops
// the event subscribers. It is idempotent. Afterwards getInstance() still
// works, but discovery, connecting and subscribing fail with
// ERR_INVALID_HANDLE ("the camera library is shut down") and no thread of
// the library starts again.
#include "Vorlen/GenICam/ICamera.h"
#include "Vorlen/GenICam/CInterfaceInfo.h"

namespace Vorlen {
namespace GenICam {

class CSystem
{
public:
    struct _DiscoveryModeInfo
    {
        char ipAddress[64] = {0};     // dotted quad probed by unicast
        unsigned int timeoutMs = 1000;
    };

    static CSystem& getInstance();
    // The end of the library (see above).
    static void shutdownInstance();

    // Broadcast discovery on every interface of the kind. Cameras found are
    // added to the registry; a camera seen before keeps its object.
    bool discovery(TVector<Memory::TSharedPtr<ICamera>>& cameras, EInterfaceType type = typeGigEVision);
    // Unicast: probes info.ipAddress only. Fails (ERR_TIMEOUT) when the
    // address does not answer.
    bool discoveryEx(TVector<Memory::TSharedPtr<ICamera>>& cameras, EDiscoveryMode mode, _DiscoveryModeInfo info);
    // All cameras seen by the last discovery of each interface kind plus the
    // unicast cameras still answering, in key order.
    bool getCameraPtrAll(TVector<Memory::TSharedPtr<ICamera>>& cameras);

private:
    CSystem() = default;
};

class CInternalSystem
{
public:
    static CInternalSystem& getInstance();
    // The same as CSystem::shutdownInstance().
    static void shutdownInstance();

    TSharedPtrGigEInterfaceInfo getGigEInterfaceInfoByCamera(const Memory::TSharedPtr<ICamera>& camera);
    TSharedPtrUsbInterfaceInfo getUsbInterfaceInfoByCamera(const Memory::TSharedPtr<ICamera>& camera);
    TSharedPtrCLInterfaceInfo getCLInterfaceInfoByCamera(const Memory::TSharedPtr<ICamera>& camera);
    TSharedPtrPCIeInterfaceInfo getPCIeInterfaceInfoByCamera(const Memory::TSharedPtr<ICamera>& camera);
    TSharedPtrGenTLInterfaceInfo getGenTLInterfaceInfoByCamera(const Memory::TSharedPtr<ICamera>& camera);

    CString getVersion() const;

private:
    CInternalSystem() = default;
};

} // namespace GenICam
} // namespace Vorlen
