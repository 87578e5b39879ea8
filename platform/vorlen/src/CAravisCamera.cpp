#include "CAravisCamera.h"

#include <algorithm>
#include <atomic>
#include <cctype>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>
#include <vector>

#include "AravisSystem.h"
#include "EventHub.h"
#include "Gvcp.h"
#include "MessageChannel.h"
#include "NodeMap.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using namespace Infra;

namespace {

constexpr unsigned int kMinHeartbeatMs = 2000;   // Aravis sends a heartbeat about every second
constexpr uint32_t kCcpExclusive = 0x1;
constexpr uint32_t kMessageTimeoutMs = 200;
constexpr uint32_t kMessageRetries = 2;

struct SLostContext
{
    std::weak_ptr<CAravisCamera> self;
    uint64_t generation = 0;
};

void onControlLost(ArvDevice*, gpointer data)
{
    // Aravis' heartbeat thread: hand the work to the event thread, which may
    // destroy the device (this thread cannot: the device joins it).
    const SLostContext* ctx = static_cast<const SLostContext*>(data);
    std::weak_ptr<CAravisCamera> self = ctx->self;
    const uint64_t generation = ctx->generation;
    EventHub::post([self, generation] {
        if (auto camera = self.lock())
            camera->handleLost(generation);
    });
}

void deleteLostContext(gpointer data, GClosure*)
{
    delete static_cast<SLostContext*>(data);
}

std::string errorText(GError* error)
{
    return error && error->message ? error->message : "";
}

// "Local:name.xml;10000;3e67" -> name, address, size. False for other schemes.
bool parseLocalUrl(const std::string& url, std::string& name, uint32_t& address, uint32_t& size)
{
    if (url.size() < 6)
        return false;
    std::string scheme = url.substr(0, 6);
    for (char& c : scheme)
        c = char(std::tolower(static_cast<unsigned char>(c)));
    if (scheme != "local:")
        return false;
    const std::string rest = url.substr(6);
    const std::string::size_type a = rest.find(';');
    if (a == std::string::npos)
        return false;
    const std::string::size_type b = rest.find(';', a + 1);
    if (b == std::string::npos)
        return false;
    name = rest.substr(0, a);
    address = uint32_t(std::strtoul(rest.substr(a + 1, b - a - 1).c_str(), nullptr, 16));
    size = uint32_t(std::strtoul(rest.substr(b + 1).c_str(), nullptr, 16));
    return !name.empty() && size > 0;
}

std::string fileNameOfUrl(const std::string& url)
{
    std::string name;
    uint32_t address = 0, size = 0;
    if (parseLocalUrl(url, name, address, size)) {
        // "Local:///name.xml;..." and "Local:name.xml;..." both occur.
        const std::string::size_type slash = name.find_last_of('/');
        if (slash != std::string::npos)
            name = name.substr(slash + 1);
    } else {
        const std::string::size_type q = url.find_first_of(";?");
        name = url.substr(0, q);
        const std::string::size_type slash = name.find_last_of("/:");
        if (slash != std::string::npos)
            name = name.substr(slash + 1);
    }
    if (name.size() > 4 && (name.compare(name.size() - 4, 4, ".zip") == 0 || name.compare(name.size() - 4, 4, ".ZIP") == 0))
        name = name.substr(0, name.size() - 4);
    return name;
}

std::string sanitizeFileName(std::string s)
{
    for (char& c : s)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '-' && c != '_' && c != '.')
            c = '_';
    return s;
}

// The description named by a "Local:" URL, unpacked when zipped.
bool unpackDescription(const std::string& url, const std::vector<uint8_t>& raw, std::string& xml)
{
    std::string name;
    uint32_t address = 0, size = 0;
    parseLocalUrl(url, name, address, size);
    const bool zipped = name.size() > 4 && (name.compare(name.size() - 4, 4, ".zip") == 0 ||
                                            name.compare(name.size() - 4, 4, ".ZIP") == 0);
    if (!zipped) {
        xml.assign(reinterpret_cast<const char*>(raw.data()), raw.size());
        const std::string::size_type nul = xml.find('\0');
        if (nul != std::string::npos)
            xml.resize(nul);
        return !xml.empty();
    }
    ArvZip* zip = arv_zip_new(raw.data(), raw.size());
    if (!zip)
        return false;
    const GSList* files = arv_zip_get_file_list(zip);
    bool ok = false;
    if (files && files->data) {
        size_t unpackedSize = 0;
        void* data = arv_zip_get_file(zip, arv_zip_file_get_name(static_cast<ArvZipFile*>(files->data)),
                                      &unpackedSize);
        if (data) {
            xml.assign(static_cast<const char*>(data), unpackedSize);
            g_free(data);
            ok = !xml.empty();
        }
    }
    arv_zip_free(zip);
    return ok;
}

} // namespace

