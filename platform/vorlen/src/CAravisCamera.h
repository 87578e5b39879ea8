#pragma once
// The camera object behind ICamera/CInternalCamera, over an Aravis device.
// One object per physical camera for the life of the process: discovery
// updates it in place, so the key and every shared pointer stay valid.
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
#include <memory>
#include <mutex>
#include <string>
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
    // use under gcMutex() or while you know the camera stays connected.
    ArvCamera* arvCamera() const;
    ArvDevice* arvDevice() const;
    bool isGigE() const { return getType() == typeGigEVision; }
    // Serialises every access to the GenICam node map and register I/O of
    // this camera; Aravis' node map is not thread-safe.
    std::recursive_mutex& gcMutex() const { return m_gcMutex; }

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
    // Runs on the event thread after Aravis reported the camera lost during
    // the connection numbered generation.
    void handleLost(uint64_t generation);

private:
    void releaseConnection(bool cameraAlive);
    // True for a GigE Vision camera; otherwise false with ERR_NOT_SUPPORTED (what).
    bool requireGigE(const char* what) const;

    mutable std::recursive_mutex m_gcMutex;
    struct SPrivate;
    std::unique_ptr<SPrivate> p;
};

// The camera object behind a shared pointer, or nullptr for another kind.
CAravisCamera* toAravisCamera(const Memory::TSharedPtr<ICamera>& camera);

} // namespace GenICam
} // namespace Vorlen
