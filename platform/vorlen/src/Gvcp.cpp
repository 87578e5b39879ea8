#include "Gvcp.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <sstream>

#include "CUdpSocket.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {
namespace Gvcp {

using namespace Infra;

namespace {

constexpr uint16_t kStatusSuccess = 0x0000;
constexpr uint16_t kStatusAccessDenied = 0x8006;
constexpr uint32_t kReadMemChunk = 512;

std::string fixedString(const uint8_t* p, size_t n)
{
    size_t len = 0;
    while (len < n && p[len] != 0)
        ++len;
    return std::string(reinterpret_cast<const char*>(p), len);
}

void putString(uint8_t* p, size_t n, const std::string& s)
{
    std::memset(p, 0, n);
    std::memcpy(p, s.data(), std::min(n - 1, s.size()));
}

using Clock = std::chrono::steady_clock;

int remainingMs(Clock::time_point deadline)
{
    return int(std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count());
}

void writeHeader(uint8_t* p, uint8_t flags, uint16_t command, uint16_t length, uint16_t id)
{
    p[0] = kKey;
    p[1] = flags;
    put16(p + 2, command);
    put16(p + 4, length);
    put16(p + 6, id);
}

int statusToError(uint16_t status)
{
    if (status == kStatusSuccess)
        return ERR_OK;
    if (status == kStatusAccessDenied)
        return ERR_ACCESS_DENIED;
    return ERR_READ_FAILED;
}

// Sends a command and waits for its acknowledge (sent again once halfway
// through the timeout). On success the acknowledge is in ack (header
// included) and its size in ackSize.
int transact(CUdpSocket& sock, uint32_t ip, uint16_t port, const uint8_t* cmd, size_t cmdSize, uint16_t ackCode,
             uint16_t id, unsigned int timeoutMs, uint8_t* ack, size_t ackCapacity, int& ackSize)
{
    if (!sock.valid())
        return ERR_IO;
    const Clock::time_point start = Clock::now();
    const Clock::time_point deadline = start + std::chrono::milliseconds(timeoutMs);
    const Clock::time_point resend = start + std::chrono::milliseconds(timeoutMs / 2);
    bool resent = timeoutMs < 200;
    if (!sock.sendTo(ip, port, cmd, cmdSize))
        return ERR_IO;
    for (;;) {
        int wait = remainingMs(resent ? deadline : resend);
        if (wait <= 0) {
            if (resent)
                return ERR_TIMEOUT;
            resent = true;
            if (!sock.sendTo(ip, port, cmd, cmdSize))
                return ERR_IO;
            continue;
        }
        const int n = sock.receive(ack, ackCapacity, wait);
        if (n < 0)
            return ERR_IO;
        if (n < 8)
            continue;
        if (get16(ack + 2) != ackCode || get16(ack + 6) != id)
            continue;
        ackSize = n;
        return statusToError(get16(ack));
    }
}

} // namespace

uint16_t nextRequestId()
{
    static std::atomic<uint16_t> counter{0};
    uint16_t id;
    do {
        id = ++counter;
    } while (id == 0);
    return id;
}

bool parseDiscoveryAck(const uint8_t* p, size_t size, SDeviceInfo& info)
{
    if (!p || size < kDiscoveryAckSize)
        return false;
    info.versionMajor = get16(p + 0x00);
    info.versionMinor = get16(p + 0x02);
    info.deviceMode = get32(p + 0x04);
    info.mac = (uint64_t(get16(p + 0x0A)) << 32) | get32(p + 0x0C);
    info.ipConfigOptions = get32(p + 0x10);
    info.ipConfigCurrent = get32(p + 0x14);
    info.ip = get32(p + 0x24);
    info.mask = get32(p + 0x34);
    info.gateway = get32(p + 0x44);
    info.manufacturer = fixedString(p + 0x48, 32);
    info.model = fixedString(p + 0x68, 32);
    info.version = fixedString(p + 0x88, 32);
    info.manufacturerInfo = fixedString(p + 0xA8, 48);
    info.serial = fixedString(p + 0xD8, 16);
    info.userName = fixedString(p + 0xE8, 16);
    return true;
}

void writeDiscoveryAck(const SDeviceInfo& info, uint8_t* p)
{
    std::memset(p, 0, kDiscoveryAckSize);
    put16(p + 0x00, info.versionMajor);
    put16(p + 0x02, info.versionMinor);
    put32(p + 0x04, info.deviceMode);
    put16(p + 0x0A, uint16_t(info.mac >> 32));
    put32(p + 0x0C, uint32_t(info.mac));
    put32(p + 0x10, info.ipConfigOptions);
    put32(p + 0x14, info.ipConfigCurrent);
    put32(p + 0x24, info.ip);
    put32(p + 0x34, info.mask);
    put32(p + 0x44, info.gateway);
    putString(p + 0x48, 32, info.manufacturer);
    putString(p + 0x68, 32, info.model);
    putString(p + 0x88, 32, info.version);
    putString(p + 0xA8, 48, info.manufacturerInfo);
    putString(p + 0xD8, 16, info.serial);
    putString(p + 0xE8, 16, info.userName);
}

void writeForceIp(uint64_t mac, uint32_t ip, uint32_t mask, uint32_t gateway, uint8_t* p)
{
    std::memset(p, 0, kForceIpSize);
    put16(p + 0x02, uint16_t(mac >> 32));
    put32(p + 0x04, uint32_t(mac));
    put32(p + 0x14, ip);
    put32(p + 0x24, mask);
    put32(p + 0x34, gateway);
}

bool parseForceIp(const uint8_t* p, size_t size, uint64_t& mac, uint32_t& ip, uint32_t& mask, uint32_t& gateway)
{
    if (!p || size < kForceIpSize)
        return false;
    mac = (uint64_t(get16(p + 0x02)) << 32) | get32(p + 0x04);
    ip = get32(p + 0x14);
    mask = get32(p + 0x24);
    gateway = get32(p + 0x34);
    return true;
}

int discover(uint32_t ip, uint16_t port, unsigned int timeoutMs, SDeviceInfo& info)
{
    CUdpSocket sock;
    uint8_t cmd[8];
    const uint16_t id = nextRequestId();
    writeHeader(cmd, kFlagAckRequired, DISCOVERY_CMD, 0, id);
    uint8_t ack[1024];
    int ackSize = 0;
    const int err = transact(sock, ip, port, cmd, sizeof(cmd), DISCOVERY_ACK, id, timeoutMs, ack, sizeof(ack), ackSize);
    if (err != ERR_OK)
        return err;
    if (!parseDiscoveryAck(ack + 8, size_t(ackSize - 8), info))
        return ERR_READ_FAILED;
    return ERR_OK;
}

std::vector<SDeviceInfo> discoverMany(const std::vector<uint32_t>& ips, unsigned int timeoutMs)
{
    std::vector<SDeviceInfo> found;
    if (ips.empty())
        return found;
    CUdpSocket sock;
    if (!sock.valid())
        return found;
    std::map<uint16_t, uint32_t> pending;   // request id -> address
    for (uint32_t ip : ips) {
        uint8_t cmd[8];
        const uint16_t id = nextRequestId();
        writeHeader(cmd, kFlagAckRequired, DISCOVERY_CMD, 0, id);
        if (sock.sendTo(ip, kPort, cmd, sizeof(cmd)))
            pending[id] = ip;
    }
    const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(timeoutMs);
    while (!pending.empty()) {
        const int wait = remainingMs(deadline);
        if (wait <= 0)
            break;
        uint8_t ack[1024];
        const int n = sock.receive(ack, sizeof(ack), wait);
        if (n < 0)
            break;
        if (n < 8 || get16(ack + 2) != DISCOVERY_ACK || get16(ack) != kStatusSuccess)
            continue;
        auto it = pending.find(get16(ack + 6));
        if (it == pending.end())
            continue;
        SDeviceInfo info;
        if (parseDiscoveryAck(ack + 8, size_t(n - 8), info)) {
            if (info.ip == 0)
                info.ip = it->second;
            found.push_back(info);
        }
        pending.erase(it);
    }
    return found;
}

int readRegister(uint32_t ip, uint32_t address, uint32_t& value, unsigned int timeoutMs)
{
    CUdpSocket sock;
    uint8_t cmd[12];
    const uint16_t id = nextRequestId();
    writeHeader(cmd, kFlagAckRequired, READREG_CMD, 4, id);
    put32(cmd + 8, address);
    uint8_t ack[64];
    int ackSize = 0;
    const int err = transact(sock, ip, kPort, cmd, sizeof(cmd), READREG_ACK, id, timeoutMs, ack, sizeof(ack), ackSize);
    if (err != ERR_OK)
        return err;
    if (ackSize < 12)
        return ERR_READ_FAILED;
    value = get32(ack + 8);
    return ERR_OK;
}

int readMemory(uint32_t ip, uint32_t address, uint32_t size, std::vector<uint8_t>& data, unsigned int timeoutMs)
{
    data.clear();
    CUdpSocket sock;
    uint32_t done = 0;
    while (done < size) {
        const uint32_t chunk = std::min(kReadMemChunk, size - done);
        const uint32_t count = (chunk + 3) & ~3u;
        uint8_t cmd[16];
        const uint16_t id = nextRequestId();
        writeHeader(cmd, kFlagAckRequired, READMEM_CMD, 8, id);
        put32(cmd + 8, address + done);
        put32(cmd + 12, count);
        uint8_t ack[8 + 4 + kReadMemChunk + 16];
        int ackSize = 0;
        const int err =
            transact(sock, ip, kPort, cmd, sizeof(cmd), READMEM_ACK, id, timeoutMs, ack, sizeof(ack), ackSize);
        if (err != ERR_OK)
            return err;
        if (ackSize < int(12 + chunk))
            return ERR_READ_FAILED;
        data.insert(data.end(), ack + 12, ack + 12 + chunk);
        done += chunk;
    }
    return ERR_OK;
}

int forceIp(uint32_t destination, uint32_t bindIp, uint64_t mac, uint32_t ip, uint32_t mask, uint32_t gateway,
            unsigned int timeoutMs)
{
    CUdpSocket sock(bindIp, 0, true);
    uint8_t cmd[8 + kForceIpSize];
    const uint16_t id = nextRequestId();
    writeHeader(cmd, kFlagAckRequired, FORCEIP_CMD, uint16_t(kForceIpSize), id);
    writeForceIp(mac, ip, mask, gateway, cmd + 8);
    uint8_t ack[64];
    int ackSize = 0;
    return transact(sock, destination, kPort, cmd, sizeof(cmd), FORCEIP_ACK, id, timeoutMs, ack, sizeof(ack),
                    ackSize);
}

std::vector<SHostInterface> hostInterfaces()
{
    std::vector<SHostInterface> result;
    // Default gateways per interface from the routing table.
    std::map<std::string, uint32_t> gateways;
    std::ifstream route("/proc/net/route");
    std::string line;
    std::getline(route, line);   // header
    while (std::getline(route, line)) {
        std::istringstream in(line);
        std::string iface, dest, gw;
        if (!(in >> iface >> dest >> gw))
            continue;
        if (dest == "00000000" && !gateways.count(iface)) {
            const uint32_t raw = uint32_t(std::strtoul(gw.c_str(), nullptr, 16));
            gateways[iface] = ntohl(raw);
        }
    }

    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0)
        return result;
    for (ifaddrs* it = list; it; it = it->ifa_next) {
        if (!it->ifa_addr || it->ifa_addr->sa_family != AF_INET || !(it->ifa_flags & IFF_UP))
            continue;
        SHostInterface h;
        h.name = it->ifa_name ? it->ifa_name : "";
        h.ip = ntohl(reinterpret_cast<sockaddr_in*>(it->ifa_addr)->sin_addr.s_addr);
        if (it->ifa_netmask)
            h.mask = ntohl(reinterpret_cast<sockaddr_in*>(it->ifa_netmask)->sin_addr.s_addr);
        if ((it->ifa_flags & IFF_BROADCAST) && it->ifa_broadaddr)
            h.broadcast = ntohl(reinterpret_cast<sockaddr_in*>(it->ifa_broadaddr)->sin_addr.s_addr);
        h.loopback = (it->ifa_flags & IFF_LOOPBACK) != 0;
        const std::string device = h.name.substr(0, h.name.find(':'));
        auto gw = gateways.find(device);
        h.gateway = gw != gateways.end() ? gw->second : 0;
        std::ifstream macFile("/sys/class/net/" + device + "/address");
        std::getline(macFile, h.mac);
        if (h.mac.empty())
            h.mac = "00:00:00:00:00:00";
        result.push_back(h);
    }
    freeifaddrs(list);
    return result;
}

