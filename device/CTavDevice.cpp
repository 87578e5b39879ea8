#include "CTavDevice.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QThread>

#include <cstring>

#include "AccessStatusThread.h"
#include "CConfiguration.h"
#include "CDeviceConnectThread.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"

using namespace Vorlen::GenICam;
using Vorlen::Infra::CString;
using Vorlen::Memory::TSharedPtr;

namespace {
QByteArray errorText()
{
    return GetErrorDesc().toLocal8Bit();
}
}

CTavDevicePtr CTavDevice::create()
{
    return CTavDevicePtr(new CTavDevice(), [](CTavDevice* device) {
        // A QObject is deleted on its own thread; a last reference dropped on
        // a worker or library thread hands the deletion over.
        if (QThread::currentThread() == device->thread())
            delete device;
        else
            device->deleteLater();
    });
}

CTavDevice::CTavDevice() : QObject(nullptr)
{
    registerMessageMetaTypes();
    registerFrameMetaTypes();
    m_pStreamThread = new StreamRetrieveThread(this);
    m_pConnectThread = new CDeviceConnectThread(this);
    m_pAccessStatusThread = new AccessStatusThread(this);
}

CTavDevice::~CTavDevice()
{
    // Jobs hold the device, so none is left for a device owned through
    // create(); the worker is idle and ends at once.
    m_pConnectThread->stop();
    m_pConnectThread->wait();
    m_pStreamThread->stop();
    m_pStreamThread->wait();
    // A permission read under way may take one answer timeout: the thread
    // deletes itself when it returns, and its result goes nowhere.
    m_pAccessStatusThread->retire();
    m_pAccessStatusThread = nullptr;

    unsubscribeEvents();
    const TSharedPtr<CInternalStreamSource> stream = getStreamSource();
    if (stream && stream->isGrabbing())
        stream->stopGrabbing();
    m_pStreamThread->setStream(nullptr);
    m_pStreamThread->setDevice(nullptr);
    setStreamObjects(TSharedPtr<CInternalStreamSource>(), TSharedPtr<CInternalEventManager>());

    // A device that goes away lets its camera go (also when a connection
    // finished whose result was never delivered).
    const TSharedPtr<CInternalCamera> camera = getInternalDevice();
    if (camera && camera->isConnected())
    {
        if (!camera->disConnect())
            LOG_ERROR("disConnect [%s] fail. [%s]", m_strKey.toLocal8Bit().constData(), errorText().constData());
    }
}

void CTavDevice::setDevice(TSharedPtr<ICamera>& camera)
{
    m_spCamera = camera;
    m_strKey = camera ? QString::fromLocal8Bit(camera->getKey().c_str()) : QString();
}

TSharedPtr<ICamera> CTavDevice::getDevice() const
{
    return m_spCamera;
}

TSharedPtr<CInternalCamera> CTavDevice::getInternalDevice() const
{
    return Vorlen::Memory::dynamicPointerCast<CInternalCamera>(m_spCamera);
}

void CTavDevice::getDeviceKey(QString& key) const
{
    key = m_strKey;
}

QString CTavDevice::getDeviceKey() const
{
    return m_strKey;
}

void CTavDevice::init()
{
    if (m_bInitialized)
        return;
    m_bInitialized = true;

    connect(m_pConnectThread, &CDeviceConnectThread::device_connect, this, &CTavDevice::onConnectResult,
            Qt::QueuedConnection);
    connect(m_pConnectThread, &CDeviceConnectThread::device_disconnect, this, &CTavDevice::onDisconnectResult,
            Qt::QueuedConnection);
    connect(this, &CTavDevice::streamOpenFailed, this, &CTavDevice::onStreamOpenFailed, Qt::QueuedConnection);
    connect(m_pAccessStatusThread, &AccessStatusThread::signalRefreshAccessStatus, this,
            &CTavDevice::onRefreshAccessStatusFinished, Qt::QueuedConnection);
    connect(this, &CTavDevice::device_offline, this, &CTavDevice::onDeviceOffline, Qt::QueuedConnection);

    // Frames stay on the retrieval thread until the view's own (queued)
    // connection; the record question must be answered before the decision.
    connect(m_pStreamThread, &StreamRetrieveThread::newFrame, this, &CTavDevice::newFrame, Qt::DirectConnection);
    connect(m_pStreamThread, &StreamRetrieveThread::signalGetRecordEnable, this, &CTavDevice::signalGetRecordEnable,
            Qt::DirectConnection);
    connect(m_pStreamThread, &StreamRetrieveThread::increaseDisplayFrame, this, &CTavDevice::increaseDisplayFrame,
            Qt::DirectConnection);

    CConfiguration* cfg = CConfiguration::getInstance();
    connect(cfg, &CConfiguration::signalAnswerTimeoutChanged, this, &CTavDevice::onAnswerTimeoutChanged);
    connect(cfg, &CConfiguration::signalHeartbeatIntervalChanged, this, &CTavDevice::onHeartbeatIntervalChanged);
    connect(cfg, &CConfiguration::signalInterPacketTimeoutChanged, this, &CTavDevice::onInterPacketTimeoutChanged);
    connect(cfg, &CConfiguration::signalSingleResendMaxPackNumChanged, this,
            &CTavDevice::onSingleResendMaxPackNumChanged);
    connect(cfg, &CConfiguration::signalMaximumLostPacketNumChanged, this,
            &CTavDevice::onMaximumLostPacketNumChanged);
}

