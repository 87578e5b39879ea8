// Discovery and the registry of cameras.
#include "Vorlen/GenICam/CSystem.h"

#include <dirent.h>

#include <fstream>
#include <map>
#include <mutex>
#include <set>

#include "AravisSystem.h"
#include "CAravisCamera.h"
#include "Gvcp.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "UsbInfo.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;
using Memory::TSharedPtr;

namespace {

constexpr unsigned int kProbeTimeoutMs = 500;

struct SRegistry
{
    std::mutex mutex;
    // Every camera ever seen; an object lives as long as the process so that
    // a camera keeps its key and its object across discoveries.
    std::map<std::string, TSharedPtr<CAravisCamera>> cameras;
    std::set<std::string> lastSeen[2];              // by the last discovery of GigE / USB3
    std::map<std::string, std::string> unicast;     // key -> address that answered
};

SRegistry& registry()
{
    static SRegistry* r = new SRegistry;   // outlives static destruction order
    return *r;
}

std::string makeKey(const std::string& vendor, const std::string& model, const std::string& serial,
                    const std::string& fallback)
{
    if (serial.empty())
        return vendor + ":" + model + ":" + fallback;
    return vendor + ":" + model + ":" + serial;
}

std::string safe(const char* s)
{
    return s ? s : "";
}

void fillFromAck(CAravisCamera::SDiscoveryInfo& info, const Gvcp::SDeviceInfo& ack)
{
    if (!ack.manufacturer.empty())
        info.vendor = ack.manufacturer;
    if (!ack.model.empty())
        info.model = ack.model;
    if (!ack.serial.empty())
        info.serial = ack.serial;
    info.userId = ack.userName;
    info.version = ack.version;
    info.manufacturerInfo = ack.manufacturerInfo;
    if (ack.ip)
        info.ipAddress = Gvcp::ipToString(ack.ip);
    info.subnetMask = Gvcp::ipToString(ack.mask);
    info.gateway = Gvcp::ipToString(ack.gateway);
    info.macAddress = Gvcp::macToString(ack.mac);
    info.ipConfigOptions = ack.ipConfigOptions;
    info.ipConfigCurrent = ack.ipConfigCurrent;
    info.gvcpVersionMajor = ack.versionMajor;
    info.gvcpVersionMinor = ack.versionMinor;
}

void fillHost(CAravisCamera::SDiscoveryInfo& info)
{
    uint32_t ip = 0;
    Gvcp::SHostInterface host;
    if (Gvcp::parseIp(info.ipAddress.c_str(), ip) && Gvcp::hostInterfaceFor(ip, host)) {
        info.hostInterfaceName = host.name;
        info.hostIp = Gvcp::ipToString(host.ip);
        info.hostMask = Gvcp::ipToString(host.mask);
        info.hostGateway = Gvcp::ipToString(host.gateway);
        info.hostMac = host.mac;
    }
}

TSharedPtr<CAravisCamera> upsert(const CAravisCamera::SDiscoveryInfo& info)
{
    SRegistry& r = registry();
    std::lock_guard<std::mutex> lock(r.mutex);
    auto it = r.cameras.find(info.key);
    if (it != r.cameras.end()) {
        it->second->updateDiscoveryInfo(info);
        return it->second;
    }
    TSharedPtr<CAravisCamera> camera = CAravisCamera::create(info);
    r.cameras[info.key] = camera;
    LOG_DEBUG("new camera %s at %s", info.key.c_str(), info.ipAddress.empty() ? info.arvId.c_str()
                                                                              : info.ipAddress.c_str());
    return camera;
}

struct SAravisEntry
{
    std::string id, physicalId, address, vendor, model, serial, manufacturerInfo, protocol;
};

std::vector<SAravisEntry> aravisDevices(ArvInterface* iface)
{
    std::vector<SAravisEntry> entries;
    std::lock_guard<std::mutex> lock(aravisSystemMutex());
    if (!iface)
        return entries;
    arv_interface_update_device_list(iface);
    const unsigned int n = arv_interface_get_n_devices(iface);
    for (unsigned int i = 0; i < n; ++i) {
        SAravisEntry e;
        e.id = safe(arv_interface_get_device_id(iface, i));
        e.physicalId = safe(arv_interface_get_device_physical_id(iface, i));
        e.address = safe(arv_interface_get_device_address(iface, i));
        e.vendor = safe(arv_interface_get_device_vendor(iface, i));
        e.model = safe(arv_interface_get_device_model(iface, i));
        e.serial = safe(arv_interface_get_device_serial_nbr(iface, i));
        e.manufacturerInfo = safe(arv_interface_get_device_manufacturer_info(iface, i));
        e.protocol = safe(arv_interface_get_device_protocol(iface, i));
        entries.push_back(e);
    }
    return entries;
}

void initAravisOnce()
{
    static std::once_flag once;
    std::call_once(once, [] {
        std::lock_guard<std::mutex> lock(aravisSystemMutex());
        // Cameras outside the host's subnet can only answer discovery by
        // broadcast; accept those answers too.
        arv_set_interface_flags("GigEVision", ARV_GV_INTERFACE_FLAGS_ALLOW_BROADCAST_DISCOVERY_ACK);
    });
}

// What Aravis' device list tells of every camera, whatever its interface.
CAravisCamera::SDiscoveryInfo infoFromEntry(const SAravisEntry& e, EInterfaceType type)
{
    CAravisCamera::SDiscoveryInfo info;
    info.type = type;
    info.arvId = e.id;
    info.vendor = e.vendor;
    info.model = e.model;
    info.serial = e.serial;
    info.manufacturerInfo = e.manufacturerInfo;
    return info;
}

std::vector<TSharedPtr<CAravisCamera>> discoverGigE()
{
    std::vector<TSharedPtr<CAravisCamera>> found;
    const std::vector<SAravisEntry> entries = aravisDevices(arv_gv_interface_get_instance());

    // Aravis' list lacks masks, gateways and IP configuration: ask every
    // camera for its full device information, all at once.
    std::vector<uint32_t> addresses;
    for (const SAravisEntry& e : entries) {
        uint32_t ip = 0;
        if (e.protocol == "GigEVision" && Gvcp::parseIp(e.address.c_str(), ip))
            addresses.push_back(ip);
    }
    std::map<uint32_t, Gvcp::SDeviceInfo> acks;
    for (const Gvcp::SDeviceInfo& ack : Gvcp::discoverMany(addresses, kProbeTimeoutMs))
        acks[ack.ip] = ack;

    for (const SAravisEntry& e : entries) {
        if (e.protocol != "GigEVision")
            continue;
        CAravisCamera::SDiscoveryInfo info = infoFromEntry(e, typeGigEVision);
        info.ipAddress = e.address;
        info.macAddress = e.physicalId;
        uint32_t ip = 0;
        if (Gvcp::parseIp(e.address.c_str(), ip)) {
            auto ack = acks.find(ip);
            if (ack != acks.end())
                fillFromAck(info, ack->second);
        }
        info.key = makeKey(info.vendor, info.model, info.serial, info.macAddress);
        fillHost(info);
        found.push_back(upsert(info));
    }
    return found;
}

std::vector<TSharedPtr<CAravisCamera>> discoverUsb()
{
    std::vector<TSharedPtr<CAravisCamera>> found;
    for (const SAravisEntry& e : aravisDevices(arv_uv_interface_get_instance())) {
        if (e.protocol != "USB3Vision")
            continue;
        CAravisCamera::SDiscoveryInfo info = infoFromEntry(e, typeUsb3Vision);
        info.usbGuid = e.physicalId;
        SUsbSysfsInfo usb;
        if (usbSysfsInfo(e.serial, usb)) {
            info.usbSpeed = usbSpeedName(usb.speedMbps);
            info.usbVendorId = uint16_t(std::strtoul(usb.vendorId.c_str(), nullptr, 16));
            info.usbProductId = uint16_t(std::strtoul(usb.productId.c_str(), nullptr, 16));
        }
        info.key = makeKey(info.vendor, info.model, info.serial, info.usbGuid);
        found.push_back(upsert(info));
    }
    return found;
}

// Host network card of a GigE camera.
class CGigEInterfaceInfoImpl : public CGigEInterfaceInfo
{
public:
    explicit CGigEInterfaceInfoImpl(const Gvcp::SHostInterface& h) : m_h(h) {}
    CString getDescription() const override { return m_h.name; }
    CString getIpAddress() const override { return Gvcp::ipToString(m_h.ip); }
    CString getSubnetMask() const override { return Gvcp::ipToString(m_h.mask); }
    CString getGateway() const override { return Gvcp::ipToString(m_h.gateway); }
    CString getMacAddress() const override { return m_h.mac; }

private:
    Gvcp::SHostInterface m_h;
};

// USB port of a USB3 Vision camera, as far as the kernel tells.
class CUsbInterfaceInfoImpl : public CUsbInterfaceInfo
{
public:
    CUsbInterfaceInfoImpl(const std::string& description, const SUsbSysfsInfo& usb)
        : m_description(description), m_usb(usb)
    {
    }
    CString getDescription() const override { return m_description; }
    CString getVendorId() const override { return m_usb.vendorId; }
    CString getDeviceId() const override { return m_usb.productId; }
    CString getSubsystemId() const override { return CString(); }
    CString getsubRevision() const override { return m_usb.revision; }
    CString getSpeed() const override { return usbSpeedName(m_usb.speedMbps); }

private:
    std::string m_description;
    SUsbSysfsInfo m_usb;
};

std::string readFirstLine(const std::string& path)
{
    std::ifstream in(path);
    std::string line;
    std::getline(in, line);
    return line;
}

} // namespace

