#pragma once
// An unconnected UDP socket, closed with the object. Addresses and ports are
// in host byte order.
#include <cstddef>
#include <cstdint>

namespace Vorlen {
namespace GenICam {

class CUdpSocket
{
public:
    // Bound to bindIp:port (0: any address, any port). broadcast allows
    // sending to broadcast addresses; reuseAddress lets another socket bind
    // the same address and port.
    explicit CUdpSocket(uint32_t bindIp = 0, uint16_t port = 0, bool broadcast = false, bool reuseAddress = false);
    ~CUdpSocket();
    CUdpSocket(const CUdpSocket&) = delete;
    CUdpSocket& operator=(const CUdpSocket&) = delete;

    bool valid() const { return m_fd >= 0; }
    // The port the socket is bound to.
    uint16_t port() const;

    bool sendTo(uint32_t ip, uint16_t port, const uint8_t* data, size_t size);
    // Waits up to ms (-1: without limit) for a datagram; returns its size,
    // 0 on timeout or interrupt(), -1 on error.
    int receive(uint8_t* data, size_t size, int ms, uint32_t* fromIp = nullptr, uint16_t* fromPort = nullptr);
    // Ends the receive() under way, and every later one, at once (any thread).
    void interrupt();

private:
    int m_fd = -1;
    int m_wakeFd = -1;
};

} // namespace GenICam
} // namespace Vorlen