CTavDevicePtr CTavDevice::self()
{
    return CTavDevicePtr(weak_from_this().lock());
}

void CTavDevice::emitStatus(EN_MESSAGE_TYPE type)
{
    emit device_status_changed(type, self());
}

bool CTavDevice::isGigE() const
{
    return m_spCamera && m_spCamera->getType() == typeGigEVision;
}

bool CTavDevice::isUsb() const
{
    return m_spCamera && m_spCamera->getType() == typeUsb3Vision;
}

bool CTavDevice::isConnectThreadRunning() const
{
    return m_pConnectThread->isBusy();
}

bool CTavDevice::waitForWorker(int timeoutMs)
{
    return m_pConnectThread->waitIdle(timeoutMs);
}

TSharedPtr<CInternalStreamSource> CTavDevice::getStreamSource() const
{
    QMutexLocker locker(&m_objectMutex);
    return m_ptrStream;
}

TSharedPtr<CInternalEventManager> CTavDevice::getEventManager() const
{
    QMutexLocker locker(&m_objectMutex);
    return m_ptrEventManager;
}

bool CTavDevice::isGrabing() const
{
    const TSharedPtr<CInternalStreamSource> stream = getStreamSource();
    return stream && stream->isGrabbing();
}

// ---------------------------------------------------------------- connection

CTavDevice::SLinkSettings CTavDevice::linkSettings()
{
    const CConfiguration* cfg = CConfiguration::getInstance();
    SLinkSettings link;
    if (cfg)
    {
        link.answerTimeout = cfg->iAnswerTimeout;
        link.heartbeat = cfg->iHeartbeatIval;
    }
    return link;
}

CTavDevice::SStreamSettings CTavDevice::streamSettings()
{
    const CConfiguration* cfg = CConfiguration::getInstance();
    SStreamSettings s;
    if (cfg)
    {
        s.bufferCount = cfg->streamingBufferCount;
        s.interPacketTimeout = cfg->iInterPacketTimeout;
        s.singleResendMaxPackNum = cfg->iSingleResendMaxPackNum;
        s.maximumLostPacketNum = cfg->iMaximumLostPacketNum;
        s.urbNumber = cfg->streamingUrbNumberCount;
        s.urbSize = cfg->streamingUrbSizeCount;
    }
    return s;
}

void CTavDevice::postJob(std::function<void()> job)
{
    // The job holds the device: a device dropped by the manager meanwhile
    // lives until its worker has finished with it.
    const CTavDevicePtr keep = self();
    m_pConnectThread->post([keep, job]() { job(); });
}

void CTavDevice::setStreamObjects(const TSharedPtr<CInternalStreamSource>& stream,
                                  const TSharedPtr<CInternalEventManager>& events)
{
    TSharedPtr<CInternalStreamSource> oldStream;
    TSharedPtr<CInternalEventManager> oldEvents;
    {
        QMutexLocker locker(&m_objectMutex);
        oldStream = m_ptrStream;
        oldEvents = m_ptrEventManager;
        m_ptrStream = stream;
        m_ptrEventManager = events;
    }
    // Released outside the lock.
}

bool CTavDevice::openDevice(bool bSync)
{
    const QByteArray key = m_strKey.toLocal8Bit();
    LOG_DEBUG("begin to openDevice. [%s]", key.constData());
    if (!m_spCamera)
    {
        LOG_ERROR("m_spCamera.get() is NULL!");
        return false;
    }
    switch (connectionState())
    {
    case stateConnecting:
        // The worker is still on the previous attempt.
        return false;
    case stateConnected:
        LOG_WARN("device is already connected. [%s]", key.constData());
        return false;
    case stateDisconnecting:
        LOG_WARN("device is still closing, openDevice ignored. [%s]", key.constData());
        return false;
    case stateDisconnected:
        break;
    }

    m_eState = stateConnecting;
    m_bCloseAfterConnect = false;
    const quint64 generation = ++m_nGeneration;
    emitStatus(MSG_DEVICE_CONNECTING);

    const SLinkSettings link = linkSettings();
    postJob([this, link, generation]() {
        const bool ok = connectOnWorker(link);
        emit m_pConnectThread->device_connect(ok, generation);
        LOG_DEBUG("CDeviceConnectThread run end");
    });
    if (!bSync)
        return true;

    deliverWorkerResults();
    return m_eState == stateConnected;
}