std::mutex& aravisSystemMutex()
{
    static std::mutex mutex;
    return mutex;
}

struct CAravisCamera::SPrivate
{
    mutable std::mutex infoMutex;
    SDiscoveryInfo info;
    std::weak_ptr<CAravisCamera> self;

    // Guarded by gcMutex.
    ArvCamera* camera = nullptr;
    uint64_t generation = 0;
    gulong lostHandler = 0;
    uint32_t hostIp = 0;
    ECameraAccessPermission held = accessPermissionOpen;
    std::shared_ptr<CNodeMap> nodeMap;
    std::unique_ptr<CMessageChannel> channel;
    std::string xmlUrl;

    std::atomic<bool> connected{false};
    std::atomic<unsigned int> answerTimeoutMs{1000};
    // Heartbeat interval as configured (before any raise of the camera's
    // register); the loss watchdog reports a camera silent for this long.
    std::atomic<unsigned int> heartbeatMs{1500};

    // Loss watchdog of a connected GigE Vision camera.
    std::thread watchdog;
    std::mutex watchdogMutex;
    std::condition_variable watchdogWake;
    bool watchdogStop = false;

    // Releases of lost cameras' Aravis objects under way. Releasing one
    // waits for Aravis' own heartbeat thread to give up, so it runs on a
    // thread of its own, never on the event thread, and lets the device go
    // as soon as the camera no longer needs it (a stream may still hold
    // it). Finished releases are joined at the next loss, connect or
    // disconnect, the rest when the camera object goes. Guarded by gcMutex.
    struct SRelease
    {
        std::thread thread;
        std::shared_ptr<std::atomic<bool>> done;
    };
    std::vector<SRelease> releases;
};

CAravisCamera::CAravisCamera(const SDiscoveryInfo& info) : p(new SPrivate)
{
    p->info = info;
}

CAravisCamera::~CAravisCamera()
{
    {
        std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
        if (p->connected)
            releaseConnection(true);
        joinReleases(true);
    }
    delete p;
}

void CAravisCamera::releaseLostCamera(ArvCamera* camera)
{
    // Caller holds gcMutex.
    joinReleases(false);
    SPrivate::SRelease release;
    release.done = std::make_shared<std::atomic<bool>>(false);
    std::shared_ptr<std::atomic<bool>> done = release.done;
    release.thread = std::thread([camera, done] {
        g_object_unref(camera);
        done->store(true);
    });
    p->releases.push_back(std::move(release));
}

void CAravisCamera::joinReleases(bool all)
{
    // Caller holds gcMutex; the release threads never take it.
    auto it = p->releases.begin();
    while (it != p->releases.end()) {
        if (all || it->done->load()) {
            it->thread.join();
            it = p->releases.erase(it);
        } else {
            ++it;
        }
    }
}