bool usbSysfsInfo(const std::string& serial, SUsbSysfsInfo& info)
{
    if (serial.empty())
        return false;
    const std::string base = "/sys/bus/usb/devices/";
    DIR* dir = opendir(base.c_str());
    if (!dir)
        return false;
    bool found = false;
    while (dirent* entry = readdir(dir)) {
        if (entry->d_name[0] == '.')
            continue;
        const std::string path = base + entry->d_name + "/";
        if (readFirstLine(path + "serial") != serial)
            continue;
        info.vendorId = readFirstLine(path + "idVendor");
        info.productId = readFirstLine(path + "idProduct");
        info.revision = readFirstLine(path + "bcdDevice");
        info.speedMbps = readFirstLine(path + "speed");
        info.maxPower = readFirstLine(path + "bMaxPower");
        found = true;
        break;
    }
    closedir(dir);
    return found;
}

std::string usbSpeedName(const std::string& speedMbps)
{
    const long mbps = std::strtol(speedMbps.c_str(), nullptr, 10);
    if (mbps >= 10000)
        return "SuperPlus";
    if (mbps >= 5000)
        return "Super";
    if (mbps >= 480)
        return "High";
    if (mbps >= 12)
        return "Full";
    if (mbps > 0)
        return "Low";
    return std::string();
}

