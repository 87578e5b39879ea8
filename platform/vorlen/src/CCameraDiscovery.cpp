#include "CCameraDiscovery.h"

#include <map>
#include <mutex>

#include "AravisSystem.h"
#include "Gvcp.h"
#include "UsbInfo.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

namespace {

constexpr unsigned int kProbeTimeoutMs = 500;

std::string makeKey(const CAravisCamera::SDiscoveryInfo& info, const std::string& fallback)
{
    return info.vendor + ":" + info.model + ":" + (info.serial.empty() ? fallback : info.serial);
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

} // namespace

void CCameraDiscovery::initAravisOnce()
{
    static std::once_flag once;
    std::call_once(once, [] {
        std::lock_guard<std::mutex> lock(aravisSystemMutex());
        // Cameras outside the host's subnet can only answer discovery by
        // broadcast; accept those answers too.
        arv_set_interface_flags("GigEVision", ARV_GV_INTERFACE_FLAGS_ALLOW_BROADCAST_DISCOVERY_ACK);
    });
}

std::vector<CCameraDiscovery::SEntry> CCameraDiscovery::aravisDevices(ArvInterface* iface)
{
    initAravisOnce();
    std::vector<SEntry> entries;
    std::lock_guard<std::mutex> lock(aravisSystemMutex());
    if (!iface)
        return entries;
    arv_interface_update_device_list(iface);
    const unsigned int n = arv_interface_get_n_devices(iface);
    for (unsigned int i = 0; i < n; ++i) {
        SEntry e;
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

CAravisCamera::SDiscoveryInfo CCameraDiscovery::infoFromEntry(const SEntry& e, EInterfaceType type)
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

std::vector<CCameraDiscovery::CameraPtr> CCameraDiscovery::gigE()
{
    std::vector<CameraPtr> found;
    const std::vector<SEntry> entries = aravisDevices(arv_gv_interface_get_instance());

    // Aravis' list lacks masks, gateways and IP configuration: ask every
    // camera for its full device information, all at once.
    std::vector<uint32_t> addresses;
    for (const SEntry& e : entries) {
        uint32_t ip = 0;
        if (e.protocol == "GigEVision" && Gvcp::parseIp(e.address.c_str(), ip))
            addresses.push_back(ip);
    }
    std::map<uint32_t, Gvcp::SDeviceInfo> acks;
    for (const Gvcp::SDeviceInfo& ack : Gvcp::discoverMany(addresses, kProbeTimeoutMs))
        acks[ack.ip] = ack;

    for (const SEntry& e : entries) {
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
        info.key = makeKey(info, info.macAddress);
        fillHost(info);
        if (CameraPtr camera = CCameraRegistry::instance().upsert(info))
            found.push_back(camera);
    }
    return found;
}

std::vector<CCameraDiscovery::CameraPtr> CCameraDiscovery::usb()
{
    std::vector<CameraPtr> found;
    for (const SEntry& e : aravisDevices(arv_uv_interface_get_instance())) {
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
        info.key = makeKey(info, info.usbGuid);
        if (CameraPtr camera = CCameraRegistry::instance().upsert(info))
            found.push_back(camera);
    }
    return found;
}

CCameraDiscovery::CameraPtr CCameraDiscovery::unicast(uint32_t ip, uint16_t port, unsigned int timeoutMs,
                                                      const std::string& address)
{
    initAravisOnce();
    CCameraRegistry& registry = CCameraRegistry::instance();
    Gvcp::SDeviceInfo ack;
    const int err = Gvcp::discover(ip, port, timeoutMs, ack);
    if (err != ERR_OK) {
        registry.dropUnicast(address);
        setLastError(err, address.c_str());
        return CameraPtr();
    }
    CAravisCamera::SDiscoveryInfo info;
    info.type = typeGigEVision;
    fillFromAck(info, ack);
    if (!ack.ip)
        info.ipAddress = Gvcp::ipToString(ip);
    info.arvId = info.ipAddress;
    info.key = makeKey(info, info.macAddress);
    fillHost(info);
    CameraPtr camera = registry.upsert(info);
    if (camera)
        registry.addUnicast(info.key, address);
    return camera;
}

} // namespace GenICam
} // namespace Vorlen