void CAravisCamera::startWatchdog(uint32_t cameraIp, uint64_t generation)
{
    // Caller holds gcMutex. Aravis notices a lost camera only after about
    // five seconds of retries whatever the heartbeat; this reads the
    // camera's control-channel privilege register over our own socket and
    // reports the camera lost once it has not answered for one heartbeat
    // interval, so the loss is known within about twice that interval.
    {
        std::lock_guard<std::mutex> lock(p->watchdogMutex);
        p->watchdogStop = false;
    }
    std::weak_ptr<CAravisCamera> weak = p->self;
    SPrivate* d = p;
    p->watchdog = std::thread([d, weak, cameraIp, generation] {
        using Clock = std::chrono::steady_clock;
        Clock::time_point lastAnswer = Clock::now();
        for (;;) {
            const unsigned int heartbeat = std::max(200u, d->heartbeatMs.load());
            const unsigned int step = heartbeat / 4;
            const unsigned int timeout = std::min(step, std::max(50u, d->answerTimeoutMs.load()));
            uint32_t value = 0;
            const int result = Gvcp::readRegister(cameraIp, Gvcp::REG_CCP, value, timeout);
            const Clock::time_point now = Clock::now();
            if (result != ERR_TIMEOUT) {
                lastAnswer = now;
            } else if (now - lastAnswer >= std::chrono::milliseconds(heartbeat)) {
                LOG_WARN("camera at %s silent for %u ms", Gvcp::ipToString(cameraIp).c_str(), heartbeat);
                EventHub::post([weak, generation] {
                    if (auto camera = weak.lock())
                        camera->handleLost(generation);
                });
                return;
            }
            std::unique_lock<std::mutex> lock(d->watchdogMutex);
            if (d->watchdogWake.wait_for(lock, std::chrono::milliseconds(step), [d] { return d->watchdogStop; }))
                return;
        }
    });
}

void CAravisCamera::stopWatchdog()
{
    // Caller holds gcMutex; the watchdog never takes it.
    {
        std::lock_guard<std::mutex> lock(p->watchdogMutex);
        p->watchdogStop = true;
    }
    p->watchdogWake.notify_all();
    if (p->watchdog.joinable())
        p->watchdog.join();
}

Memory::TSharedPtr<CAravisCamera> CAravisCamera::create(const SDiscoveryInfo& info)
{
    Memory::TSharedPtr<CAravisCamera> camera(new CAravisCamera(info));
    camera->p->self = camera;
    return camera;
}

CAravisCamera* toAravisCamera(const Memory::TSharedPtr<ICamera>& camera)
{
    return dynamic_cast<CAravisCamera*>(camera.get());
}

CString CAravisCamera::getKey() const
{
    std::lock_guard<std::mutex> lock(p->infoMutex);
    return p->info.key;
}

CString CAravisCamera::getName() const
{
    std::lock_guard<std::mutex> lock(p->infoMutex);
    return p->info.model;
}

CString CAravisCamera::getSerialNumber() const
{
    std::lock_guard<std::mutex> lock(p->infoMutex);
    return p->info.serial;
}

CString CAravisCamera::getVendorName() const
{
    std::lock_guard<std::mutex> lock(p->infoMutex);
    return p->info.vendor;
}

EInterfaceType CAravisCamera::getType() const
{
    std::lock_guard<std::mutex> lock(p->infoMutex);
    return p->info.type;
}

bool CAravisCamera::isConnected() const
{
    return p->connected;
}

CAravisCamera::SDiscoveryInfo CAravisCamera::discoveryInfo() const
{
    std::lock_guard<std::mutex> lock(p->infoMutex);
    return p->info;
}

void CAravisCamera::updateDiscoveryInfo(const SDiscoveryInfo& info)
{
    std::lock_guard<std::mutex> lock(p->infoMutex);
    const std::string key = p->info.key;
    p->info = info;
    p->info.key = key;   // the identity never changes
}

ArvCamera* CAravisCamera::arvCamera() const
{
    return p->connected ? p->camera : nullptr;
}

ArvDevice* CAravisCamera::arvDevice() const
{
    ArvCamera* camera = arvCamera();
    return camera ? arv_camera_get_device(camera) : nullptr;
}

unsigned int CAravisCamera::answerTimeoutMs() const
{
    return p->answerTimeoutMs;
}

