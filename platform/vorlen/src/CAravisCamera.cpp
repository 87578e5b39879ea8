#include "CAravisCamera.h"

#include <algorithm>
#include <atomic>
#include <cctype>

#include "CCameraConnector.h"
#include "CDescriptionFetcher.h"
#include "CForceIpSender.h"
#include "CLibraryLifetime.h"
#include "CLossWatchdog.h"
#include "CBackgroundReleaser.h"
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
constexpr uint32_t kMessageTimeoutMs = 200;
constexpr uint32_t kMessageRetries = 2;

struct SLostContext
{
    std::weak_ptr<CAravisCamera> self;
    uint64_t generation = 0;
};

void postLost(const std::weak_ptr<CAravisCamera>& self, uint64_t generation)
{
    EventHub::post([self, generation] {
        if (auto camera = self.lock())
            camera->handleLost(generation);
    });
}

void onControlLost(ArvDevice*, gpointer data)
{
    // Aravis' heartbeat thread: hand the work to the event thread, which may
    // destroy the device (this thread cannot: the device joins it).
    const SLostContext* ctx = static_cast<const SLostContext*>(data);
    postLost(ctx->self, ctx->generation);
}

void deleteLostContext(gpointer data, GClosure*)
{
    delete static_cast<SLostContext*>(data);
}

std::string errorText(GError* error)
{
    return error && error->message ? error->message : "";
}

std::string sanitizeFileName(std::string s)
{
    for (char& c : s)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '-' && c != '_' && c != '.')
            c = '_';
    return s;
}

} // namespace

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

    CLossWatchdog watchdog;

    template <class T>
    T field(T SDiscoveryInfo::*member) const
    {
        std::lock_guard<std::mutex> lock(infoMutex);
        return info.*member;
    }
};

CAravisCamera::CAravisCamera(const SDiscoveryInfo& info) : p(new SPrivate)
{
    p->info = info;
}

CAravisCamera::~CAravisCamera()
{
    std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
    if (p->connected)
        releaseConnection(true);
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

CString CAravisCamera::getKey() const { return p->field(&SDiscoveryInfo::key); }
CString CAravisCamera::getName() const { return p->field(&SDiscoveryInfo::model); }
CString CAravisCamera::getSerialNumber() const { return p->field(&SDiscoveryInfo::serial); }
CString CAravisCamera::getVendorName() const { return p->field(&SDiscoveryInfo::vendor); }
EInterfaceType CAravisCamera::getType() const { return p->field(&SDiscoveryInfo::type); }

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
    CBackgroundReleaser::instance().joinFinished();
    if (CLibraryLifetime::refuse())
        return false;
    if (p->connected) {
        setLastError(ERR_ALREADY_CONNECTED, info.key.c_str());
        return false;
    }
    if (permission != accessPermissionControl && permission != accessPermissionExclusive &&
        permission != accessPermissionMonitor) {
        setLastError(ERR_INVALID_PARAMETER, "access permission");
        return false;
    }
    std::unique_ptr<CCameraConnector> connector = CCameraConnector::forType(info.type);
    if (!connector) {
        setLastError(ERR_NOT_SUPPORTED, "interface kind");
        return false;
    }
    CCameraConnector::SConnection connection;
    if (!connector->open(info, permission, p->answerTimeoutMs, connection))
        return false;

    p->camera = connection.camera;
    p->hostIp = connection.hostIp;
    p->held = connection.permission;
    const uint64_t generation = ++p->generation;
    SLostContext* ctx = new SLostContext;
    ctx->self = p->self;
    ctx->generation = generation;
    p->lostHandler = g_signal_connect_data(arv_camera_get_device(p->camera), "control-lost",
                                           G_CALLBACK(onControlLost), ctx, deleteLostContext, GConnectFlags(0));
    p->connected = true;
    uint32_t cameraIp = 0;
    if (info.type == typeGigEVision && Gvcp::parseIp(info.ipAddress.c_str(), cameraIp)) {
        std::weak_ptr<CAravisCamera> self = p->self;
        p->watchdog.start(cameraIp, p->heartbeatMs, p->answerTimeoutMs,
                          [self, generation] { postLost(self, generation); });
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
    p->watchdog.stop();
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
        // out; that must not hold up the event thread. A stream may still
        // hold the device: it goes as soon as the camera no longer needs it.
        CBackgroundReleaser::instance().run([camera] { g_object_unref(camera); });
    }
}

bool CAravisCamera::disConnect()
{
    std::lock_guard<std::recursive_mutex> lock(m_gcMutex);
    if (p->connected) {
        releaseConnection(true);
        LOG_DEBUG("disconnected %s", getKey().c_str());
    }
    CBackgroundReleaser::instance().joinFinished();
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

bool CAravisCamera::requireGigE(const char* what) const
{
    if (isGigE())
        return true;
    setLastError(ERR_NOT_SUPPORTED, what);
    return false;
}

bool CAravisCamera::setAnswerTimeout(unsigned short ms)
{
    if (!requireGigE("answer timeout is a GigE Vision setting"))
        return false;
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
    if (!requireGigE("heartbeat is a GigE Vision setting"))
        return false;
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
    if (!requireGigE("FORCEIP is a GigE Vision command"))
        return false;
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
    const unsigned int timeout = std::max(1000u, p->answerTimeoutMs.load());
    const int err = CForceIpSender(info).send(newIp, newMask, newGateway, timeout);
    if (err == ERR_INVALID_PARAMETER) {
        setLastError(err, "camera MAC or address unknown");
        return false;
    }
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
    // Not connected: read the description from the camera's memory, which
    // needs no control.
    if (xml.empty() && info.type == typeGigEVision)
        xml = CDescriptionFetcher(info.ipAddress, p->answerTimeoutMs).description();
    if (xml.empty()) {
        setLastError(isConnected() || info.type == typeGigEVision ? ERR_READ_FAILED : ERR_NOT_CONNECTED,
                     "GenICam description");
        return false;
    }
    if (!CDescriptionFetcher::save(xml, path))
        return false;
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
                url = CDescriptionFetcher(info.ipAddress, p->answerTimeoutMs).url();
            }
            p->xmlUrl = url;
        }
    }
    std::string name = CDescriptionFetcher::fileNameOfUrl(url);
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