bool CTavDevice::connectOnWorker(const SLinkSettings& link)
{
    LOG_DEBUG("CDeviceConnectThread run begin");
    const TSharedPtr<CInternalCamera> camera = getInternalDevice();
    if (camera.get() == nullptr)
    {
        LOG_ERROR("m_spCamera.get() is NULL!");
        return false;
    }
    // Control access: the camera can be used by others for monitoring only.
    if (!camera->connect(accessPermissionControl))
    {
        LOG_ERROR("connect [%s] fail. [%s]", camera->getKey().c_str(), errorText().constData());
        return false;
    }

    m_bConnected = true;
    // The name shown for the device carries the user id: read it here, so
    // the panels never ask the camera for it.
    readUserIdFromCamera();
    emitStatus(MSG_DEVICE_CONNECTED);

    if (isGigE())
    {
        if (!camera->setAnswerTimeout(link.answerTimeout))
            LOG_ERROR("setAnswerTimeout %u fail. [%s]", unsigned(link.answerTimeout), errorText().constData());
        if (!camera->setHeartbeatIntervel(link.heartbeat))
            LOG_ERROR("setHeartbeatIntervel %u fail. [%s]", unsigned(link.heartbeat), errorText().constData());
    }

    const TSharedPtr<CInternalEventManager> events = Vorlen::Memory::makeShared<CInternalEventManager>(m_spCamera);
    setStreamObjects(TSharedPtr<CInternalStreamSource>(), events);
    subscribeEvents();

    CIntNode hostPort(m_spCamera, "GevSCPHostPort");
    if (hostPort.isValid())
    {
        long port = 0;
        if (hostPort.getValue(port))
            m_nGevSCPHostPort = static_cast<unsigned int>(port);
        else
            LOG_ERROR("get GevSCPHostPort fail. [%s]", errorText().constData());
    }

    const TSharedPtr<CInternalStreamSource> stream = Vorlen::Memory::makeShared<CInternalStreamSource>(m_spCamera, 0);
    if (!stream->resetStatisticsInfo())
        LOG_ERROR("resetStatisticsInfo fail. [%s]", errorText().constData());
    setStreamObjects(stream, events);
    return true;
}

void CTavDevice::deliverWorkerResults()
{
    // Synchronous callers: wait for the worker, then deliver what it queued
    // for this thread (bus messages and results) in the order it was sent.
    m_pConnectThread->waitIdle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
}

void CTavDevice::onConnectResult(bool ok, quint64 generation)
{
    // A result already taken by a synchronous call, or of a request that a
    // loss report overtook, changes nothing.
    if (generation != m_nGeneration || m_eState != stateConnecting)
        return;
    onDeviceConnect(ok);
}

void CTavDevice::onDeviceConnect(bool ok)
{
    if (!ok)
    {
        m_eState = stateDisconnected;
        m_bCloseAfterConnect = false;
        emitStatus(MSG_DEVICE_CONNECT_FAILED);
        return;
    }
    m_eState = stateConnected;
    if (m_bCloseAfterConnect)
    {
        m_bCloseAfterConnect = false;
        LOG_DEBUG("carry out the close asked for during the connection. [%s]", m_strKey.toLocal8Bit().constData());
        closeDevice(false);
    }
}

void CTavDevice::subscribeEvents()
{
    const TSharedPtr<CInternalEventManager> events = getEventManager();
    if (!events)
        return;

    // Library threads call these; they only emit. The weak reference keeps a
    // device that is going away from being touched.
    const std::weak_ptr<CTavDevice> weak = weak_from_this();
    const QString key = m_strKey;

    if (!events->subscribeConnectArgs([weak, key](const SConnectArg& arg) {
            if (arg.event != connectEventOffline)
                return;
            if (const std::shared_ptr<CTavDevice> device = weak.lock())
                emit device->device_offline(key);
        }))
        LOG_ERROR("subscribeConnectArgs fail. [%s]", errorText().constData());

    if (!events->subscribeParamUpdate([weak, key](const SParamUpdataArg& arg) {
            const std::shared_ptr<CTavDevice> device = weak.lock();
            if (!device)
                return;
            // A user id written elsewhere (the feature panel) refreshes the cache.
            for (const CString& name : arg.paramNames)
            {
                if (name == CString("DeviceUserID"))
                {
                    device->refreshUserId();
                    break;
                }
            }
            emit device->device_param_update(arg, key);
        }))
        LOG_ERROR("subscribeParamUpdate fail. [%s]", errorText().constData());

    if (!events->subscribeStreamArg([weak, key](const SStreamArg& arg) {
            if (const std::shared_ptr<CTavDevice> device = weak.lock())
                emit device->device_stream_event(arg, key);
        }))
        LOG_ERROR("subscribeStreamArg fail. [%s]", errorText().constData());

    if (!events->subscribeMsgChannel([weak, key](const SMsgChannelArg& arg) {
            if (const std::shared_ptr<CTavDevice> device = weak.lock())
                emit device->device_msg_channel(arg, key);
        }))
        LOG_ERROR("subscribeMsgChannel fail. [%s]", errorText().constData());
}