CSystem& CSystem::getInstance()
{
    static CSystem instance;
    return instance;
}

bool CSystem::discovery(TVector<TSharedPtr<ICamera>>& cameras, EInterfaceType type)
{
    cameras.clear();
    initAravisOnce();
    std::vector<TSharedPtr<CAravisCamera>> found;
    if (type == typeGigEVision)
        found = discoverGigE();
    else if (type == typeUsb3Vision)
        found = discoverUsb();
    else {
        // No Camera Link, PCIe or GenTL transport behind this library.
        clearLastError();
        return true;
    }
    std::set<std::string> keys;
    for (const auto& camera : found) {
        keys.insert(camera->getKey().str());
        cameras.push_back(camera);
    }
    {
        SRegistry& r = registry();
        std::lock_guard<std::mutex> lock(r.mutex);
        r.lastSeen[type] = keys;
    }
    clearLastError();
    return true;
}

bool CSystem::discoveryEx(TVector<TSharedPtr<ICamera>>& cameras, EDiscoveryMode mode, _DiscoveryModeInfo info)
{
    if (mode == discoveryBroadcast)
        return discovery(cameras, typeGigEVision);
    cameras.clear();
    initAravisOnce();
    if (mode != discoveryUnicast) {
        setLastError(ERR_INVALID_PARAMETER, "discovery mode");
        return false;
    }
    info.ipAddress[sizeof(info.ipAddress) - 1] = 0;
    std::string address(info.ipAddress);
    // "a.b.c.d" or "a.b.c.d:port" (a camera behind a port forward).
    uint16_t port = Gvcp::kPort;
    const std::string::size_type colon = address.find(':');
    if (colon != std::string::npos) {
        const long p = std::strtol(address.c_str() + colon + 1, nullptr, 10);
        if (p <= 0 || p > 65535) {
            setLastError(ERR_INVALID_PARAMETER, info.ipAddress);
            return false;
        }
        port = uint16_t(p);
        address.resize(colon);
    }
    uint32_t ip = 0;
    if (!Gvcp::parseIp(address.c_str(), ip)) {
        setLastError(ERR_INVALID_PARAMETER, info.ipAddress);
        return false;
    }
    Gvcp::SDeviceInfo ack;
    const int err = Gvcp::discover(ip, port, info.timeoutMs ? info.timeoutMs : 1000, ack);
    SRegistry& r = registry();
    if (err != ERR_OK) {
        {
            std::lock_guard<std::mutex> lock(r.mutex);
            for (auto it = r.unicast.begin(); it != r.unicast.end();) {
                if (it->second == info.ipAddress)
                    it = r.unicast.erase(it);
                else
                    ++it;
            }
        }
        setLastError(err, info.ipAddress);
        return false;
    }
    CAravisCamera::SDiscoveryInfo d;
    d.type = typeGigEVision;
    fillFromAck(d, ack);
    if (!ack.ip)
        d.ipAddress = address;
    d.arvId = d.ipAddress;
    d.key = makeKey(d.vendor, d.model, d.serial, d.macAddress);
    fillHost(d);
    TSharedPtr<CAravisCamera> camera = upsert(d);
    {
        std::lock_guard<std::mutex> lock(r.mutex);
        r.unicast[d.key] = info.ipAddress;
    }
    cameras.push_back(camera);
    clearLastError();
    return true;
}

