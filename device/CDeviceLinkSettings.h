#pragma once
// The configuration's link and stream settings as a device applies them:
// copied from the configuration on the GUI thread (a worker never reads it),
// applied to the camera and its stream source on the device's worker. One
// table gives each setting its target and the message its failure logs; the
// connection, the opening of the stream and the configuration's change
// signals all apply through it.
#include <cstdint>

#include "Vorlen/GenICam.h"

class CDeviceLinkSettings
{
public:
    // The settings a change signal of the configuration can bring.
    enum EKey
    {
        keyAnswerTimeout,           // camera, GigE
        keyHeartbeatInterval,       // camera, GigE
        keyInterPacketTimeout,      // stream source, GigE
        keySingleResendMaxPackNum,  // stream source, GigE
        keyMaximumLostPacketNum,    // stream source, GigE
        keyCount
    };

    // GUI thread: the configuration's values (the defaults without one).
    static CDeviceLinkSettings fromConfiguration();

    // The setting goes to the stream source rather than to the camera.
    static bool isStreamSetting(EKey key);
    // Applies one value to its target (a missing target is skipped); a
    // refusal logs the setting's message. False when not applied.
    static bool apply(EKey key, uint32_t value, const Vorlen::GenICam::CInternalCameraPtr& camera,
                      const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource>& stream);

    // After a GigE connection: answer timeout and heartbeat.
    void applyToCamera(const Vorlen::GenICam::CInternalCameraPtr& camera) const;
    // Before grabbing: the buffer count, then the GigE transfer settings or
    // the USB transfer requests. Each refusal is logged; none stops it.
    void applyToStream(const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource>& stream,
                       Vorlen::GenICam::EInterfaceType type) const;

    uint32_t value(EKey key) const { return m_values[key]; }

private:
    uint32_t m_values[keyCount] = {1000, 1500, 0, 65536, 65536};
    uint32_t m_bufferCount = 8;
    uint32_t m_urbNumber = 64;
    uint32_t m_urbSize = 64;
};
