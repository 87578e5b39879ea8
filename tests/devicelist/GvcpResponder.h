#pragma once
// A GigE Vision control-channel listener of the test's own on one loopback
// address: it answers discovery (as a camera with the identity given),
// register reads (with 0) and, while allowed, FORCEIP, and records the
// FORCEIP packets it receives.
#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

#include "Gvcp.h"

namespace Gvcp = Vorlen::GenICam::Gvcp;

class GvcpResponder
{
public:
    struct SForced
    {
        uint64_t mac = 0;
        uint32_t ip = 0, mask = 0, gateway = 0;
    };

    GvcpResponder(const char* address, const Gvcp::SDeviceInfo& identity) : m_identity(identity)
    {
        m_fd = ::socket(AF_INET, SOCK_DGRAM, 0);
        sockaddr_in a{};
        a.sin_family = AF_INET;
        a.sin_port = htons(3956);
        inet_pton(AF_INET, address, &a.sin_addr);
        if (::bind(m_fd, reinterpret_cast<sockaddr*>(&a), sizeof(a)) == 0)
            m_thread = std::thread([this] { loop(); });
        else
            stop();
    }
    ~GvcpResponder() { stop(); }

    bool isListening() const { return m_fd >= 0; }
    void setAnswerForceIp(bool answer) { m_answerForceIp = answer; }
    // Stops answering anything (the camera is gone).
    void stop()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = -1;
    }
    std::vector<SForced> forced()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_forced;
    }

private:
    void loop()
    {
        while (!m_stop) {
            pollfd p{m_fd, POLLIN, 0};
            if (::poll(&p, 1, 50) <= 0)
                continue;
            uint8_t buffer[1500];
            sockaddr_in from{};
            socklen_t length = sizeof(from);
            const ssize_t n =
                ::recvfrom(m_fd, buffer, sizeof(buffer), 0, reinterpret_cast<sockaddr*>(&from), &length);
            if (n < 8 || buffer[0] != 0x42)
                continue;
            const uint16_t command = Gvcp::get16(buffer + 2);
            std::vector<uint8_t> reply(8, 0);
            Gvcp::put16(reply.data() + 6, Gvcp::get16(buffer + 6));   // the request's id
            uint16_t ack = 0;
            if (command == Gvcp::DISCOVERY_CMD) {
                reply.resize(8 + Gvcp::kDiscoveryAckSize);
                Gvcp::writeDiscoveryAck(m_identity, reply.data() + 8);
                ack = Gvcp::DISCOVERY_ACK;
            } else if (command == Gvcp::FORCEIP_CMD) {
                SForced f;
                if (!Gvcp::parseForceIp(buffer + 8, size_t(n - 8), f.mac, f.ip, f.mask, f.gateway))
                    continue;
                std::lock_guard<std::mutex> lock(m_mutex);
                m_forced.push_back(f);
                ack = m_answerForceIp ? Gvcp::FORCEIP_ACK : 0;
            } else if (command == Gvcp::READREG_CMD) {
                reply.resize(8 + 4 * (size_t(n - 8) / 4), 0);   // every register reads 0
                ack = Gvcp::READREG_ACK;
            }
            if (!ack)
                continue;
            Gvcp::put16(reply.data() + 2, ack);
            Gvcp::put16(reply.data() + 4, uint16_t(reply.size() - 8));
            ::sendto(m_fd, reply.data(), reply.size(), 0, reinterpret_cast<sockaddr*>(&from), sizeof(from));
        }
    }

    int m_fd = -1;
    Gvcp::SDeviceInfo m_identity;
    std::atomic<bool> m_stop{false};
    std::atomic<bool> m_answerForceIp{true};
    std::mutex m_mutex;
    std::vector<SForced> m_forced;
    std::thread m_thread;
};
