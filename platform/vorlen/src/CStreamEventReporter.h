#pragma once
// Stream events of one channel: skipped block ids, blocks closed incomplete
// or in error, blocks short of their image, the failure of the channel, and
// normal frames (at most ten a second). Each problem is also noted in the
// loss of the getFrame call that met it. Nothing is built when nobody
// subscribed to the camera's stream events.
#include <arv.h>

#include <cstdint>

#include "CFrameLoss.h"
#include "FrameData.h"
#include "Vorlen/GenICam/ICamera.h"

namespace Vorlen {
namespace GenICam {

class CStreamEventReporter
{
public:
    CStreamEventReporter(const ICameraPtr& camera, uint16_t channel) : m_camera(camera), m_channel(channel) {}

    // A block id arrived; reports the ids skipped before it.
    void blockArrived(GrabSession& s, uint64_t blockId, uint64_t timestamp, CFrameLoss& loss) const;
    // A block closed with a status other than success.
    void blockFailed(GrabSession& s, ArvBuffer* buffer, uint64_t blockId, CFrameLoss& loss) const;
    // A block closed complete but short of its image.
    void blockShort(const CFrame::SData& data, CFrameLoss& loss) const;
    // A complete frame went to the application at nowNs.
    void frameDelivered(GrabSession& s, uint64_t blockId, uint64_t timestamp, int64_t nowNs) const;
    // The camera stopped answering; reported once per failure.
    void channelFailed(GrabSession& s) const;

    static const char* statusText(ArvBufferStatus status);
    static EStreamEventStatus eventStatusOf(ArvBufferStatus status);

private:
    bool wanted() const;
    void publish(uint64_t blockId, uint64_t timestamp, EStreamEventStatus status, uint32_t raw,
                 const char* description) const;

    ICameraPtr m_camera;
    uint16_t m_channel;
};

} // namespace GenICam
} // namespace Vorlen