bool hostInterfaceFor(uint32_t cameraIp, SHostInterface& out)
{
    const std::vector<SHostInterface> all = hostInterfaces();
    for (const SHostInterface& h : all) {
        if (h.mask != 0 && (h.ip & h.mask) == (cameraIp & h.mask)) {
            out = h;
            return true;
        }
    }
    // Outside every subnet: the interface the kernel would send through.
    const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    sockaddr_in to{};
    to.sin_family = AF_INET;
    to.sin_port = htons(kPort);
    to.sin_addr.s_addr = htonl(cameraIp);
    uint32_t source = 0;
    if (::connect(fd, reinterpret_cast<sockaddr*>(&to), sizeof(to)) == 0) {
        sockaddr_in local{};
        socklen_t len = sizeof(local);
        if (::getsockname(fd, reinterpret_cast<sockaddr*>(&local), &len) == 0)
            source = ntohl(local.sin_addr.s_addr);
    }
    ::close(fd);
    for (const SHostInterface& h : all) {
        if (source != 0 && h.ip == source) {
            out = h;
            return true;
        }
    }
    return false;
}

std::string ipToString(uint32_t ip)
{
    char text[16];
    std::snprintf(text, sizeof(text), "%u.%u.%u.%u", (ip >> 24) & 0xFF, (ip >> 16) & 0xFF, (ip >> 8) & 0xFF,
                  ip & 0xFF);
    return text;
}

