#include "CStreamEventReporter.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>

#include "EventHub.h"
#include "Tavlog4cpp/TavLogMacros.h"

namespace Vorlen {
namespace GenICam {

namespace {

bool isIncomplete(ArvBufferStatus status)
{
    return status == ARV_BUFFER_STATUS_MISSING_PACKETS || status == ARV_BUFFER_STATUS_TIMEOUT;
}

} // namespace

const char* CStreamEventReporter::statusText(ArvBufferStatus status)
{
    switch (status) {
    case ARV_BUFFER_STATUS_SUCCESS: return "complete";
    case ARV_BUFFER_STATUS_CLEARED: return "buffer cleared";
    case ARV_BUFFER_STATUS_TIMEOUT: return "block incomplete: packets still missing when the wait ran out";
    case ARV_BUFFER_STATUS_MISSING_PACKETS: return "block incomplete: packets missing";
    case ARV_BUFFER_STATUS_WRONG_PACKET_ID: return "packet with a wrong id";
    case ARV_BUFFER_STATUS_SIZE_MISMATCH: return "block larger than the buffer";
    case ARV_BUFFER_STATUS_FILLING: return "block still filling";
    case ARV_BUFFER_STATUS_ABORTED: return "block aborted";
    default: return "unknown status";
    }
}

EStreamEventStatus CStreamEventReporter::eventStatusOf(ArvBufferStatus status)
{
    switch (status) {
    case ARV_BUFFER_STATUS_SUCCESS: return streamEventNormal;
    case ARV_BUFFER_STATUS_MISSING_PACKETS: return streamEventLostPacket;
    case ARV_BUFFER_STATUS_TIMEOUT: return streamEventTooManyLostPacket;
    case ARV_BUFFER_STATUS_ABORTED: return streamEventStreamChannelError;
    default: return streamEventImageError;
    }
}

bool CStreamEventReporter::wanted() const
{
    return m_camera && EventHub::hasStreamSubscribers(m_camera.get());
}

void CStreamEventReporter::publish(uint64_t blockId, uint64_t timestamp, EStreamEventStatus status, uint32_t raw,
                                   const char* description) const
{
    if (!wanted())
        return;
    SStreamArg arg;
    arg.channel = m_channel;
    arg.blockId = blockId;
    arg.timeStamp = timestamp;
    arg.eStreamEventStatus = status;
    arg.status = raw;
    arg.description = description;
    EventHub::publishStream(m_camera.get(), arg);
}

void CStreamEventReporter::blockArrived(GrabSession& s, uint64_t blockId, uint64_t timestamp, CFrameLoss& loss) const
{
    if (blockId == 0)
        return;
    const bool first = s.lastBlockId == 0;
    const uint64_t previous = s.lastBlockId;
    if (blockId > previous)
        s.lastBlockId = blockId;
    if (first || blockId <= previous + 1)
        return;
    const uint64_t missing = blockId - previous - 1;
    char text[96];
    std::snprintf(text, sizeof(text), "%" PRIu64 " block(s) missing before block %" PRIu64, missing, blockId);
    loss.blocksMissing(missing, text);
    publish(previous + 1, timestamp, streamEventLostFrame, 0, text);
}

void CStreamEventReporter::blockFailed(GrabSession& s, ArvBuffer* buffer, uint64_t blockId, CFrameLoss& loss) const
{
    const ArvBufferStatus status = arv_buffer_get_status(buffer);
    EStreamEventStatus eventStatus = eventStatusOf(status);
    const char* description = statusText(status);
    if (isIncomplete(status)) {
        // The resend budget of a block was used up: report it as such.
        const guint64 reached = arv_stream_get_info_uint64_by_name(s.stream, "n_resend_ratio_reached");
        if (reached > s.lastResendRatioReached) {
            eventStatus = streamEventTooManyConsecutiveResends;
            description = "block incomplete: resend request limit reached";
        }
        s.lastResendRatioReached = reached;
    }
    char text[160];
    if (isIncomplete(status) && s.marks.enabled())
        std::snprintf(text, sizeof(text), "block %" PRIu64 " incomplete, %" PRIu64 " packet(s) missing", blockId,
                      s.missingPackets(buffer));
    else
        std::snprintf(text, sizeof(text), "block %" PRIu64 ": %s", blockId, statusText(status));
    loss.blockFailed(text);
    publish(blockId, arv_buffer_get_timestamp(buffer), eventStatus, uint32_t(int32_t(status)), description);
}

void CStreamEventReporter::blockShort(const CFrame::SData& data, CFrameLoss& loss) const
{
    char text[160];
    std::snprintf(text, sizeof(text), "block %" PRIu64 " incomplete, %" PRIu64 " of %" PRIu64 " image bytes arrived",
                  data.blockId, data.imageSize, data.minimumImageBytes());
    loss.blockFailed(text);
    publish(data.blockId, data.timestamp, streamEventLostPacket, uint32_t(int32_t(ARV_BUFFER_STATUS_MISSING_PACKETS)),
            text);
}

void CStreamEventReporter::frameDelivered(GrabSession& s, uint64_t blockId, uint64_t timestamp, int64_t nowNs) const
{
    if (wanted() && s.normalEvents.pass(nowNs))
        publish(blockId, timestamp, streamEventNormal, uint32_t(ARV_BUFFER_STATUS_SUCCESS),
                statusText(ARV_BUFFER_STATUS_SUCCESS));
}

void CStreamEventReporter::channelFailed(GrabSession& s) const
{
    if (s.channelErrorReported)
        return;
    s.channelErrorReported = true;
    publish(s.lastBlockId, 0, streamEventStreamChannelError, 0,
            "stream channel error: the camera does not answer any more");
    LOG_ERROR("stream channel %u: the camera does not answer any more", unsigned(m_channel));
}

} // namespace GenICam
} // namespace Vorlen
