#pragma once
// The stream of one camera channel.
#include "Vorlen/GenICam/CFrame.h"
#include "Vorlen/GenICam/ICamera.h"

namespace Vorlen {
namespace GenICam {

class CInternalStreamSource
{
public:
    CInternalStreamSource(const Memory::TSharedPtr<ICamera>& camera, uint16_t channel = 0);
    ~CInternalStreamSource();

    // Settings taken before startGrabbing. GigE settings are mapped onto the
    // receiver's options; one without counterpart is logged and accepted.
    bool setBufferCount(unsigned int count);
    bool setInterPacketTimeout(unsigned int ms);
    bool setSingleResendMaxPacketNum(unsigned int count);
    bool setMaxLostPacketNum(unsigned int count);
    bool setUrbTransfer(unsigned int count, unsigned int size);  // USB3 Vision only
    bool setPacketSize(unsigned int bytes);                      // GigE only

    // maxImages 0: unlimited.
    bool startGrabbing(unsigned long maxImages = 0, EGrabStrategy strategy = grabStrategySequential);
    bool stopGrabbing();
    bool isGrabbing() const;

    // Waits up to timeoutMs for the next complete frame. On success the last
    // error is cleared, unless older frames were dropped because every buffer
    // was full (WARN_BUFFER_OVERRIDE). On timeout false is returned; the last
    // error is then empty, or the pending stream error
    // ("ERROR_STREAM_CHANNEL_ERROR") when the stream has failed.
    bool getFrame(CFrame& frame, unsigned int timeoutMs);

    uint64_t getLostFrameCount() const;
    bool getStatisticsInfo(StreamStatisticsInfo& info) const;
    bool resetStatisticsInfo();

    // Internal: per-frame status reports go to the camera's event manager.
    struct SImpl;

private:
    Memory::TSharedPtr<SImpl> d;
};

using CInternalStreamSourcePtr = Memory::TSharedPtr<CInternalStreamSource>;

} // namespace GenICam
} // namespace Vorlen
