#include "CAravisCamera.h"

#include <algorithm>
#include <atomic>

#include "CConnectAttempt.h"
#include "CDescriptionFetcher.h"
#include "CForceIpSender.h"
#include "CLibraryLifetime.h"
#include "CLossWatchdog.h"
#include "CBackgroundWork.h"
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

void onControlLost(ArvDevice*, gpointer data)
{
    // Aravis' heartbeat thread: markLost never waits, and leaves the release
    // of the device (which joins this very thread) to a thread of its own.
    const SLostContext* ctx = static_cast<const SLostContext*>(data);
    if (auto camera = ctx->self.lock())
        camera->markLost(ctx->generation);
}

void deleteLostContext(gpointer data, GClosure*)
{
    delete static_cast<SLostContext*>(data);
}

std::string errorText(GError* error)
{
    return error && error->message ? error->message : "";
}

} // namespace

struct CAravisCamera::SPrivate
{
    mutable std::mutex infoMutex;
    SDiscoveryInfo info;
    std::weak_ptr<CAravisCamera> self;

    // Guarded by the camera's lock.
    ArvCamera* camera = nullptr;
    gulong lostHandler = 0;
    uint32_t hostIp = 0;
    ECameraAccessPermission held = accessPermissionOpen;
    std::shared_ptr<CNodeMap> nodeMap;
    std::unique_ptr<CMessageChannel> channel;
    std::string xmlUrl;

    std::atomic<bool> connected{false};
    // Connections are numbered; the one numbered lostGeneration was found
    // lost. A loss notice of an older connection never touches a newer one.
    std::atomic<uint64_t> generation{0};   // changed under the lock, read anywhere
    std::atomic<uint64_t> lostGeneration{UINT64_MAX};
    std::atomic<bool> lossUnclosed{false};
    std::atomic<bool> closedAfterLoss{false};   // disConnect() since the loss: not connected, no longer "lost"
    std::atomic<unsigned int> answerTimeoutMs{1000};
    // Heartbeat interval as configured (before any raise of the camera's
    // register); the loss watchdog reports a camera silent for this long.
    std::atomic<unsigned int> heartbeatMs{1500};

    CLossWatchdog watchdog;

    // The open under way in connect(), which a loss abandons.
    std::mutex attemptMutex;
    std::shared_ptr<CConnectAttempt> attempt;

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
    EventHub::forget(this);
    std::lock_guard<CCameraLock> lock(m_lock);
    if (p->connected)
        releaseConnection(!isLost());
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
    return p->connected && !isLost();
}

bool CAravisCamera::isLost() const
{
    return p->lostGeneration == p->generation;
}

uint64_t CAravisCamera::generation() const
{
    return p->generation;
}

bool CAravisCamera::lossUnclosed() const
{
    return p->lossUnclosed;
}

bool CAravisCamera::failLost() const
{
    if (p->closedAfterLoss) {
        setLastError(ERR_NOT_CONNECTED, getKey().c_str());
        return false;
    }
    const std::string detail = getKey().str() + " does not answer any more";
    setLastError(ERR_DEVICE_LOST, detail.c_str());
    return false;
}

bool CAravisCamera::lockAccess(std::unique_lock<CCameraLock>& lock) const
{
    if (!m_lock.lockUnlessLost())
        return failLost();
    lock = std::unique_lock<CCameraLock>(m_lock, std::adopt_lock);
    return true;
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
    // A call still inside the previous connection's camera is waited for:
    // the connection it works on may still need letting go.
    std::lock_guard<CCameraLock> lock(m_lock);
    const SDiscoveryInfo info = discoveryInfo();
    CBackgroundWork::instance().joinFinished();
    if (CLibraryLifetime::refuse())
        return false;
    if (p->connected && isLost())
        releaseConnection(false);
    if (p->connected) {
        setLastError(ERR_ALREADY_CONNECTED, info.key.c_str());
        return false;
    }
    if (permission != accessPermissionControl && permission != accessPermissionExclusive &&
        permission != accessPermissionMonitor) {
        setLastError(ERR_INVALID_PARAMETER, "access permission");
        return false;
    }
    p->lossUnclosed = false;
    p->closedAfterLoss = false;
    const uint64_t generation = ++p->generation;   // not lost: the lost one is older
    // The watchdog runs from the start: a camera that stops answering while
    // it is being opened is given up at once.
    uint32_t cameraIp = 0;
    if (info.type == typeGigEVision && Gvcp::parseIp(info.ipAddress.c_str(), cameraIp)) {
        std::weak_ptr<CAravisCamera> self = p->self;
        p->watchdog.start(cameraIp, p->heartbeatMs, p->answerTimeoutMs, [self, generation] {
            if (auto camera = self.lock())
                camera->markLost(generation);
        });
    }
    if (!open(info, permission, generation)) {
        p->watchdog.stop();
        return false;
    }
    LOG_DEBUG("connected %s", info.key.c_str());
    if (info.type == typeGigEVision && EventHub::hasSubscribers(this, EventHub::kindMsgChannel))
        openMessageChannel();
    clearLastError();
    return true;
}

