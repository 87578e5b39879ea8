#include "CTavDevice.h"

#include <QHostAddress>
#include <QThread>

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

CTavDevicePtr CTavDevice::create(IMsgSink* sink)
{
    return CTavDevicePtr(new CTavDevice(sink), [](CTavDevice* device) {
        // A QObject is deleted on its own thread; a last reference dropped on
        // a worker or library thread hands the deletion over.
        if (QThread::currentThread() == device->thread())
            delete device;
        else
            device->deleteLater();
    });
}

CTavDevice::CTavDevice(IMsgSink* sink) : QObject(nullptr), m_pMsgSink(sink)
{
    registerMessageMetaTypes();
    registerFrameMetaTypes();
    m_pStreamThread = new StreamRetrieveThread(this);
    m_pConnectThread = new CDeviceConnectThread(this);
    m_pAccessStatusThread = new AccessStatusThread(this);
}

CTavDevice::~CTavDevice()
{
    m_pStreamThread->stop();
    m_pStreamThread->wait();
    m_pConnectThread->wait();
    m_pAccessStatusThread->wait();

    unsubscribeEvents();
    if (m_ptrStream && m_ptrStream->isGrabbing())
        m_ptrStream->stopGrabbing();
    m_pStreamThread->setStream(nullptr);
    m_pStreamThread->setDevice(nullptr);
    m_ptrStream.reset();
    m_ptrEventManager.reset();

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

    connect(m_pConnectThread, &CDeviceConnectThread::device_connect, this, &CTavDevice::onDeviceConnect,
            Qt::QueuedConnection);
    connect(m_pConnectThread, &CDeviceConnectThread::device_disconnect, this, &CTavDevice::onDeviceDisConnect,
            Qt::QueuedConnection);
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
    return m_pConnectThread->isRunning();
}

TSharedPtr<CInternalStreamSource> CTavDevice::getStreamSource() const
{
    return m_ptrStream;
}

TSharedPtr<CInternalEventManager> CTavDevice::getEventManager() const
{
    return m_ptrEventManager;
}

bool CTavDevice::isGrabing() const
{
    const TSharedPtr<CInternalStreamSource> stream = m_ptrStream;
    return stream && stream->isGrabbing();
}

// ---------------------------------------------------------------- connection

bool CTavDevice::openDevice(bool bSync)
{
    const QByteArray key = m_strKey.toLocal8Bit();
    LOG_DEBUG("begin to openDevice. [%s]", key.constData());
    if (!m_spCamera)
    {
        LOG_ERROR("m_spCamera.get() is NULL!");
        return false;
    }
    if (m_bConnected)
    {
        LOG_WARN("device is already connected. [%s]", key.constData());
        return false;
    }
    m_bConnecting = true;

    if (m_pConnectThread->isRunning())
        return false;

    emitStatus(MSG_DEVICE_CONNECTING);

    if (bSync)
    {
        const TSharedPtr<CInternalCamera> camera = getInternalDevice();
        const bool ok = camera && camera->connect(accessPermissionControl);
        if (!ok)
            LOG_ERROR("connect [%s] fail. [%s]", key.constData(), errorText().constData());
        onDeviceConnect(ok);
        return ok;
    }

    m_pConnectThread->setDevice(m_spCamera, CONNECT_TYPE_CONNECT);
    m_pConnectThread->start(QThread::InheritPriority);
    return true;
}

void CTavDevice::onDeviceConnect(bool ok)
{
    m_bConnecting = false;
    if (!ok)
    {
        emitStatus(MSG_DEVICE_CONNECT_FAILED);
        return;
    }

    m_bConnected = true;
    emitStatus(MSG_DEVICE_CONNECTED);

    const CConfiguration* cfg = CConfiguration::getInstance();
    const TSharedPtr<CInternalCamera> camera = getInternalDevice();
    if (camera && isGigE())
    {
        if (!camera->setAnswerTimeout(cfg->iAnswerTimeout))
            LOG_ERROR("setAnswerTimeout %u fail. [%s]", unsigned(cfg->iAnswerTimeout), errorText().constData());
        if (!camera->setHeartbeatIntervel(cfg->iHeartbeatIval))
            LOG_ERROR("setHeartbeatIntervel %u fail. [%s]", unsigned(cfg->iHeartbeatIval), errorText().constData());
    }

    m_ptrEventManager = Vorlen::Memory::makeShared<CInternalEventManager>(m_spCamera);
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

    m_ptrStream = Vorlen::Memory::makeShared<CInternalStreamSource>(m_spCamera, 0);
    if (!m_ptrStream->resetStatisticsInfo())
        LOG_ERROR("resetStatisticsInfo fail. [%s]", errorText().constData());
}

