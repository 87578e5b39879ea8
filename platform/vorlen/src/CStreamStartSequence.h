#pragma once
// The camera's side of startGrabbing, run under the camera's lock: select
// the channel, settle the packet size, read the payload size and the
// geometry, prepare chunk decoding, create the stream with its buffers, and
// start acquisition. On success the grab session owns the stream. A camera
// lost on the way ends the sequence after the round trip under way, with
// the loss as its error.
#include <memory>

#include "CStreamSettings.h"
#include "FrameData.h"

namespace Vorlen {
namespace GenICam {

class CAravisCamera;
class StreamStatisticsCounter;

class CStreamStartSequence
{
public:
    // GVSP overhead per data packet (IP + UDP + GVSP headers).
    static constexpr unsigned int kPacketOverhead = 20 + 8 + 8;

    CStreamStartSequence(CAravisCamera& camera, uint16_t channel, const CStreamSettings& settings,
                         const std::shared_ptr<StreamStatisticsCounter>& stats, StreamCore& core)
        : m_camera(camera), m_channel(channel), m_settings(settings), m_stats(stats), m_core(core)
    {
    }

    // False with the last error set; the session then frees what it got.
    bool run(GrabSession& session);
    unsigned int payload() const { return m_payload; }

private:
    // False with the loss as the last error once the camera is lost.
    bool alive() const;
    bool configure(ArvCamera* camera, GrabSession& session);
    bool settlePacketSize(ArvCamera* camera);
    bool readGeometry(ArvCamera* camera, GrabSession& session);
    bool createStream(ArvCamera* camera, GrabSession& session);
    bool startAcquisition(ArvCamera* camera, GrabSession& session);

    CAravisCamera& m_camera;
    uint16_t m_channel;
    const CStreamSettings& m_settings;
    std::shared_ptr<StreamStatisticsCounter> m_stats;
    StreamCore& m_core;
    unsigned int m_payload = 0;
    unsigned int m_packetBytes = 0;
};

} // namespace GenICam
} // namespace Vorlen
