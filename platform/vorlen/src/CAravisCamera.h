#pragma once
// The camera object behind ICamera/CInternalCamera, over an Aravis device.
// One object per physical camera for the life of the process: discovery
// updates it in place, so the key and every shared pointer stay valid.
//
// Loss: the loss watchdog (and Aravis' own control-lost signal) report a
// camera that stopped answering through markLost(), which takes no lock and
// never waits on the camera: it marks the connection lost, wakes every call
// waiting for the camera's lock, publishes the offline event on the
// camera's own event thread and leaves the release of the Aravis objects to
// a thread of its own. From then on every call into the camera fails at once
// with ERR_DEVICE_LOST ("Camera lost: <key> does not answer any more").
// GLib names a struct member "signals", which Qt defines as a keyword:
// keep Qt's macro out of the Aravis headers whatever was included first.
#ifdef signals
#pragma push_macro("signals")
#undef signals
#include <arv.h>
#pragma pop_macro("signals")
#else
#include <arv.h>
#endif
#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include "CCameraLock.h"
#include "Vorlen/GenICam/ICamera.h"

namespace Vorlen {
namespace GenICam {

class CNodeMap;

class CAravisCamera : public CInternalCamera
{
public:
    // What discovery learnt about the camera (no connection needed).
    struct SDiscoveryInfo
    {
        std::string key;              // stable identity, e.g. "<vendor>:<model>:<serial>"
        std::string arvId;            // id to open with arv_camera_new
        EInterfaceType type = typeGigEVision;
        std::string vendor, model, serial, userId, version, manufacturerInfo;
        // GigE
        std::string ipAddress, subnetMask, gateway, macAddress;
        uint32_t ipConfigOptions = 0, ipConfigCurrent = 0;
        uint16_t gvcpVersionMajor = 0, gvcpVersionMinor = 0;
        std::string hostInterfaceName, hostIp, hostMask, hostGateway, hostMac;
        // USB3
        std::string usbGuid, usbSpeed;
        uint16_t usbVendorId = 0, usbProductId = 0;
    };

    explicit CAravisCamera(const SDiscoveryInfo& info);
    ~CAravisCamera() override;

    // ICamera / CInternalCamera
    CString getKey() const override;
    CString getName() const override;
    CString getSerialNumber() const override;
    CString getVendorName() const override;
    EInterfaceType getType() const override;
    bool isConnected() const override;
    bool connect(ECameraAccessPermission permission) override;
    bool disConnect() override;
    bool isDriverInstalled(bool& installed) const override;
    bool setAnswerTimeout(unsigned short ms) override;
    bool setHeartbeatIntervel(unsigned short ms) override;
    bool forceIpAddress(const char* ip, const char* mask, const char* gateway) override;
    bool downLoadGenICamXML(const char* path) override;
    CString getDefXMLFilename() const override;

    // Internal to the library.
    SDiscoveryInfo discoveryInfo() const;
    void updateDiscoveryInfo(const SDiscoveryInfo& info);
    // Valid while connected, otherwise nullptr. No reference is transferred:
    // use under the camera's lock.
    ArvCamera* arvCamera() const;
    ArvDevice* arvDevice() const;
    bool isGigE() const { return getType() == typeGigEVision; }
    // Serialises every access to the GenICam node map and register I/O of
    // this camera; Aravis' node map is not thread-safe.
    CCameraLock& cameraLock() const { return m_lock; }
    std::recursive_mutex& gcMutex() const { return m_lock.mutex(); }
    // Takes the camera's lock into lock, unless the connection is lost
    // (before or while waiting): then false with the loss as the last error.
    bool lockAccess(std::unique_lock<CCameraLock>& lock) const;
    // The current connection was found lost (until the next connect).
    bool isLost() const;
    // Sets the camera's loss as the last error; false.
    bool failLost() const;
    // A loss notice for the connection numbered generation. Any thread;
    // takes no lock of the camera and never waits on it; reports once.
    void markLost(uint64_t generation);
    // Number of the current (or last) connection.
    uint64_t generation() const;
    // A loss hit the connection and it was not closed since: a subscriber
    // to connection events that comes now is told at once.
    bool lossUnclosed() const;

    // Makes a camera that knows its own shared pointer (the registry makes
    // every camera this way; camera-loss handling relies on it).
    static Memory::TSharedPtr<CAravisCamera> create(const SDiscoveryInfo& info);
    // Answer timeout of the library's own GVCP exchanges with the camera.
    unsigned int answerTimeoutMs() const;
    // Dependencies, selectors and events of the connected camera's
    // description; null when not connected. Call under gcMutex().
    std::shared_ptr<CNodeMap> nodeMap();
    // Message channel: opened while connected and somebody subscribed.
    bool openMessageChannel();
    void closeMessageChannel();
    uint16_t messageChannelPort() const;
    // Privilege this process holds on the camera (Open when not connected).
    ECameraAccessPermission heldPermission() const;

private:
    // Opens the camera, giving up when it is found lost; under the lock.
    bool open(const SDiscoveryInfo& info, ECameraAccessPermission permission, uint64_t generation);
    // Lets go of the connection numbered generation after its loss (on a
    // thread of its own: it waits for the call that holds the lock).
    void releaseLost(uint64_t generation);
    // Under the lock. A camera that is not alive is released on a thread of
    // its own.
    void releaseConnection(bool cameraAlive);
    // True for a GigE Vision camera; otherwise false with ERR_NOT_SUPPORTED (what).
    bool requireGigE(const char* what) const;

    struct SPrivate;
    std::unique_ptr<SPrivate> p;
    mutable CCameraLock m_lock{[this] { return isLost(); }};
};

// The camera object behind a shared pointer, or nullptr for another kind.
CAravisCamera* toAravisCamera(const Memory::TSharedPtr<ICamera>& camera);

} // namespace GenICam
} // namespace Vorlen
