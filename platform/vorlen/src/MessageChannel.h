#pragma once
// Receiver of a GigE Vision camera's message channel: a UDP socket on the
// host whose address and port are written to the camera's message-channel
// registers. Every EVENT_CMD / EVENTDATA_CMD is acknowledged when asked and
// each event in it is published as SMsgChannelArg.
#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "CUdpSocket.h"
#include "Vorlen/GenICam/ICamera.h"

namespace Vorlen {
namespace GenICam {

class CNodeMap;

class CMessageChannel
{
public:
    CMessageChannel(const ICamera* owner, const std::string& key, const std::shared_ptr<CNodeMap>& nodeMap);
    ~CMessageChannel();
    CMessageChannel(const CMessageChannel&) = delete;
    CMessageChannel& operator=(const CMessageChannel&) = delete;

    // Binds a socket to hostIp (host byte order; 0: any) and starts the
    // receiver. False when the socket cannot be made.
    bool open(uint32_t hostIp);
    void close();
    uint16_t port() const { return m_port; }

    // One parsed packet: the events it carries and how to acknowledge it.
    struct SPacket
    {
        bool ackRequired = false;
        uint16_t requestId = 0;
        uint16_t ackCode = 0;
        std::vector<SMsgChannelArg> events;
    };
    static bool parse(const uint8_t* data, size_t size, SPacket& packet);
    // Name of a GigE Vision standard event, or "" for a device-specific one.
    static const char* standardEventName(uint16_t eventId);

private:
    void run();
    void handle(const uint8_t* data, size_t size, uint32_t fromIp, uint16_t fromPort);

    const ICamera* m_owner;
    std::string m_key;
    std::shared_ptr<CNodeMap> m_nodeMap;
    std::unique_ptr<CUdpSocket> m_socket;
    uint16_t m_port = 0;
    std::atomic<bool> m_running{false};
    std::thread m_thread;
};

} // namespace GenICam
} // namespace Vorlen