bool CAravisCamera::connect(ECameraAccessPermission permission)
{
    std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
    const SDiscoveryInfo info = discoveryInfo();
    joinReleases(false);
    if (p->connected) {
        setLastError(ERR_ALREADY_CONNECTED, info.key.c_str());
        return false;
    }
    if (permission != accessPermissionControl && permission != accessPermissionExclusive &&
        permission != accessPermissionMonitor) {
        setLastError(ERR_INVALID_PARAMETER, "access permission");
        return false;
    }

    ArvCamera* camera = nullptr;
    GError* error = nullptr;
    uint32_t hostIp = 0;
    if (info.type == typeGigEVision) {
        uint32_t cameraIp = 0;
        if (!Gvcp::parseIp(info.ipAddress.c_str(), cameraIp)) {
            setLastError(ERR_INVALID_PARAMETER, "camera address");
            return false;
        }
        Gvcp::SHostInterface host;
        if (Gvcp::hostInterfaceFor(cameraIp, host))
            hostIp = host.ip;

        // A camera that does not answer fails fast, before Aravis' own
        // retries. A privilege held by another host is not judged here: the
        // camera itself refuses the take-over while that host's heartbeat
        // lasts, and grants it once the heartbeat has expired.
        uint32_t ccp = 0;
        if (Gvcp::readRegister(cameraIp, Gvcp::REG_CCP, ccp, p->answerTimeoutMs) == ERR_TIMEOUT) {
            setLastError(ERR_TIMEOUT, info.ipAddress.c_str());
            LOG_ERROR("connect %s: no answer from %s", info.key.c_str(), info.ipAddress.c_str());
            return false;
        }

        GInetAddress* interfaceAddress = hostIp ? g_inet_address_new_from_string(Gvcp::ipToString(hostIp).c_str())
                                                : g_inet_address_new_any(G_SOCKET_FAMILY_IPV4);
        GInetAddress* deviceAddress = g_inet_address_new_from_string(info.ipAddress.c_str());
        // Aravis parses the camera's description while it builds the device,
        // and its parser is not safe on two threads at once: cameras that
        // connect side by side take turns here.
        static std::mutex parseMutex;
        std::unique_lock<std::mutex> parseLock(parseMutex);
        ArvDevice* device = arv_gv_device_new(interfaceAddress, deviceAddress, &error);
        parseLock.unlock();
        g_object_unref(interfaceAddress);
        g_object_unref(deviceAddress);
        if (!device) {
            setLastError(ERR_TIMEOUT, errorText(error).c_str());
            LOG_ERROR("connect %s: %s", info.key.c_str(), errorText(error).c_str());
            g_clear_error(&error);
            return false;
        }
        ArvGvDevice* gvDevice = ARV_GV_DEVICE(device);
        if (permission != accessPermissionMonitor && !arv_gv_device_is_controller(gvDevice)) {
            g_object_unref(device);
            setLastError(ERR_ACCESS_DENIED, info.key.c_str());
            LOG_ERROR("connect %s: control of the camera was refused", info.key.c_str());
            return false;
        }
        if (permission == accessPermissionExclusive) {
            if (!arv_device_write_register(device, Gvcp::REG_CCP, kCcpExclusive, &error)) {
                LOG_WARN("connect %s: exclusive access refused, keeping control: %s", info.key.c_str(),
                         errorText(error).c_str());
                g_clear_error(&error);
                permission = accessPermissionControl;
            }
        } else if (permission == accessPermissionMonitor && arv_gv_device_is_controller(gvDevice)) {
            arv_gv_device_leave_control(gvDevice, nullptr);
        }
        if (!hostIp) {
            GSocketAddress* local = arv_gv_device_get_interface_address(gvDevice);
            if (local && G_IS_INET_SOCKET_ADDRESS(local)) {
                gchar* text = g_inet_address_to_string(g_inet_socket_address_get_address(G_INET_SOCKET_ADDRESS(local)));
                Gvcp::parseIp(text, hostIp);
                g_free(text);
            }
        }
        camera = arv_camera_new_with_device(device, &error);
        g_object_unref(device);
    } else if (info.type == typeUsb3Vision) {
        std::lock_guard<std::mutex> systemLock(aravisSystemMutex());
        camera = arv_camera_new(info.arvId.c_str(), &error);
    } else {
        setLastError(ERR_NOT_SUPPORTED, "interface kind");
        return false;
    }
    if (!camera) {
        setLastError(ERR_IO, errorText(error).c_str());
        LOG_ERROR("connect %s: %s", info.key.c_str(), errorText(error).c_str());
        g_clear_error(&error);
        return false;
    }

    p->camera = camera;
    p->hostIp = hostIp;
    p->held = permission;
    ++p->generation;
    SLostContext* ctx = new SLostContext;
    ctx->self = p->self;
    ctx->generation = p->generation;
    p->lostHandler = g_signal_connect_data(arv_camera_get_device(camera), "control-lost", G_CALLBACK(onControlLost),
                                           ctx, deleteLostContext, GConnectFlags(0));
    p->connected = true;
    if (info.type == typeGigEVision) {
        uint32_t cameraIp = 0;
        if (Gvcp::parseIp(info.ipAddress.c_str(), cameraIp))
            startWatchdog(cameraIp, p->generation);
    }
    LOG_DEBUG("connected %s", info.key.c_str());

    if (info.type == typeGigEVision && EventHub::hasSubscribers(this, EventHub::kindMsgChannel))
        openMessageChannel();
    clearLastError();
    return true;
}

