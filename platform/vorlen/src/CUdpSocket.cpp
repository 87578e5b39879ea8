#include "CUdpSocket.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>


namespace Vorlen {
namespace GenICam {

namespace {

sockaddr_in addressOf(uint32_t ip, uint16_t port)
{
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_port = htons(port);
    a.sin_addr.s_addr = htonl(ip);
    return a;
}

} // namespace

CUdpSocket::CUdpSocket(uint32_t bindIp, uint16_t port, bool broadcast, bool reuseAddress)
{
    m_fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (m_fd < 0)
        return;
    const int on = 1;
    if (broadcast)
        ::setsockopt(m_fd, SOL_SOCKET, SO_BROADCAST, &on, sizeof(on));
    if (reuseAddress)
        ::setsockopt(m_fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof(on));
    const sockaddr_in local = addressOf(bindIp, port);
    if (::bind(m_fd, reinterpret_cast<const sockaddr*>(&local), sizeof(local)) != 0) {
        ::close(m_fd);
        m_fd = -1;
        return;
    }
    m_wakeFd = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
}

CUdpSocket::~CUdpSocket()
{
    if (m_fd >= 0)
        ::close(m_fd);
    if (m_wakeFd >= 0)
        ::close(m_wakeFd);
}

void CUdpSocket::interrupt()
{
    if (m_wakeFd >= 0) {
        const uint64_t one = 1;
        (void)!::write(m_wakeFd, &one, sizeof(one));
    }
}

uint16_t CUdpSocket::port() const
{
    sockaddr_in local{};
    socklen_t len = sizeof(local);
    if (m_fd < 0 || ::getsockname(m_fd, reinterpret_cast<sockaddr*>(&local), &len) != 0)
        return 0;
    return ntohs(local.sin_port);
}

bool CUdpSocket::sendTo(uint32_t ip, uint16_t port, const uint8_t* data, size_t size)
{
    const sockaddr_in to = addressOf(ip, port);
    return ::sendto(m_fd, data, size, 0, reinterpret_cast<const sockaddr*>(&to), sizeof(to)) == ssize_t(size);
}

int CUdpSocket::receive(uint8_t* data, size_t size, int ms, uint32_t* fromIp, uint16_t* fromPort)
{
    pollfd pfd[2] = {{m_fd, POLLIN, 0}, {m_wakeFd, POLLIN, 0}};
    const int r = ::poll(pfd, m_wakeFd >= 0 ? 2 : 1, ms < 0 ? -1 : ms);
    if (r <= 0)
        return r;
    if (!(pfd[0].revents & POLLIN))
        return 0;   // interrupted
    sockaddr_in from{};
    socklen_t len = sizeof(from);
    const ssize_t n = ::recvfrom(m_fd, data, size, 0, reinterpret_cast<sockaddr*>(&from), &len);
    if (n < 0)
        return -1;
    if (fromIp)
        *fromIp = ntohl(from.sin_addr.s_addr);
    if (fromPort)
        *fromPort = ntohs(from.sin_port);
    return int(n);
}

} // namespace GenICam
} // namespace Vorlen