void CTavDevice::unsubscribeEvents()
{
    const TSharedPtr<CInternalEventManager> events = getEventManager();
    if (!events)
        return;
    if (!events->unsubscribeConnectArgs())
        LOG_ERROR("unsubscribeConnectArgs fail. [%s]", errorText().constData());
    if (!events->unsubscribeParamUpdate())
        LOG_ERROR("unsubscribeParamUpdate fail. [%s]", errorText().constData());
    if (!events->unsubscribeStreamArg())
        LOG_ERROR("unsubscribeStreamArg fail. [%s]", errorText().constData());
    if (!events->unsubscribeMsgChannel())
        LOG_ERROR("unsubscribeMsgChannel fail. [%s]", errorText().constData());
}

void CTavDevice::releaseConnectionObjects()
{
    stopStreamThread();
    m_pStreamThread->setStream(nullptr);
    m_pStreamThread->setDevice(nullptr);
    setStreamObjects(TSharedPtr<CInternalStreamSource>(), TSharedPtr<CInternalEventManager>());
}

bool CTavDevice::closeDevice(bool bSync)
{
    const QByteArray key = m_strKey.toLocal8Bit();
    LOG_DEBUG("begin to closeDevice. [%s]", key.constData());
    switch (connectionState())
    {
    case stateDisconnected:
        LOG_WARN("device is not open, closeDevice ignored. [%s]", key.constData());
        return false;
    case stateDisconnecting:
        LOG_WARN("device is already closing. [%s]", key.constData());
        return false;
    case stateConnecting:
        // Carried out as soon as the connection has finished.
        m_bCloseAfterConnect = true;
        LOG_DEBUG("close asked for during the connection; it follows the connection. [%s]", key.constData());
        if (!bSync)
            return true;
        // A connection that failed leaves nothing to close; a successful one
        // starts the close when its result is handled: wait for that too.
        deliverWorkerResults();
        deliverWorkerResults();
        return m_eState == stateDisconnected;
    case stateConnected:
        break;
    }

    m_eState = stateDisconnecting;
    m_bStreamRequested = false;
    const quint64 generation = ++m_nGeneration;
    postJob([this, generation]() {
        // Announced from the worker, so that it follows whatever the worker
        // reported before (a stream that opened just now).
        emitStatus(MSG_DEVICE_DISCONNECTING);
        closeStreamOnWorker();
        const bool ok = disconnectOnWorker(false);
        emit m_pConnectThread->device_disconnect(ok, generation);
        LOG_DEBUG("CDeviceConnectThread run end");
    });
    if (bSync)
        deliverWorkerResults();
    LOG_DEBUG("end to closeDevice. [%s]", key.constData());
    return true;
}

bool CTavDevice::disconnectOnWorker(bool offline)
{
    if (!offline)
        unsubscribeEvents();
    releaseConnectionObjects();
    LOG_DEBUG("CDeviceConnectThread run begin");
    const TSharedPtr<CInternalCamera> camera = getInternalDevice();
    bool ok = false;
    if (camera.get() == nullptr)
    {
        LOG_ERROR("m_spCamera.get() is NULL!");
    }
    else
    {
        ok = camera->disConnect();
        if (!ok)
            LOG_ERROR("disConnect [%s] fail. [%s]", camera->getKey().c_str(), errorText().constData());
    }
    m_bConnected = false;
    setCachedUserId(CString());
    return ok;
}

void CTavDevice::onDisconnectResult(bool ok, quint64 generation)
{
    if (generation != m_nGeneration || m_eState != stateDisconnecting)
        return;
    onDeviceDisConnect(ok);
}

void CTavDevice::onDeviceDisConnect(bool ok)
{
    m_eState = stateDisconnected;
    m_bStreamRequested = false;
    if (m_bOfflineCleanup)
    {
        // The loss has been reported (message 6); nothing more to say.
        m_bOfflineCleanup = false;
        return;
    }
    if (!ok)
        LOG_ERROR("disconnect device fail. [%s]", m_strKey.toLocal8Bit().constData());
    emitStatus(MSG_DEVICE_DISCONNECTED);
}