void CAravisCamera::releaseConnection(bool cameraAlive)
{
    // Caller holds gcMutex.
    stopWatchdog();
    if (p->channel) {
        if (cameraAlive && p->camera)
            arv_device_write_register(arv_camera_get_device(p->camera), Gvcp::REG_MCP, 0, nullptr);
        p->channel.reset();
    }
    ArvCamera* camera = p->camera;
    if (camera && p->lostHandler)
        g_signal_handler_disconnect(arv_camera_get_device(camera), p->lostHandler);
    p->lostHandler = 0;
    p->camera = nullptr;
    p->connected = false;
    p->nodeMap.reset();
    p->held = accessPermissionOpen;
    if (!camera)
        return;
    if (cameraAlive) {
        g_object_unref(camera);
    } else {
        // Releasing a vanished camera waits for its control channel to time
        // out; that must not hold up the event thread.
        releaseLostCamera(camera);
    }
}

bool CAravisCamera::disConnect()
{
    std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
    if (p->connected) {
        releaseConnection(true);
        LOG_DEBUG("disconnected %s", getKey().c_str());
    }
    joinReleases(false);
    clearLastError();
    return true;
}

void CAravisCamera::handleLost(uint64_t generation)
{
    {
        std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
        if (!p->connected || p->generation != generation)
            return;
        releaseConnection(false);
    }
    SConnectArg arg;
    arg.event = connectEventOffline;
    arg.key = getKey();
    LOG_WARN("camera %s lost", arg.key.c_str());
    EventHub::publishConnect(this, arg);
}

bool CAravisCamera::isDriverInstalled(bool& installed) const
{
    // Aravis talks to GigE Vision cameras over sockets and to USB3 Vision
    // cameras through libusb: no driver of ours is involved.
    installed = true;
    clearLastError();
    return true;
}

bool CAravisCamera::setAnswerTimeout(unsigned short ms)
{
    if (!isGigE()) {
        setLastError(ERR_NOT_SUPPORTED, "answer timeout is a GigE Vision setting");
        return false;
    }
    if (ms == 0) {
        setLastError(ERR_INVALID_PARAMETER, "answer timeout 0");
        return false;
    }
    p->answerTimeoutMs = ms;
    static std::atomic<bool> logged{false};
    if (!logged.exchange(true))
        LOG_WARN("answer timeout %u ms applies to the library's own requests; Aravis keeps its control timeout",
                 unsigned(ms));
    clearLastError();
    return true;
}

bool CAravisCamera::setHeartbeatIntervel(unsigned short ms)
{
    if (!isGigE()) {
        setLastError(ERR_NOT_SUPPORTED, "heartbeat is a GigE Vision setting");
        return false;
    }
    std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
    ArvDevice* device = arvDevice();
    if (!device) {
        setLastError(ERR_NOT_CONNECTED, getKey().c_str());
        return false;
    }
    // Loss detection follows the configured interval; the camera's own
    // timeout keeps room for Aravis' heartbeat, which comes about once a
    // second.
    p->heartbeatMs = ms;
    unsigned int value = ms;
    if (value < kMinHeartbeatMs) {
        LOG_WARN("heartbeat timeout %u ms raised to %u ms on the camera (Aravis' heartbeat period is 1000 ms); "
                 "loss is still detected after %u ms",
                 value, kMinHeartbeatMs, value);
        value = kMinHeartbeatMs;
    }
    GError* error = nullptr;
    if (!arv_device_write_register(device, Gvcp::REG_HEARTBEAT_TIMEOUT, value, &error)) {
        setLastError(ERR_WRITE_FAILED, errorText(error).c_str());
        LOG_ERROR("set heartbeat timeout %u on %s: %s", value, getKey().c_str(), errorText(error).c_str());
        g_clear_error(&error);
        return false;
    }
    clearLastError();
    return true;
}