void CTavDevice::subscribeEvents()
{
    if (!m_ptrEventManager)
        return;

    // Library threads call these; they only emit. The weak reference keeps a
    // device that is going away from being touched.
    const std::weak_ptr<CTavDevice> weak = weak_from_this();
    const QString key = m_strKey;

    if (!m_ptrEventManager->subscribeConnectArgs([weak, key](const SConnectArg& arg) {
            if (arg.event != connectEventOffline)
                return;
            if (const std::shared_ptr<CTavDevice> device = weak.lock())
                emit device->device_offline(key);
        }))
        LOG_ERROR("subscribeConnectArgs fail. [%s]", errorText().constData());

    if (!m_ptrEventManager->subscribeParamUpdate([weak, key](const SParamUpdataArg& arg) {
            if (const std::shared_ptr<CTavDevice> device = weak.lock())
                emit device->device_param_update(arg, key);
        }))
        LOG_ERROR("subscribeParamUpdate fail. [%s]", errorText().constData());

    if (!m_ptrEventManager->subscribeStreamArg([weak, key](const SStreamArg& arg) {
            if (const std::shared_ptr<CTavDevice> device = weak.lock())
                emit device->device_stream_event(arg, key);
        }))
        LOG_ERROR("subscribeStreamArg fail. [%s]", errorText().constData());

    if (!m_ptrEventManager->subscribeMsgChannel([weak, key](const SMsgChannelArg& arg) {
            if (const std::shared_ptr<CTavDevice> device = weak.lock())
                emit device->device_msg_channel(arg, key);
        }))
        LOG_ERROR("subscribeMsgChannel fail. [%s]", errorText().constData());
}

void CTavDevice::unsubscribeEvents()
{
    const TSharedPtr<CInternalEventManager> events = m_ptrEventManager;
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
    m_ptrStream.reset();
    m_ptrEventManager.reset();
}

bool CTavDevice::closeDevice(bool bSync)
{
    const QByteArray key = m_strKey.toLocal8Bit();
    LOG_DEBUG("begin to closeDevice. [%s]", key.constData());
    if (m_pConnectThread->isRunning())
    {
        // A connection or disconnection is still under way; its result will
        // set the state.
        LOG_ERROR("connect thread is running, closeDevice ignored. [%s]", key.constData());
        return false;
    }

    m_bDisconnecting = true;
    emitStatus(MSG_DEVICE_DISCONNECTING);
    closeStream();
    unsubscribeEvents();

    if (bSync)
    {
        const TSharedPtr<CInternalCamera> camera = getInternalDevice();
        if (camera && !camera->disConnect())
            LOG_ERROR("disConnect [%s] fail. [%s]", key.constData(), errorText().constData());
        onDeviceDisConnect(true);
    }
    else
    {
        m_pConnectThread->setDevice(m_spCamera, CONNECT_TYPE_DISCONNECT);
        m_pConnectThread->start(QThread::InheritPriority);
    }

    LOG_DEBUG("end to closeDevice. [%s]", key.constData());
    return true;
}

void CTavDevice::onDeviceDisConnect(bool ok)
{
    if (m_bOfflineCleanup)
    {
        // End of the clean-up after a loss: the state was cleared and
        // message 6 sent when the loss was reported.
        m_bOfflineCleanup = false;
        m_bConnecting = false;
        return;
    }
    if (!ok)
        LOG_ERROR("disconnect device fail. [%s]", m_strKey.toLocal8Bit().constData());
    releaseConnectionObjects();
    m_bConnected = false;
    m_bConnecting = false;
    m_bDisconnecting = false;
    emitStatus(MSG_DEVICE_DISCONNECTED);
}