void CTavDevice::onDeviceOffline()
{
    // A late report after the device was closed, or a second one, changes nothing.
    if (!m_bConnected || m_bOfflineCleanup || m_eState == stateDisconnected)
        return;

    const QByteArray key = m_strKey.toLocal8Bit();
    LOG_WARN("Device offline.Device Key[%s]", key.constData());
    if (m_eState == stateDisconnecting)
    {
        // A close is already taking the connection down; it ends with
        // message 5 as asked.
        return;
    }

    m_bConnected = false;
    m_bStreamRequested = false;
    m_bCloseAfterConnect = false;
    m_bOfflineCleanup = true;
    m_eState = stateDisconnecting;
    const quint64 generation = ++m_nGeneration;
    emitStatus(MSG_DEVICE_OFFLINE);

    // The dead connection is taken down on the worker, after whatever it is
    // doing: stopping the stream of a vanished camera waits for its
    // timeouts, and the library must forget the connection before the
    // camera can be connected again.
    postJob([this, generation]() {
        unsubscribeEvents();
        const TSharedPtr<CInternalStreamSource> stream = getStreamSource();
        stopStreamThread();
        if (stream && stream->isGrabbing() && !stream->stopGrabbing())
            LOG_ERROR("stopGrabbing fail. [%s]", errorText().constData());
        const bool ok = disconnectOnWorker(true);
        emit m_pConnectThread->device_disconnect(ok, generation);
        LOG_DEBUG("CDeviceConnectThread run end");
    });
}

void CTavDevice::onRefreshAccessStatusFinished(ECameraAccessPermission permission)
{
    m_eAccessPermission = permission;
    emitStatus(MSG_ACCESS_STATUS_CHANGED);
}

void CTavDevice::refreshAccessPermission()
{
    const TSharedPtr<CInternalCamera> camera = getInternalDevice();
    if (!camera || !isGigE())
        return;
    m_pAccessStatusThread->RefreshAccessStatus(camera);
}

// ---------------------------------------------------------------- stream

bool CTavDevice::openStream()
{
    LOG_DEBUG("begin to open a stream channel.");
    const EConnectionState state = connectionState();
    if (!m_bConnected || (state != stateConnected && state != stateConnecting))
    {
        LOG_ERROR("open stream error. isConnected: %d.", int(m_bConnected.load()));
        return false;
    }
    if (m_bStreamRequested)
    {
        LOG_ERROR("camera is already grabbing.");
        return false;
    }
    m_bStreamRequested = true;
    // The save throttle is armed from the configuration here, on the GUI thread.
    m_pStreamThread->Init();
    const SStreamSettings settings = streamSettings();
    postJob([this, settings]() { openStreamOnWorker(settings); });
    return true;
}

void CTavDevice::openStreamOnWorker(const SStreamSettings& settings)
{
    const TSharedPtr<CInternalStreamSource> stream = getStreamSource();
    if (!m_bConnected || !stream)
    {
        LOG_ERROR("open stream error. isConnected: %d.", int(m_bConnected.load()));
        emit streamOpenFailed();
        return;
    }
    if (stream->isGrabbing())
    {
        LOG_ERROR("camera is already grabbing.");
        emit streamOpenFailed();
        return;
    }

    m_pStreamThread->setStream(stream);
    m_pStreamThread->setDevice(getInternalDevice());
    bool installed = true;
    if (isDriverInstalled(installed))
        m_pStreamThread->setDriverInstalled(installed);

    long width = 0;
    long height = 0;
    if (getParaIntValue("Width", width))
        m_pStreamThread->setWidthReg(width);
    if (getParaIntValue("Height", height))
        m_pStreamThread->setHeightReg(height);
    m_pStreamThread->setCompressionModeJpeg(isCompressionModeJpeg());

    m_pStreamThread->start(QThread::TimeCriticalPriority);

    if (!stream->setBufferCount(settings.bufferCount))
        LOG_ERROR("set buffer count %u errror.", settings.bufferCount);
    if (isGigE())
    {
        if (!stream->setInterPacketTimeout(settings.interPacketTimeout))
            LOG_ERROR("set InterPacketTimeout %u errror.", settings.interPacketTimeout);
        if (!stream->setSingleResendMaxPacketNum(settings.singleResendMaxPackNum))
            LOG_ERROR("set SingleResendMaxPacketNum %u errror.", settings.singleResendMaxPackNum);
        if (!stream->setMaxLostPacketNum(settings.maximumLostPacketNum))
            LOG_ERROR("set MaxLostPacketNum %u errror.", settings.maximumLostPacketNum);
    }
    else if (isUsb())
    {
        if (!stream->setUrbTransfer(settings.urbNumber, settings.urbSize))
            LOG_ERROR("set urb number count %u, urb size count %u errror.", settings.urbNumber, settings.urbSize);
    }

    if (!stream->startGrabbing())
    {
        LOG_ERROR("[%s]", errorText().constData());
        stopStreamThread();
        emit streamOpenFailed();
        return;
    }

    // Only a stream that really started is announced.
    emit signalStartGrab();
    emitStatus(MSG_STREAM_OPENED);
    LOG_DEBUG("end to open a stream channel.");
}