bool CAravisCamera::forceIpAddress(const char* ip, const char* mask, const char* gateway)
{
    if (!isGigE()) {
        setLastError(ERR_NOT_SUPPORTED, "FORCEIP is a GigE Vision command");
        return false;
    }
    uint32_t newIp = 0, newMask = 0, newGateway = 0;
    if (!Gvcp::parseIp(ip, newIp) || !Gvcp::parseIp(mask, newMask)) {
        setLastError(ERR_INVALID_PARAMETER, "address or mask");
        return false;
    }
    if (gateway && *gateway && !Gvcp::parseIp(gateway, newGateway)) {
        setLastError(ERR_INVALID_PARAMETER, "gateway");
        return false;
    }
    SDiscoveryInfo info = discoveryInfo();
    uint64_t mac = 0;
    uint32_t cameraIp = 0;
    if (!Gvcp::parseMac(info.macAddress.c_str(), mac) || !Gvcp::parseIp(info.ipAddress.c_str(), cameraIp)) {
        setLastError(ERR_INVALID_PARAMETER, "camera MAC or address unknown");
        return false;
    }

    // The camera may sit outside the host's subnet: FORCEIP goes to its MAC
    // by broadcast on the interface it was found on. Loopback has no
    // broadcast; the camera's own address is used there.
    Gvcp::SHostInterface host;
    bool found = false;
    for (const Gvcp::SHostInterface& h : Gvcp::hostInterfaces()) {
        if (h.name == info.hostInterfaceName && Gvcp::ipToString(h.ip) == info.hostIp) {
            host = h;
            found = true;
            break;
        }
    }
    if (!found)
        found = Gvcp::hostInterfaceFor(cameraIp, host);
    uint32_t destination = cameraIp;
    uint32_t bindIp = 0;
    if (found && !host.loopback) {
        destination = host.broadcast ? host.broadcast : 0xFFFFFFFFu;
        bindIp = host.ip;
    }
    const unsigned int timeout = std::max(1000u, p->answerTimeoutMs.load());
    const int err = Gvcp::forceIp(destination, bindIp, mac, newIp, newMask, newGateway, timeout);
    if (err != ERR_OK) {
        setLastError(err, info.key.c_str());
        LOG_ERROR("FORCEIP %s -> %s failed: %s", info.key.c_str(), ip, getErrMsg(err));
        return false;
    }
    info.ipAddress = Gvcp::ipToString(newIp);
    info.subnetMask = Gvcp::ipToString(newMask);
    info.gateway = Gvcp::ipToString(newGateway);
    updateDiscoveryInfo(info);
    LOG_DEBUG("FORCEIP %s -> %s", info.key.c_str(), ip);
    clearLastError();
    return true;
}

bool CAravisCamera::downLoadGenICamXML(const char* path)
{
    if (!path || !*path) {
        setLastError(ERR_INVALID_PARAMETER, "path");
        return false;
    }
    std::string xml;
    {
        std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
        if (ArvDevice* device = arvDevice()) {
            size_t size = 0;
            const char* data = arv_device_get_genicam_xml(device, &size);
            if (data && size)
                xml.assign(data, size);
        }
    }
    const SDiscoveryInfo info = discoveryInfo();
    if (xml.empty() && info.type == typeGigEVision) {
        // Not connected: read the description from the camera's memory,
        // which needs no control.
        uint32_t cameraIp = 0;
        std::vector<uint8_t> urlBytes, raw;
        std::string name;
        uint32_t address = 0, size = 0;
        if (Gvcp::parseIp(info.ipAddress.c_str(), cameraIp) &&
            Gvcp::readMemory(cameraIp, Gvcp::REG_XML_URL_0, 512, urlBytes, p->answerTimeoutMs) == ERR_OK) {
            const std::string url(reinterpret_cast<const char*>(urlBytes.data()),
                                  strnlen(reinterpret_cast<const char*>(urlBytes.data()), urlBytes.size()));
            if (parseLocalUrl(url, name, address, size) && size < 64u * 1024 * 1024 &&
                Gvcp::readMemory(cameraIp, address, size, raw, p->answerTimeoutMs) == ERR_OK)
                unpackDescription(url, raw, xml);
        }
    }
    if (xml.empty()) {
        setLastError(isConnected() || info.type == typeGigEVision ? ERR_READ_FAILED : ERR_NOT_CONNECTED,
                     "GenICam description");
        return false;
    }
    FILE* file = std::fopen(path, "wb");
    if (!file) {
        setLastError(ERR_IO, path);
        return false;
    }
    const bool ok = std::fwrite(xml.data(), 1, xml.size(), file) == xml.size();
    if (std::fclose(file) != 0 || !ok) {
        setLastError(ERR_IO, path);
        return false;
    }
    clearLastError();
    return true;
}

