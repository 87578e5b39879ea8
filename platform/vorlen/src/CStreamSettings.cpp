#include "CStreamSettings.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "CStreamStartSequence.h"

namespace Vorlen {
namespace GenICam {

void CStreamSettings::apply(ArvStream* stream, unsigned int payload, unsigned int packetBytes) const
{
    if (!ARV_IS_GV_STREAM(stream))
        return;
    if (interPacketTimeoutSet && interPacketTimeoutMs > 0) {
        // How long a block waits for its next packet before it is closed
        // incomplete. 0 keeps Aravis' own wait.
        const guint us = guint(std::min<uint64_t>(uint64_t(interPacketTimeoutMs) * 1000u, G_MAXUINT));
        g_object_set(stream, "frame-retention", us, nullptr);
    }
    if (resendSet && singleResendMax == 0)
        g_object_set(stream, "packet-resend", ARV_GV_STREAM_PACKET_RESEND_NEVER, nullptr);
    if (maxLostSet && payload > 0) {
        // Resend requests of one block, as a share of its packets.
        const unsigned int overhead = CStreamStartSequence::kPacketOverhead;
        const unsigned int dataBytes = packetBytes > overhead ? packetBytes - overhead : packetBytes;
        const double packets = std::ceil(double(payload) / double(std::max(1u, dataBytes)));
        const double ratio = std::min(1.0, std::max(0.0, double(maxLostPackets) / std::max(1.0, packets)));
        g_object_set(stream, "packet-request-ratio", ratio, nullptr);
    }
}

} // namespace GenICam
} // namespace Vorlen