bool parseIp(const char* text, uint32_t& ip)
{
    if (!text)
        return false;
    in_addr a{};
    if (inet_pton(AF_INET, text, &a) != 1)
        return false;
    ip = ntohl(a.s_addr);
    return true;
}

std::string macToString(uint64_t mac)
{
    char text[18];
    std::snprintf(text, sizeof(text), "%02x:%02x:%02x:%02x:%02x:%02x", unsigned(mac >> 40) & 0xFF,
                  unsigned(mac >> 32) & 0xFF, unsigned(mac >> 24) & 0xFF, unsigned(mac >> 16) & 0xFF,
                  unsigned(mac >> 8) & 0xFF, unsigned(mac) & 0xFF);
    return text;
}

bool parseMac(const char* text, uint64_t& mac)
{
    if (!text)
        return false;
    unsigned int b[6];
    char sep[5];
    char tail;
    if (std::sscanf(text, "%2x%c%2x%c%2x%c%2x%c%2x%c%2x%c", &b[0], &sep[0], &b[1], &sep[1], &b[2], &sep[2], &b[3],
                    &sep[3], &b[4], &sep[4], &b[5], &tail) != 11)
        return false;
    for (char c : sep)
        if (c != ':' && c != '-')
            return false;
    mac = 0;
    for (unsigned int v : b)
        mac = (mac << 8) | (v & 0xFF);
    return true;
}

} // namespace Gvcp
} // namespace GenICam
} // namespace Vorlen