CString CAravisCamera::getDefXMLFilename() const
{
    const SDiscoveryInfo info = discoveryInfo();
    std::string url;
    {
        std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
        url = p->xmlUrl;
        if (url.empty()) {
            char buffer[513] = {0};
            if (ArvDevice* device = arvDevice()) {
                if (arv_device_read_memory(device, Gvcp::REG_XML_URL_0, 512, buffer, nullptr))
                    url = buffer;
            } else if (info.type == typeGigEVision) {
                uint32_t cameraIp = 0;
                std::vector<uint8_t> bytes;
                if (Gvcp::parseIp(info.ipAddress.c_str(), cameraIp) &&
                    Gvcp::readMemory(cameraIp, Gvcp::REG_XML_URL_0, 512, bytes, p->answerTimeoutMs) == ERR_OK)
                    url.assign(reinterpret_cast<const char*>(bytes.data()),
                               strnlen(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
            }
            p->xmlUrl = url;
        }
    }
    std::string name = fileNameOfUrl(url);
    if (name.empty())
        name = sanitizeFileName(info.vendor + "_" + info.model) + ".xml";
    clearLastError();
    return name;
}

std::shared_ptr<CNodeMap> CAravisCamera::nodeMap()
{
    std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
    ArvDevice* device = arvDevice();
    if (!device)
        return nullptr;
    if (!p->nodeMap)
        p->nodeMap = std::make_shared<CNodeMap>(arv_device_get_genicam(device));
    return p->nodeMap;
}

bool CAravisCamera::openMessageChannel()
{
    std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
    ArvDevice* device = arvDevice();
    if (!device || !isGigE()) {
        setLastError(device ? ERR_NOT_SUPPORTED : ERR_NOT_CONNECTED, "message channel");
        return false;
    }
    if (p->channel)
        return true;
    auto channel = std::make_unique<CMessageChannel>(this, getKey().str(), nodeMap());
    if (!channel->open(p->hostIp)) {
        setLastError(ERR_IO, "message channel socket");
        LOG_ERROR("message channel of %s: cannot open a socket", getKey().c_str());
        return false;
    }
    GError* error = nullptr;
    const bool ok = arv_device_write_register(device, Gvcp::REG_MCDA, p->hostIp, &error) &&
                    arv_device_write_register(device, Gvcp::REG_MCTT, kMessageTimeoutMs, &error) &&
                    arv_device_write_register(device, Gvcp::REG_MCRC, kMessageRetries, &error) &&
                    arv_device_write_register(device, Gvcp::REG_MCP, channel->port(), &error);
    if (!ok) {
        setLastError(ERR_WRITE_FAILED, errorText(error).c_str());
        LOG_ERROR("message channel of %s: %s", getKey().c_str(), errorText(error).c_str());
        g_clear_error(&error);
        return false;
    }
    LOG_DEBUG("message channel of %s on %s:%u", getKey().c_str(), Gvcp::ipToString(p->hostIp).c_str(),
              unsigned(channel->port()));
    p->channel = std::move(channel);
    return true;
}

void CAravisCamera::closeMessageChannel()
{
    std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
    if (!p->channel)
        return;
    if (ArvDevice* device = arvDevice())
        arv_device_write_register(device, Gvcp::REG_MCP, 0, nullptr);
    p->channel.reset();
}

ECameraAccessPermission CAravisCamera::heldPermission() const
{
    std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
    return p->connected ? p->held : accessPermissionOpen;
}

uint16_t CAravisCamera::messageChannelPort() const
{
    std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
    return p->channel ? p->channel->port() : 0;
}

} // namespace GenICam
} // namespace Vorlen
