#pragma once
// Our own GigE Vision control protocol (GVCP) exchanges: the ones that work
// without control of the camera (discovery, register and memory reads,
// FORCEIP) and the host-side network interface lookup they rely on.
// Addresses are IPv4 in host byte order.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Vorlen {
namespace GenICam {
namespace Gvcp {

constexpr uint16_t kPort = 3956;
constexpr uint8_t kKey = 0x42;
constexpr uint8_t kFlagAckRequired = 0x01;
constexpr uint8_t kFlagBroadcastAck = 0x10;

enum ECommand : uint16_t
{
    DISCOVERY_CMD = 0x0002,
    DISCOVERY_ACK = 0x0003,
    FORCEIP_CMD = 0x0004,
    FORCEIP_ACK = 0x0005,
    READREG_CMD = 0x0080,
    READREG_ACK = 0x0081,
    READMEM_CMD = 0x0084,
    READMEM_ACK = 0x0085,
    EVENT_CMD = 0x00C0,
    EVENT_ACK = 0x00C1,
    EVENTDATA_CMD = 0x00C2,
    EVENTDATA_ACK = 0x00C3
};

// Bootstrap registers used by the library.
enum EBootstrap : uint32_t
{
    REG_VERSION = 0x0000,
    REG_DEVICE_MODE = 0x0004,
    REG_CURRENT_IP_CONFIG = 0x0014,
    REG_XML_URL_0 = 0x0200,
    REG_HEARTBEAT_TIMEOUT = 0x0938,
    REG_CCP = 0x0A00,
    REG_MCP = 0x0B00,
    REG_MCDA = 0x0B10,
    REG_MCTT = 0x0B14,
    REG_MCRC = 0x0B18
};

constexpr size_t kDiscoveryAckSize = 0xF8;   // payload of DISCOVERY_ACK
constexpr size_t kForceIpSize = 0x38;        // payload of FORCEIP_CMD

// Device information of a DISCOVERY_ACK.
struct SDeviceInfo
{
    uint16_t versionMajor = 0, versionMinor = 0;
    uint32_t deviceMode = 0;
    uint64_t mac = 0;
    uint32_t ipConfigOptions = 0, ipConfigCurrent = 0;
    uint32_t ip = 0, mask = 0, gateway = 0;
    std::string manufacturer, model, version, manufacturerInfo, serial, userName;
};

bool parseDiscoveryAck(const uint8_t* payload, size_t size, SDeviceInfo& info);
void writeDiscoveryAck(const SDeviceInfo& info, uint8_t* payload);   // kDiscoveryAckSize bytes
// FORCEIP_CMD payload (kForceIpSize bytes).
void writeForceIp(uint64_t mac, uint32_t ip, uint32_t mask, uint32_t gateway, uint8_t* payload);
bool parseForceIp(const uint8_t* payload, size_t size, uint64_t& mac, uint32_t& ip, uint32_t& mask,
                  uint32_t& gateway);

// Exchanges with one camera; each returns an Infra::EErrorCode (ERR_OK,
// ERR_TIMEOUT when nothing answered, ERR_IO, ERR_ACCESS_DENIED, ...).
int discover(uint32_t ip, uint16_t port, unsigned int timeoutMs, SDeviceInfo& info);
// Probes several addresses at once; the answers, in no particular order.
std::vector<SDeviceInfo> discoverMany(const std::vector<uint32_t>& ips, unsigned int timeoutMs);
int readRegister(uint32_t ip, uint32_t address, uint32_t& value, unsigned int timeoutMs);
int readMemory(uint32_t ip, uint32_t address, uint32_t size, std::vector<uint8_t>& data, unsigned int timeoutMs);
// Sends FORCEIP_CMD from bindIp (0: any) to destination and waits for the
// acknowledge.
int forceIp(uint32_t destination, uint32_t bindIp, uint64_t mac, uint32_t ip, uint32_t mask, uint32_t gateway,
            unsigned int timeoutMs);

// Host network interfaces (IPv4).
struct SHostInterface
{
    std::string name;
    uint32_t ip = 0, mask = 0, broadcast = 0, gateway = 0;
    std::string mac;
    bool loopback = false;
};

std::vector<SHostInterface> hostInterfaces();
// The interface a camera address is reached through: the first whose
// subnet holds the address, else the one the routing table picks.
bool hostInterfaceFor(uint32_t cameraIp, SHostInterface& out);

std::string ipToString(uint32_t ip);
bool parseIp(const char* text, uint32_t& ip);
std::string macToString(uint64_t mac);   // "00:11:22:aa:bb:cc"
bool parseMac(const char* text, uint64_t& mac);

// Big-endian field access.
inline uint16_t get16(const uint8_t* p) { return uint16_t((p[0] << 8) | p[1]); }
inline uint32_t get32(const uint8_t* p)
{
    return (uint32_t(p[0]) << 24) | (uint32_t(p[1]) << 16) | (uint32_t(p[2]) << 8) | p[3];
}
inline void put16(uint8_t* p, uint16_t v) { p[0] = uint8_t(v >> 8); p[1] = uint8_t(v); }
inline void put32(uint8_t* p, uint32_t v)
{
    p[0] = uint8_t(v >> 24); p[1] = uint8_t(v >> 16); p[2] = uint8_t(v >> 8); p[3] = uint8_t(v);
}

uint16_t nextRequestId();

} // namespace Gvcp
} // namespace GenICam
} // namespace Vorlen