bool CAravisCamera::open(const SDiscoveryInfo& info, ECameraAccessPermission permission, uint64_t generation)
{
    std::unique_ptr<CCameraConnector> connector = CCameraConnector::forType(info.type);
    if (!connector) {
        setLastError(ERR_NOT_SUPPORTED, "interface kind");
        return false;
    }
    std::shared_ptr<CConnectAttempt> attempt =
        CConnectAttempt::start(std::move(connector), info, permission, p->answerTimeoutMs);
    {
        std::lock_guard<std::mutex> lock(p->attemptMutex);
        p->attempt = attempt;
    }
    if (isLost())
        attempt->abandon();   // lost before the attempt could be told
    CCameraConnector::SConnection connection;
    const bool opened = attempt->wait(connection);
    {
        std::lock_guard<std::mutex> lock(p->attemptMutex);
        p->attempt.reset();
    }
    if (!opened)
        return isLost() ? failLost() : false;

    p->camera = connection.camera;
    p->hostIp = connection.hostIp;
    p->held = connection.permission;
    SLostContext* ctx = new SLostContext;
    ctx->self = p->self;
    ctx->generation = generation;
    p->lostHandler = g_signal_connect_data(arv_camera_get_device(p->camera), "control-lost",
                                           G_CALLBACK(onControlLost), ctx, deleteLostContext, GConnectFlags(0));
    p->connected = true;
    // A loss between the opening and here: markLost may not have seen the
    // connection; let go of it here.
    if (isLost()) {
        releaseConnection(false);
        return failLost();
    }
    return true;
}

void CAravisCamera::releaseConnection(bool cameraAlive)
{
    // Caller holds the lock. The watchdog keeps watching while the message
    // channel is closed on the camera: a loss then is still reported.
    cameraAlive = cameraAlive && !isLost();
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
    p->watchdog.stop();
    if (!camera)
        return;
    if (cameraAlive && !isLost()) {   // (again: the camera may have gone meanwhile)
        g_object_unref(camera);   // gives control back: one round trip
    } else {
        // Releasing a vanished camera waits for its control channel to time
        // out. A stream may still hold the device: it goes as soon as the
        // camera no longer needs it.
        CBackgroundWork::instance().run([camera] { g_object_unref(camera); });
    }
}

bool CAravisCamera::disConnect()
{
    CBackgroundWork::instance().joinFinished();
    // A lost connection is let go of by a thread of its own; closing it
    // waits for nothing.
    std::unique_lock<CCameraLock> lock;
    if (isLost() || !lockAccess(lock)) {
        p->lossUnclosed = false;
        p->closedAfterLoss = true;
        clearLastError();
        return true;
    }
    if (p->connected) {
        releaseConnection(true);
        LOG_DEBUG("disconnected %s", getKey().c_str());
    }
    clearLastError();
    return true;
}

void CAravisCamera::markLost(uint64_t generation)
{
    uint64_t previous = p->lostGeneration;
    if (generation != p->generation || previous == generation ||
        !p->lostGeneration.compare_exchange_strong(previous, generation))
        return;   // another connection's notice, or reported already
    m_lock.notifyLost();
    {
        std::lock_guard<std::mutex> lock(p->attemptMutex);
        if (p->attempt)
            p->attempt->abandon();
    }
    SConnectArg arg;
    arg.event = connectEventOffline;
    arg.key = getKey();
    LOG_WARN("camera %s lost", arg.key.c_str());
    if (!p->connected)
        return;   // while it was being opened: connect() fails with the loss
    p->lossUnclosed = true;
    EventHub::publishConnect(this, arg);
    if (auto self = p->self.lock())
        CBackgroundWork::instance().run([self, generation] { self->releaseLost(generation); });
}

void CAravisCamera::releaseLost(uint64_t generation)
{
    std::lock_guard<CCameraLock> lock(m_lock);
    if (p->generation == generation && p->connected)
        releaseConnection(false);
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
    std::unique_lock<CCameraLock> lock;
    if (!lockAccess(lock))
        return false;
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
    SDiscoveryInfo info = discoveryInfo();
    if (!CForceIpSender(info).send(ip, mask, gateway, std::max(1000u, p->answerTimeoutMs.load()), info))
        return false;
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
        std::unique_lock<CCameraLock> lock;
        if (!lockAccess(lock))
            return false;
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
        std::unique_lock<CCameraLock> lock;
        if (!lockAccess(lock))
            return CString();
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
    clearLastError();
    return CDescriptionFetcher::fileNameFor(url, info.vendor, info.model);
}

std::shared_ptr<CNodeMap> CAravisCamera::nodeMap()
{
    std::lock_guard<CCameraLock> lock(m_lock);   // the caller holds it already
    ArvDevice* device = arvDevice();
    if (!device)
        return nullptr;
    if (!p->nodeMap)
        p->nodeMap = std::make_shared<CNodeMap>(arv_device_get_genicam(device));
    return p->nodeMap;
}

bool CAravisCamera::openMessageChannel()
{
    std::unique_lock<CCameraLock> lock;
    if (!lockAccess(lock))
        return false;
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
    std::unique_lock<CCameraLock> lock;
    if (!lockAccess(lock))
        return;   // let go of with the lost connection
    if (!p->channel)
        return;
    if (ArvDevice* device = arvDevice())
        arv_device_write_register(device, Gvcp::REG_MCP, 0, nullptr);
    p->channel.reset();
}

ECameraAccessPermission CAravisCamera::heldPermission() const
{
    std::unique_lock<CCameraLock> lock;
    if (!lockAccess(lock))
        return accessPermissionOpen;
    return p->connected ? p->held : accessPermissionOpen;
}

uint16_t CAravisCamera::messageChannelPort() const
{
    std::unique_lock<CCameraLock> lock;
    if (!lockAccess(lock))
        return 0;
    return p->channel ? p->channel->port() : 0;
}

} // namespace GenICam
} // namespace Vorlen