void CTavDevice::onStreamOpenFailed()
{
    m_bStreamRequested = false;
}

bool CTavDevice::closeStream()
{
    if (!getStreamSource())
    {
        LOG_DEBUG("begin closeStream.");
        LOG_ERROR("m_ptrStream.get() is NULL.");
        return false;
    }
    m_bStreamRequested = false;
    postJob([this]() { closeStreamOnWorker(); });
    return true;
}

void CTavDevice::closeStreamOnWorker()
{
    LOG_DEBUG("begin closeStream.");
    const TSharedPtr<CInternalStreamSource> stream = getStreamSource();
    if (stream.get() == nullptr)
    {
        LOG_ERROR("m_ptrStream.get() is NULL.");
        stopStreamThread();
        return;
    }
    stopStreamThread();
    if (stream->isGrabbing() && !stream->stopGrabbing())
        LOG_ERROR("stopGrabbing fail. [%s]", errorText().constData());
    emitStatus(MSG_STREAM_CLOSED);
    LOG_DEBUG("end closeStream.");
}

void CTavDevice::stopStreamThread()
{
    m_pStreamThread->stop();
    m_pStreamThread->wait();
}

bool CTavDevice::isDriverInstalled(bool& installed)
{
    const TSharedPtr<CInternalCamera> camera = getInternalDevice();
    if (!camera)
        return false;
    if (!camera->isDriverInstalled(installed))
    {
        LOG_ERROR("isDriverInstalled fail. [%s]", errorText().constData());
        return false;
    }
    return true;
}

bool CTavDevice::isCompressionModeJpeg()
{
    CEnumNode node(m_spCamera, "ImageCompressionMode");
    if (!node.isValid())
    {
        LOG_ERROR("get ImageCompressionMode node fail");
        return false;
    }
    if (!node.isReadable())
    {
        LOG_ERROR("ImageCompressionMode is not readable");
        return false;
    }
    Vorlen::Infra::TVector<CInternalParameterNode::SEnumEntry> entries;
    if (!node.getEnumEntry(entries))
    {
        LOG_ERROR("getEnumEntry ImageCompressionMode fail");
        return false;
    }
    unsigned long value = 0;
    if (!node.getEnumValue(value))
    {
        LOG_ERROR("getEnumValue ImageCompressionMode fail");
        return false;
    }
    for (const auto& entry : entries)
    {
        if (entry.value == value)
            return entry.symbol == CString("JPEG");
    }
    return false;
}

void CTavDevice::setShowChunkData(bool show)
{
    m_pStreamThread->setShowTrunkData(show);
}

void CTavDevice::setDisplayFPS(int fps)
{
    m_pStreamThread->setDisplayFPS(fps);
}

void CTavDevice::getStreamStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames,
                                    QString& bandwidth)
{
    m_pStreamThread->getStatistic()->getStatistic(receiveFps, displayFps, totalFrames, bandwidth);
}

void CTavDevice::getStreamStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames,
                                    QString& bandwidth, QString& errorText, unsigned long long& errorCount)
{
    m_pStreamThread->getStatistic()->getStatistic(receiveFps, displayFps, totalFrames, bandwidth, errorText,
                                                  errorCount);
}

bool CTavDevice::getStatisticsInfo(StreamStatisticsInfo& info)
{
    const TSharedPtr<CInternalStreamSource> stream = getStreamSource();
    if (!stream)
        return false;
    return stream->getStatisticsInfo(info);
}

bool CTavDevice::doPropertyReset()
{
    CEnumNode selector(m_spCamera, "UserSetSelector");
    if (selector.isValid() && selector.isWriteable())
    {
        if (!selector.setValueBySymbol("Default"))
            LOG_ERROR("set UserSetSelector Default fail. [%s]", errorText().constData());
    }
    CEnumNode userSetDefault(m_spCamera, "UserSetDefault");
    if (userSetDefault.isValid() && userSetDefault.isWriteable())
    {
        if (!userSetDefault.setValueBySymbol("Default"))
            LOG_ERROR("set UserSetDefault Default fail. [%s]", errorText().constData());
    }
    CCmdNode load(m_spCamera, "UserSetLoad");
    if (!load.execute())
    {
        LOG_ERROR("execute UserSetLoad fail. [%s]", errorText().constData());
        return false;
    }
    return true;
}