bool CSystem::getCameraPtrAll(TVector<TSharedPtr<ICamera>>& cameras)
{
    cameras.clear();
    SRegistry& r = registry();
    std::lock_guard<std::mutex> lock(r.mutex);
    for (const auto& entry : r.cameras) {
        const std::string& key = entry.first;
        if (r.lastSeen[0].count(key) || r.lastSeen[1].count(key) || r.unicast.count(key) ||
            entry.second->isConnected())
            cameras.push_back(entry.second);
    }
    clearLastError();
    return true;
}

CInternalSystem& CInternalSystem::getInstance()
{
    static CInternalSystem instance;
    return instance;
}

TSharedPtrGigEInterfaceInfo CInternalSystem::getGigEInterfaceInfoByCamera(const TSharedPtr<ICamera>& camera)
{
    CAravisCamera* c = toAravisCamera(camera);
    if (!c || !c->isGigE()) {
        setLastError(c ? ERR_NOT_SUPPORTED : ERR_INVALID_HANDLE, "GigE interface");
        return TSharedPtrGigEInterfaceInfo();
    }
    const CAravisCamera::SDiscoveryInfo info = c->discoveryInfo();
    // Looked up again at every call: the host's network setup may have
    // changed since the camera was found.
    uint32_t ip = 0;
    Gvcp::SHostInterface host;
    if (!Gvcp::parseIp(info.ipAddress.c_str(), ip) || !Gvcp::hostInterfaceFor(ip, host)) {
        setLastError(ERR_NOT_FOUND, "no network interface reaches the camera");
        return TSharedPtrGigEInterfaceInfo();
    }
    clearLastError();
    return TSharedPtrGigEInterfaceInfo(std::make_shared<CGigEInterfaceInfoImpl>(host));
}

TSharedPtrUsbInterfaceInfo CInternalSystem::getUsbInterfaceInfoByCamera(const TSharedPtr<ICamera>& camera)
{
    CAravisCamera* c = toAravisCamera(camera);
    if (!c || c->getType() != typeUsb3Vision) {
        setLastError(c ? ERR_NOT_SUPPORTED : ERR_INVALID_HANDLE, "USB interface");
        return TSharedPtrUsbInterfaceInfo();
    }
    const CAravisCamera::SDiscoveryInfo info = c->discoveryInfo();
    SUsbSysfsInfo usb;
    usbSysfsInfo(info.serial, usb);
    clearLastError();
    return TSharedPtrUsbInterfaceInfo(std::make_shared<CUsbInterfaceInfoImpl>("USB3 Vision", usb));
}

TSharedPtrCLInterfaceInfo CInternalSystem::getCLInterfaceInfoByCamera(const TSharedPtr<ICamera>&)
{
    setLastError(ERR_NOT_SUPPORTED, "Camera Link");
    return TSharedPtrCLInterfaceInfo();
}

TSharedPtrPCIeInterfaceInfo CInternalSystem::getPCIeInterfaceInfoByCamera(const TSharedPtr<ICamera>&)
{
    setLastError(ERR_NOT_SUPPORTED, "PCIe");
    return TSharedPtrPCIeInterfaceInfo();
}

TSharedPtrGenTLInterfaceInfo CInternalSystem::getGenTLInterfaceInfoByCamera(const TSharedPtr<ICamera>&)
{
    setLastError(ERR_NOT_SUPPORTED, "GenTL");
    return TSharedPtrGenTLInterfaceInfo();
}

CString CInternalSystem::getVersion() const
{
    char text[64];
    std::snprintf(text, sizeof(text), "Vorlen GenICam over Aravis %u.%u.%u", arv_get_major_version(),
                  arv_get_minor_version(), arv_get_micro_version());
    return text;
}

} // namespace GenICam
} // namespace Vorlen