void CTavDevice::onDeviceOffline()
{
    // A late report after the device was closed changes nothing.
    if (!m_bConnected)
        return;

    const QByteArray key = m_strKey.toLocal8Bit();
    LOG_WARN("Device offline.Device Key[%s]", key.constData());

    unsubscribeEvents();
    const TSharedPtr<CInternalStreamSource> stream = m_ptrStream;
    const TSharedPtr<CInternalEventManager> events = m_ptrEventManager;
    releaseConnectionObjects();
    m_bConnected = false;
    m_bConnecting = false;
    m_bDisconnecting = false;

    // The dead connection is taken down on the connect worker: stopping the
    // stream of a vanished camera waits for its timeouts, and the library
    // must forget the connection before the camera can be connected again.
    // A close already under way does the same.
    if (!m_pConnectThread->isRunning())
    {
        m_bOfflineCleanup = true;
        m_pConnectThread->setDevice(m_spCamera, CONNECT_TYPE_DISCONNECT);
        m_pConnectThread->setReleaseFirst(stream, events);
        m_pConnectThread->start(QThread::InheritPriority);
    }

    emitStatus(MSG_DEVICE_OFFLINE);
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
    const TSharedPtr<CInternalStreamSource> stream = m_ptrStream;
    if (!m_bConnected || !stream)
    {
        LOG_ERROR("open stream error. isConnected: %d.", int(m_bConnected));
        return false;
    }
    if (stream->isGrabbing())
    {
        LOG_ERROR("camera is already grabbing.");
        return false;
    }

    m_pStreamThread->setStream(stream);
    m_pStreamThread->setDevice(getInternalDevice());
    bool installed = true;
    if (isDriverInstalled(installed))
        m_pStreamThread->setDriverInstalled(installed);
    emit signalStartGrab();

    long width = 0;
    long height = 0;
    if (getParaIntValue("Width", width))
        m_pStreamThread->setWidthReg(width);
    if (getParaIntValue("Height", height))
        m_pStreamThread->setHeightReg(height);
    m_pStreamThread->setCompressionModeJpeg(isCompressionModeJpeg());

    m_pStreamThread->Init();
    m_pStreamThread->start(QThread::TimeCriticalPriority);

    const CConfiguration* cfg = CConfiguration::getInstance();
    if (!stream->setBufferCount(cfg->streamingBufferCount))
        LOG_ERROR("set buffer count %u errror.", cfg->streamingBufferCount);
    if (isGigE())
    {
        if (!stream->setInterPacketTimeout(cfg->iInterPacketTimeout))
            LOG_ERROR("set InterPacketTimeout %u errror.", cfg->iInterPacketTimeout);
        if (!stream->setSingleResendMaxPacketNum(cfg->iSingleResendMaxPackNum))
            LOG_ERROR("set SingleResendMaxPacketNum %u errror.", cfg->iSingleResendMaxPackNum);
        if (!stream->setMaxLostPacketNum(cfg->iMaximumLostPacketNum))
            LOG_ERROR("set MaxLostPacketNum %u errror.", cfg->iMaximumLostPacketNum);
    }
    else if (isUsb())
    {
        if (!stream->setUrbTransfer(cfg->streamingUrbNumberCount, cfg->streamingUrbSizeCount))
            LOG_ERROR("set urb number count %u, urb size count %u errror.", cfg->streamingUrbNumberCount,
                      cfg->streamingUrbSizeCount);
    }

    if (!stream->startGrabbing())
    {
        LOG_ERROR("[%s]", errorText().constData());
        stopStreamThread();
        return false;
    }

    emitStatus(MSG_STREAM_OPENED);
    LOG_DEBUG("end to open a stream channel.");
    return true;
}

bool CTavDevice::closeStream()
{
    LOG_DEBUG("begin closeStream.");
    const TSharedPtr<CInternalStreamSource> stream = m_ptrStream;
    if (stream.get() == nullptr)
    {
        LOG_ERROR("m_ptrStream.get() is NULL.");
        stopStreamThread();
        return false;
    }
    stopStreamThread();
    if (stream->isGrabbing() && !stream->stopGrabbing())
        LOG_ERROR("stopGrabbing fail. [%s]", errorText().constData());
    emitStatus(MSG_STREAM_CLOSED);
    LOG_DEBUG("end closeStream.");
    return true;
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
    const TSharedPtr<CInternalStreamSource> stream = m_ptrStream;
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
        CStringNode node(m_spCamera, "DeviceUserID");
        if (node.isValid() && node.isReadable())
            node.getValue(userId);
    }
    if (userId.empty())
        return generateDeviceName(name);
    name = userId + CString(" (") + m_spCamera->getSerialNumber() + CString(")");
    return true;
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

void CTavDevice::onAnswerTimeoutChanged(uint16_t ms)
{
    const TSharedPtr<CInternalCamera> camera = getInternalDevice();
    if (!m_bConnected || !camera || !isGigE())
        return;
    if (!camera->setAnswerTimeout(ms))
        LOG_ERROR("set AnswerTimeout %u errror.", unsigned(ms));
}

void CTavDevice::onHeartbeatIntervalChanged(uint16_t ms)
{
    const TSharedPtr<CInternalCamera> camera = getInternalDevice();
    if (!m_bConnected || !camera || !isGigE())
        return;
    if (!camera->setHeartbeatIntervel(ms))
        LOG_ERROR("set HeartbeatInterval %u errror.", unsigned(ms));
}

void CTavDevice::onInterPacketTimeoutChanged(uint32_t ms)
{
    const TSharedPtr<CInternalStreamSource> stream = m_ptrStream;
    if (!stream || !isGigE())
        return;
    if (!stream->setInterPacketTimeout(ms))
        LOG_ERROR("set InterPacketTimeout %u errror.", ms);
}

void CTavDevice::onSingleResendMaxPackNumChanged(uint32_t count)
{
    const TSharedPtr<CInternalStreamSource> stream = m_ptrStream;
    if (!stream || !isGigE())
        return;
    if (!stream->setSingleResendMaxPacketNum(count))
        LOG_ERROR("set SingleResendMaxPacketNum %u errror.", count);
}

void CTavDevice::onMaximumLostPacketNumChanged(uint32_t count)
{
    const TSharedPtr<CInternalStreamSource> stream = m_ptrStream;
    if (!stream || !isGigE())
        return;
    if (!stream->setMaxLostPacketNum(count))
        LOG_ERROR("set MaxLostPacketNum %u errror.", count);
}
