#pragma once
// The camera object behind ICamera/CInternalCamera, over an Aravis device.
// One object per physical camera for the life of the process: discovery
// updates it in place, so the key and every shared pointer stay valid.
#include <arv.h>
#include <mutex>
#include <string>
#include "Vorlen/GenICam/ICamera.h"

namespace Vorlen {
namespace GenICam {

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

private:
    mutable std::recursive_mutex m_gcMutex;
    struct SPrivate;
    SPrivate* p;
};

// The camera object behind a shared pointer, or nullptr for another kind.
CAravisCamera* toAravisCamera(const Memory::TSharedPtr<ICamera>& camera);

} // namespace GenICam
} // namespace Vorlen