// ---------------------------------------------------------------- features

CInternalParameterNodePtr CTavDevice::getParam(const char* name)
{
    return Vorlen::Memory::makeShared<CInternalParameterNode>(m_spCamera, name);
}

bool CTavDevice::getParaIntValue(const char* name, long& value)
{
    CIntNode node(m_spCamera, name);
    if (!node.getValue(value))
    {
        LOG_ERROR("get %s value fail. [%s]", name, errorText().constData());
        return false;
    }
    return true;
}

bool CTavDevice::setParaIntValue(const char* name, long value)
{
    CIntNode node(m_spCamera, name);
    if (!node.setValue(value))
    {
        LOG_ERROR("set %s value %ld fail. [%s]", name, value, errorText().constData());
        return false;
    }
    return true;
}

bool CTavDevice::getParaEnumValue(const char* name, unsigned long& value)
{
    CEnumNode node(m_spCamera, name);
    if (!node.getEnumValue(value))
    {
        LOG_ERROR("get %s value fail. [%s]", name, errorText().constData());
        return false;
    }
    return true;
}

bool CTavDevice::getParaEnumValue(const char* name, QString& symbol)
{
    CEnumNode node(m_spCamera, name);
    CString value;
    if (!node.getValueSymbol(value))
    {
        LOG_ERROR("get %s value fail. [%s]", name, errorText().constData());
        return false;
    }
    symbol = QString::fromLocal8Bit(value.c_str());
    return true;
}

bool CTavDevice::setParamEnumValue(const char* name, unsigned long value)
{
    CEnumNode node(m_spCamera, name);
    if (!node.setEnumValue(value))
    {
        LOG_ERROR("set %s value %lu fail. [%s]", name, value, errorText().constData());
        return false;
    }
    return true;
}

bool CTavDevice::getParaBoolValue(const char* name, bool& value)
{
    CBoolNode node(m_spCamera, name);
    if (!node.getValue(value))
    {
        LOG_ERROR("get %s value fail. [%s]", name, errorText().constData());
        return false;
    }
    return true;
}

bool CTavDevice::setParaBoolValue(const char* name, bool value)
{
    CBoolNode node(m_spCamera, name);
    if (!node.setValue(value))
    {
        LOG_ERROR("set %s value %d fail. [%s]", name, int(value), errorText().constData());
        return false;
    }
    return true;
}

bool CTavDevice::getParaStringValue(const char* name, QString& value, int& maxLength)
{
    CStringNode node(m_spCamera, name);
    CString text;
    if (!node.getValue(text))
    {
        LOG_ERROR("get %s value fail. [%s]", name, errorText().constData());
        return false;
    }
    value = QString::fromLocal8Bit(text.c_str());
    unsigned int length = 0;
    if (node.getMaxStringLen(length))
        maxLength = static_cast<int>(length);
    else
        LOG_ERROR("get %s max length fail. [%s]", name, errorText().constData());
    return true;
}

bool CTavDevice::setParaStringValue(const char* name, QString value)
{
    CStringNode node(m_spCamera, name);
    if (!node.setValue(CString(value.toLocal8Bit().constData())))
    {
        LOG_ERROR("set %s value fail. [%s]", name, errorText().constData());
        return false;
    }
    // The caller already waits on the camera: read back what it kept.
    if (std::strcmp(name, "DeviceUserID") == 0)
        readUserIdFromCamera();
    return true;
}

bool CTavDevice::getParamEnumList(const char* name, QStringList& symbols)
{
    CEnumNode node(m_spCamera, name);
    Vorlen::Infra::TVector<CString> list;
    if (!node.getEnumSymbolList(list))
    {
        LOG_ERROR("get %s enum list fail. [%s]", name, errorText().constData());
        return false;
    }
    symbols.clear();
    for (const CString& symbol : list)
        symbols.append(QString::fromLocal8Bit(symbol.c_str()));
    return true;
}

bool CTavDevice::setPersistentIp(const QString& ip, const QString& mask, const QString& gateway)
{
    bool ok = true;
    if (!setParaBoolValue("GevCurrentIPConfigurationPersistentIP", true))
        ok = false;
    if (!setParaIntValue("GevPersistentIPAddress", static_cast<long>(QHostAddress(ip).toIPv4Address())))
        ok = false;
    if (!setParaIntValue("GevPersistentSubnetMask", static_cast<long>(QHostAddress(mask).toIPv4Address())))
        ok = false;
    if (!setParaIntValue("GevPersistentDefaultGateway", static_cast<long>(QHostAddress(gateway).toIPv4Address())))
        ok = false;
    return ok;
}

