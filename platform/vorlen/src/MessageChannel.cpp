#include "MessageChannel.h"

#include <cstdio>

#include "EventHub.h"
#include "Gvcp.h"
#include "NodeMap.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "ThreadName.h"

namespace Vorlen {
namespace GenICam {

namespace {
constexpr uint8_t kFlagExtendedId = 0x10;
}

CMessageChannel::CMessageChannel(const ICamera* owner, const std::string& key,
                                 const std::shared_ptr<CNodeMap>& nodeMap)
    : m_owner(owner), m_key(key), m_nodeMap(nodeMap)
{
}

CMessageChannel::~CMessageChannel()
{
    close();
}

bool CMessageChannel::open(uint32_t hostIp)
{
    close();
    auto socket = std::make_unique<CUdpSocket>(hostIp);
    m_port = socket->valid() ? socket->port() : 0;
    if (m_port == 0)
        return false;
    m_socket = std::move(socket);
    m_running = true;
    m_thread = std::thread(&CMessageChannel::run, this);
    return true;
}

void CMessageChannel::close()
{
    m_running = false;
    if (m_socket)
        m_socket->interrupt();
    if (m_thread.joinable())
        m_thread.join();
    m_socket.reset();
    m_port = 0;
}

void CMessageChannel::run()
{
    nameThisThread("vorlen-messages");
    uint8_t buffer[9000];
    while (m_running) {
        uint32_t fromIp = 0;
        uint16_t fromPort = 0;
        const int n = m_socket->receive(buffer, sizeof(buffer), -1, &fromIp, &fromPort);
        if (n > 0)
            handle(buffer, size_t(n), fromIp, fromPort);
    }
}

bool CMessageChannel::parse(const uint8_t* data, size_t size, SPacket& packet)
{
    packet = SPacket();
    if (!data || size < 8 || data[0] != Gvcp::kKey)
        return false;
    const uint8_t flags = data[1];
    const uint16_t command = Gvcp::get16(data + 2);
    if (command != Gvcp::EVENT_CMD && command != Gvcp::EVENTDATA_CMD)
        return false;
    packet.ackRequired = (flags & Gvcp::kFlagAckRequired) != 0;
    packet.requestId = Gvcp::get16(data + 6);
    packet.ackCode = command == Gvcp::EVENT_CMD ? Gvcp::EVENT_ACK : Gvcp::EVENTDATA_ACK;
    const bool extended = (flags & kFlagExtendedId) != 0;
    const size_t headerSize = extended ? 24 : 16;
    size_t length = Gvcp::get16(data + 4);
    if (length > size - 8)
        length = size - 8;
    const uint8_t* p = data + 8;
    const uint8_t* end = p + length;
    while (size_t(end - p) >= headerSize) {
        SMsgChannelArg ev;
        ev.eventID = Gvcp::get16(p + 2);
        ev.channelID = Gvcp::get16(p + 4);
        size_t itemSize = headerSize;
        if (extended) {
            ev.blockID = (uint64_t(Gvcp::get32(p + 8)) << 32) | Gvcp::get32(p + 12);
            ev.timeStamp = (uint64_t(Gvcp::get32(p + 16)) << 32) | Gvcp::get32(p + 20);
        } else {
            ev.blockID = Gvcp::get16(p + 6);
            ev.timeStamp = (uint64_t(Gvcp::get32(p + 8)) << 32) | Gvcp::get32(p + 12);
        }
        // GigE Vision 2 puts the size of each event in its first field; 1.x
        // leaves it reserved (0).
        const size_t declared = Gvcp::get16(p);
        if (declared >= headerSize && declared <= size_t(end - p))
            itemSize = declared;
        packet.events.push_back(ev);
        if (command == Gvcp::EVENTDATA_CMD)
            break;   // one event, the rest is its data
        p += itemSize;
    }
    return true;
}

const char* CMessageChannel::standardEventName(uint16_t eventId)
{
    switch (eventId) {
    case 0x0000: return "Trigger";
    case 0x0001: return "StartOfExposure";
    case 0x0002: return "EndOfExposure";
    case 0x0003: return "StartOfTransfer";
    case 0x0004: return "EndOfTransfer";
    case 0x0005: return "PrimaryApplicationSwitchover";
    case 0x0006: return "LinkSpeedChange";
    case 0x0007: return "ActionLate";
    case 0x8001: return "Error";
    default: return "";
    }
}

void CMessageChannel::handle(const uint8_t* data, size_t size, uint32_t fromIp, uint16_t fromPort)
{
    SPacket packet;
    if (!parse(data, size, packet)) {
        LOG_WARN("message channel of %s: ignored a packet of %zu bytes", m_key.c_str(), size);
        return;
    }
    if (packet.ackRequired) {
        uint8_t ack[8];
        Gvcp::put16(ack, 0);
        Gvcp::put16(ack + 2, packet.ackCode);
        Gvcp::put16(ack + 4, 0);
        Gvcp::put16(ack + 6, packet.requestId);
        m_socket->sendTo(fromIp, fromPort, ack, sizeof(ack));
    }
    for (SMsgChannelArg& ev : packet.events) {
        std::string name;
        std::vector<std::string> params;
        if (m_nodeMap && m_nodeMap->eventInfo(ev.eventID, name, params)) {
            ev.eventName = name;
            for (const std::string& p : params)
                ev.paramNames.push_back(p);
        } else if (*standardEventName(ev.eventID)) {
            ev.eventName = standardEventName(ev.eventID);
        } else {
            char text[32];
            std::snprintf(text, sizeof(text), "Event0x%04X", unsigned(ev.eventID));
            ev.eventName = text;
        }
        EventHub::publishMsgChannel(m_owner, ev);
    }
}

} // namespace GenICam
} // namespace Vorlen
