#pragma once
// Settings a stream takes before grabbing starts, and how the GigE ones map
// onto Aravis' receiver.
#include <arv.h>

namespace Vorlen {
namespace GenICam {

class CStreamSettings
{
public:
    static constexpr unsigned int kDefaultBufferCount = 8;

    unsigned int bufferCount = kDefaultBufferCount;
    bool interPacketTimeoutSet = false;
    unsigned int interPacketTimeoutMs = 0;
    bool resendSet = false;
    unsigned int singleResendMax = 0;
    bool maxLostSet = false;
    unsigned int maxLostPackets = 0;
    unsigned int packetSize = 0;   // 0: the camera's, or a large one on loopback

    // Applies the receiver options to a GigE Vision stream whose blocks
    // have payload bytes in packets of packetBytes; other streams are left
    // alone.
    void apply(ArvStream* stream, unsigned int payload, unsigned int packetBytes) const;
};

} // namespace GenICam
} // namespace Vorlen