// ---------------------------------------------------------------- names

bool CTavDevice::generateDeviceName(CString& name)
{
    if (!m_spCamera)
        return false;
    name = m_spCamera->getName() + CString(" (") + m_spCamera->getSerialNumber() + CString(")");
    return true;
}

bool CTavDevice::generateDeviceNameByUserID(CString& name)
{
    if (!m_spCamera)
        return false;
    CString userId;
    if (m_bConnected)
    {
        QMutexLocker locker(&m_userIdMutex);
        userId = m_strUserId;
    }
    if (userId.empty())
        return generateDeviceName(name);
    name = userId + CString(" (") + m_spCamera->getSerialNumber() + CString(")");
    return true;
}

QString CTavDevice::cachedUserId() const
{
    QMutexLocker locker(&m_userIdMutex);
    return QString::fromLocal8Bit(m_strUserId.c_str());
}

void CTavDevice::setCachedUserId(const CString& userId)
{
    QMutexLocker locker(&m_userIdMutex);
    m_strUserId = userId;
}

bool CTavDevice::readUserIdFromCamera()
{
    CString userId;
    CStringNode node(m_spCamera, "DeviceUserID");
    if (node.isValid() && node.isReadable() && !node.getValue(userId))
        LOG_ERROR("get DeviceUserID value fail. [%s]", errorText().constData());
    QMutexLocker locker(&m_userIdMutex);
    if (m_strUserId == userId)
        return false;
    m_strUserId = userId;
    return true;
}

void CTavDevice::refreshUserId()
{
    if (!m_bConnected)
        return;
    postJob([this]() {
        if (m_bConnected)
            readUserIdFromCamera();
    });
}

QString CTavDevice::getDeviceSaveName()
{
    if (!m_spCamera)
        return QString();
    QString stem = QString("%1_%2")
                       .arg(QString::fromLocal8Bit(m_spCamera->getName().c_str()),
                            QString::fromLocal8Bit(m_spCamera->getSerialNumber().c_str()));
    // Keep the name usable as a directory and file name.
    for (QChar& c : stem)
    {
        if (c == '/' || c == '\\' || c == ':' || c == '*' || c == '?' || c == '"' || c == '<' || c == '>' ||
            c == '|' || c.isSpace())
            c = '_';
    }
    return stem;
}

// ---------------------------------------------------------------- configuration
// The new values arrive on the GUI thread with the change signals and are
// applied on the worker, after whatever the worker is doing.

void CTavDevice::onAnswerTimeoutChanged(uint16_t ms)
{
    if (!m_bConnected || !isGigE())
        return;
    postJob([this, ms]() {
        const TSharedPtr<CInternalCamera> camera = getInternalDevice();
        if (!m_bConnected || !camera)
            return;
        if (!camera->setAnswerTimeout(ms))
            LOG_ERROR("set AnswerTimeout %u errror.", unsigned(ms));
    });
}

void CTavDevice::onHeartbeatIntervalChanged(uint16_t ms)
{
    if (!m_bConnected || !isGigE())
        return;
    postJob([this, ms]() {
        const TSharedPtr<CInternalCamera> camera = getInternalDevice();
        if (!m_bConnected || !camera)
            return;
        if (!camera->setHeartbeatIntervel(ms))
            LOG_ERROR("set HeartbeatInterval %u errror.", unsigned(ms));
    });
}

void CTavDevice::onInterPacketTimeoutChanged(uint32_t ms)
{
    if (!getStreamSource() || !isGigE())
        return;
    postJob([this, ms]() {
        const TSharedPtr<CInternalStreamSource> stream = getStreamSource();
        if (stream && !stream->setInterPacketTimeout(ms))
            LOG_ERROR("set InterPacketTimeout %u errror.", ms);
    });
}

void CTavDevice::onSingleResendMaxPackNumChanged(uint32_t count)
{
    if (!getStreamSource() || !isGigE())
        return;
    postJob([this, count]() {
        const TSharedPtr<CInternalStreamSource> stream = getStreamSource();
        if (stream && !stream->setSingleResendMaxPacketNum(count))
            LOG_ERROR("set SingleResendMaxPacketNum %u errror.", count);
    });
}

void CTavDevice::onMaximumLostPacketNumChanged(uint32_t count)
{
    if (!getStreamSource() || !isGigE())
        return;
    postJob([this, count]() {
        const TSharedPtr<CInternalStreamSource> stream = getStreamSource();
        if (stream && !stream->setMaxLostPacketNum(count))
            LOG_ERROR("set MaxLostPacketNum %u errror.", count);
    });
}
