#include "CTavDevice.h"

#include <QHostAddress>
#include <QThread>

#include <cstring>

#include "AccessStatusThread.h"
#include "CConfiguration.h"
#include "CDeviceConnectThread.h"
#include "CDeviceConnection.h"
#include "CDeviceEventBridge.h"
#include "CDeviceFeatures.h"
#include "CDeviceNames.h"
#include "CDeviceStream.h"
#include "Tavlog4cpp/TavLogMacros.h"

using namespace Vorlen::GenICam;
using Vorlen::Infra::CString;
using Vorlen::Memory::TSharedPtr;

namespace {
// Worker: takes a connection down: the subscriptions end, the stream stops
// and is released, the camera is disconnected (also after a loss, so that
// the library forgets the connection).
bool takeDown(CDeviceEventBridge& events, CDeviceStream& stream, const CInternalCameraPtr& camera)
{
    events.unsubscribe();
    const TSharedPtr<CInternalStreamSource> source = stream.source();
    stream.stopThread();
    if (source && source->isGrabbing() && !source->stopGrabbing())
        LOG_ERROR("stopGrabbing fail. [%s]", CDeviceFeatures::errorText().constData());
    stream.release();
    events.release();
    if (!camera)
    {
        LOG_ERROR("m_spCamera.get() is NULL!");
        return false;
    }
    const bool ok = camera->disConnect();
    if (!ok)
        LOG_ERROR("disConnect [%s] fail. [%s]", camera->getKey().c_str(), CDeviceFeatures::errorText().constData());
    return ok;
}

QByteArray numberText(long value)
{
    return QByteArray::number(qlonglong(value));
}
} // namespace

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

CTavDevice::CTavDevice()
    : QObject(nullptr),
      m_stream(std::make_shared<CDeviceStream>()),
      m_events(std::make_shared<CDeviceEventBridge>()),
      m_names(new CDeviceNames)
{
    registerMessageMetaTypes();
    registerFrameMetaTypes();
    m_connection.reset(new CDeviceConnection(*this));
    m_pAccessStatusThread = new AccessStatusThread(this);
}

CTavDevice::~CTavDevice()
{
    // No job holds the device any more, so its worker has nothing left to
    // do. Nothing here waits on the camera: a permission read under way is
    // left to end by itself, and a camera still open is closed by a last job
    // on the worker, which then ends by itself.
    m_pAccessStatusThread->retire();
    m_pAccessStatusThread = nullptr;
    QObject::disconnect(m_stream->thread(), nullptr, this, nullptr);

    const CInternalCameraPtr camera = getInternalDevice();
    const bool open = (camera && camera->isConnected()) || m_stream->source() || m_events->eventManager() ||
                      m_stream->thread()->isRunning();
    if (!open)
    {
        m_connection->endWorker(nullptr);
        return;
    }
    LOG_WARN("device released while open; its worker closes it. [%s]", getDeviceKey().toLocal8Bit().constData());
    m_stream->handOver(m_connection->worker());
    const std::shared_ptr<CDeviceStream> stream = m_stream;
    const std::shared_ptr<CDeviceEventBridge> events = m_events;
    m_connection->endWorker([stream, events, camera]() { takeDown(*events, *stream, camera); });
}

void CTavDevice::setDevice(TSharedPtr<ICamera>& camera)
{
    QMutexLocker locker(&m_mutex);
    m_spCamera = camera;
    m_strKey = camera ? QString::fromLocal8Bit(camera->getKey().c_str()) : QString();
}

TSharedPtr<ICamera> CTavDevice::getDevice() const
{
    QMutexLocker locker(&m_mutex);
    return m_spCamera;
}

TSharedPtr<CInternalCamera> CTavDevice::getInternalDevice() const
{
    return Vorlen::Memory::dynamicPointerCast<CInternalCamera>(getDevice());
}

void CTavDevice::getDeviceKey(QString& key) const
{
    key = getDeviceKey();
}

QString CTavDevice::getDeviceKey() const
{
    QMutexLocker locker(&m_mutex);
    return m_strKey;
}

void CTavDevice::init()
{
    if (m_bInitialized)
        return;
    m_bInitialized = true;

    connect(m_pAccessStatusThread, &AccessStatusThread::signalRefreshAccessStatus, this,
            &CTavDevice::onRefreshAccessStatusFinished, Qt::QueuedConnection);
    connect(this, &CTavDevice::device_offline, this, &CTavDevice::onDeviceOffline, Qt::QueuedConnection);

    // Frames stay on the retrieval thread until the view's own (queued)
    // connection; the record question must be answered before the decision.
    StreamRetrieveThread* thread = m_stream->thread();
    connect(thread, &StreamRetrieveThread::newFrame, this, &CTavDevice::newFrame, Qt::DirectConnection);
    connect(thread, &StreamRetrieveThread::signalGetRecordEnable, this, &CTavDevice::signalGetRecordEnable,
            Qt::DirectConnection);
    connect(thread, &StreamRetrieveThread::increaseDisplayFrame, this, &CTavDevice::increaseDisplayFrame,
            Qt::DirectConnection);

    if (CConfiguration* cfg = CConfiguration::getInstance())
    {
        connect(cfg, &CConfiguration::signalAnswerTimeoutChanged, this, &CTavDevice::onAnswerTimeoutChanged);
        connect(cfg, &CConfiguration::signalHeartbeatIntervalChanged, this, &CTavDevice::onHeartbeatIntervalChanged);
        connect(cfg, &CConfiguration::signalInterPacketTimeoutChanged, this,
                &CTavDevice::onInterPacketTimeoutChanged);
        connect(cfg, &CConfiguration::signalSingleResendMaxPackNumChanged, this,
                &CTavDevice::onSingleResendMaxPackNumChanged);
        connect(cfg, &CConfiguration::signalMaximumLostPacketNumChanged, this,
                &CTavDevice::onMaximumLostPacketNumChanged);
    }
}

CTavDevicePtr CTavDevice::self()
{
    return CTavDevicePtr(weak_from_this().lock());
}

bool CTavDevice::postJob(std::function<void()> job)
{
    return m_connection->post(std::move(job));
}

void CTavDevice::emitStatus(EN_MESSAGE_TYPE type)
{
    emit device_status_changed(type, self());
}

EInterfaceType CTavDevice::interfaceType() const
{
    const TSharedPtr<ICamera> camera = getDevice();
    return camera ? camera->getType() : typeUndefined;
}

bool CTavDevice::isConnectThreadRunning() const
{
    return m_connection->isBusy();
}

bool CTavDevice::waitForWorker(int timeoutMs)
{
    return m_connection->waitIdle(timeoutMs);
}

CTavDevice::EConnectionState CTavDevice::connectionState() const
{
    return m_connection->state();
}

bool CTavDevice::isConnected() const
{
    return m_connection->isConnected();
}

bool CTavDevice::isClosing() const
{
    return isDisconnecting() || m_connection->isCloseAfterConnect();
}

bool CTavDevice::isStreamRequested() const
{
    return m_connection->isStreamRequested();
}

void CTavDevice::setCurFile(const QString& file)
{
    QMutexLocker locker(&m_mutex);
    m_strCurFile = file;
}

QString CTavDevice::getCurFile() const
{
    QMutexLocker locker(&m_mutex);
    return m_strCurFile;
}

// ---------------------------------------------------------------- connection

bool CTavDevice::openDevice(bool bSync)
{
    return m_connection->open(bSync);
}

bool CTavDevice::closeDevice(bool bSync)
{
    return m_connection->close(bSync);
}

void CTavDevice::onDeviceConnect(bool ok)
{
    m_connection->connectFinished(ok);
}

void CTavDevice::onDeviceDisConnect(bool ok)
{
    m_connection->disconnectFinished(ok);
}

void CTavDevice::onDeviceOffline()
{
    m_connection->lost();
}

bool CTavDevice::connectOnWorker(const CDeviceLinkSettings& link)
{
    const CInternalCameraPtr camera = getInternalDevice();
    if (camera.get() == nullptr)
    {
        LOG_ERROR("m_spCamera.get() is NULL!");
        return false;
    }
    // Control access: the camera can be used by others for monitoring only.
    if (!camera->connect(accessPermissionControl))
    {
        LOG_ERROR("connect [%s] fail. [%s]", camera->getKey().c_str(), CDeviceFeatures::errorText().constData());
        return false;
    }

    m_connection->setConnected(true);
    // The name shown for the device carries the user id: read it here, so
    // the panels never ask the camera for it.
    readUserIdFromCamera();
    emitStatus(MSG_DEVICE_CONNECTED);

    if (camera->getType() == typeGigEVision)
        link.applyToCamera(camera);
    m_events->attach(camera, weak_from_this(), getDeviceKey());

    CIntNode hostPort(camera, "GevSCPHostPort");
    if (hostPort.isValid())
    {
        long port = 0;
        if (hostPort.getValue(port))
            m_nGevSCPHostPort = static_cast<unsigned int>(port);
        else
            LOG_ERROR("get GevSCPHostPort fail. [%s]", CDeviceFeatures::errorText().constData());
    }
    m_stream->create(camera);
    return true;
}

bool CTavDevice::disconnectOnWorker()
{
    const bool ok = takeDown(*m_events, *m_stream, getInternalDevice());
    m_connection->setConnected(false);
    m_names->setUserId(CString());
    return ok;
}

void CTavDevice::onRefreshAccessStatusFinished(ECameraAccessPermission permission)
{
    m_eAccessPermission = permission;
    emitStatus(MSG_ACCESS_STATUS_CHANGED);
}

void CTavDevice::refreshAccessPermission()
{
    const CInternalCameraPtr camera = getInternalDevice();
    if (!camera || camera->getType() != typeGigEVision)
        return;
    m_pAccessStatusThread->RefreshAccessStatus(camera);
}

// ---------------------------------------------------------------- stream

bool CTavDevice::openStream()
{
    return m_connection->openStream();
}

bool CTavDevice::openStreamOnWorker(const CDeviceLinkSettings& settings)
{
    if (!isConnected() || !m_stream->source())
    {
        LOG_ERROR("open stream error. isConnected: %d.", int(isConnected()));
        return false;
    }
    if (!m_stream->open(getDevice(), settings))
        return false;
    // Only a stream that really started is announced.
    emit signalStartGrab();
    emitStatus(MSG_STREAM_OPENED);
    LOG_DEBUG("end to open a stream channel.");
    return true;
}

bool CTavDevice::closeStream()
{
    return m_connection->closeStream();
}

void CTavDevice::closeStreamOnWorker()
{
    if (!m_stream->close())
        return;
    emitStatus(MSG_STREAM_CLOSED);
    LOG_DEBUG("end closeStream.");
}

void CTavDevice::stopStreamThread()
{
    m_stream->stopThread();
}

StreamRetrieveThread* CTavDevice::GetStreamThread()
{
    return m_stream->thread();
}

TSharedPtr<CInternalStreamSource> CTavDevice::getStreamSource() const
{
    return m_stream->source();
}

TSharedPtr<CInternalEventManager> CTavDevice::getEventManager() const
{
    return m_events->eventManager();
}

bool CTavDevice::isGrabing() const
{
    return m_stream->isGrabbing();
}

bool CTavDevice::isDriverInstalled(bool& installed)
{
    const CInternalCameraPtr camera = getInternalDevice();
    if (!camera)
        return false;
    if (!camera->isDriverInstalled(installed))
    {
        LOG_ERROR("isDriverInstalled fail. [%s]", CDeviceFeatures::errorText().constData());
        return false;
    }
    return true;
}

bool CTavDevice::isCompressionModeJpeg()
{
    return CDeviceFeatures::isCompressionModeJpeg(getDevice());
}

void CTavDevice::setShowChunkData(bool show)
{
    m_stream->thread()->setShowTrunkData(show);
}

void CTavDevice::setDisplayFPS(int fps)
{
    m_stream->thread()->setDisplayFPS(fps);
}

void CTavDevice::getStreamStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames,
                                    QString& bandwidth)
{
    m_stream->getStatistic(receiveFps, displayFps, totalFrames, bandwidth);
}

void CTavDevice::getStreamStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames,
                                    QString& bandwidth, QString& errorText, unsigned long long& errorCount)
{
    m_stream->getStatistic(receiveFps, displayFps, totalFrames, bandwidth, &errorText, &errorCount);
}

bool CTavDevice::getStatisticsInfo(StreamStatisticsInfo& info)
{
    return m_stream->getStatisticsInfo(info);
}

bool CTavDevice::doPropertyReset()
{
    return CDeviceFeatures::loadFactoryUserSet(getDevice());
}

// ---------------------------------------------------------------- features

CInternalParameterNodePtr CTavDevice::getParam(const char* name)
{
    return Vorlen::Memory::makeShared<CInternalParameterNode>(getDevice(), name);
}

bool CTavDevice::getParaIntValue(const char* name, long& value)
{
    return CDeviceFeatures::call<CIntNode>(getDevice(), name, "get", [&](CIntNode& n) { return n.getValue(value); });
}

bool CTavDevice::setParaIntValue(const char* name, long value)
{
    return CDeviceFeatures::call<CIntNode>(
        getDevice(), name, "set", [value](CIntNode& n) { return n.setValue(value); }, numberText(value));
}

bool CTavDevice::getParaEnumValue(const char* name, unsigned long& value)
{
    return CDeviceFeatures::call<CEnumNode>(getDevice(), name, "get",
                                            [&](CEnumNode& n) { return n.getEnumValue(value); });
}

bool CTavDevice::getParaEnumValue(const char* name, QString& symbol)
{
    CString value;
    if (!CDeviceFeatures::call<CEnumNode>(getDevice(), name, "get",
                                          [&](CEnumNode& n) { return n.getValueSymbol(value); }))
        return false;
    symbol = QString::fromLocal8Bit(value.c_str());
    return true;
}

bool CTavDevice::setParamEnumValue(const char* name, unsigned long value)
{
    return CDeviceFeatures::call<CEnumNode>(
        getDevice(), name, "set", [value](CEnumNode& n) { return n.setEnumValue(value); },
        QByteArray::number(qulonglong(value)));
}

bool CTavDevice::getParaBoolValue(const char* name, bool& value)
{
    return CDeviceFeatures::call<CBoolNode>(getDevice(), name, "get", [&](CBoolNode& n) { return n.getValue(value); });
}

bool CTavDevice::setParaBoolValue(const char* name, bool value)
{
    return CDeviceFeatures::call<CBoolNode>(
        getDevice(), name, "set", [value](CBoolNode& n) { return n.setValue(value); }, value ? "1" : "0");
}

bool CTavDevice::getParaStringValue(const char* name, QString& value, int& maxLength)
{
    return CDeviceFeatures::readString(getDevice(), name, value, maxLength);
}

bool CTavDevice::setParaStringValue(const char* name, QString value)
{
    const QByteArray text = value.toLocal8Bit();
    if (!CDeviceFeatures::call<CStringNode>(getDevice(), name, "set", [&text](CStringNode& n) {
            return n.setValue(CString(text.constData()));
        }))
        return false;
    // The caller already waits on the camera: read back what it kept.
    if (std::strcmp(name, "DeviceUserID") == 0)
        readUserIdFromCamera();
    return true;
}

bool CTavDevice::getParamEnumList(const char* name, QStringList& symbols)
{
    return CDeviceFeatures::readEnumSymbols(getDevice(), name, symbols);
}

bool CTavDevice::setPersistentIp(const QString& ip, const QString& mask, const QString& gateway)
{
    bool ok = setParaBoolValue("GevCurrentIPConfigurationPersistentIP", true);
    const QString addresses[] = {ip, mask, gateway};
    const char* names[] = {"GevPersistentIPAddress", "GevPersistentSubnetMask", "GevPersistentDefaultGateway"};
    for (int i = 0; i < 3; ++i)
        ok = setParaIntValue(names[i], static_cast<long>(QHostAddress(addresses[i]).toIPv4Address())) && ok;
    return ok;
}

// ---------------------------------------------------------------- names

bool CTavDevice::generateDeviceName(CString& name)
{
    return CDeviceNames::deviceName(getDevice(), name);
}

bool CTavDevice::generateDeviceNameByUserID(CString& name)
{
    return m_names->nameByUserId(getDevice(), isConnected(), name);
}

QString CTavDevice::cachedUserId() const
{
    return m_names->userId();
}

void CTavDevice::readUserIdFromCamera()
{
    m_names->setUserId(CDeviceFeatures::readUserId(getDevice()));
}

void CTavDevice::refreshUserId()
{
    if (!isConnected())
        return;
    postJob([this]() {
        if (isConnected())
            readUserIdFromCamera();
    });
}

QString CTavDevice::getDeviceSaveName()
{
    return CDeviceNames::saveName(getDevice());
}

// ---------------------------------------------------------------- configuration
// The new values arrive on the GUI thread with the change signals and are
// applied on the worker, after whatever the worker is doing.

void CTavDevice::onAnswerTimeoutChanged(uint16_t ms)
{
    applyLinkSetting(CDeviceLinkSettings::keyAnswerTimeout, ms);
}

void CTavDevice::onHeartbeatIntervalChanged(uint16_t ms)
{
    applyLinkSetting(CDeviceLinkSettings::keyHeartbeatInterval, ms);
}

void CTavDevice::onInterPacketTimeoutChanged(uint32_t ms)
{
    applyLinkSetting(CDeviceLinkSettings::keyInterPacketTimeout, ms);
}

void CTavDevice::onSingleResendMaxPackNumChanged(uint32_t count)
{
    applyLinkSetting(CDeviceLinkSettings::keySingleResendMaxPackNum, count);
}

void CTavDevice::onMaximumLostPacketNumChanged(uint32_t count)
{
    applyLinkSetting(CDeviceLinkSettings::keyMaximumLostPacketNum, count);
}

void CTavDevice::applyLinkSetting(CDeviceLinkSettings::EKey key, uint32_t value)
{
    // Camera settings need a connection, stream settings a stream source.
    const bool onStream = CDeviceLinkSettings::isStreamSetting(key);
    if (interfaceType() != typeGigEVision || !(onStream ? bool(getStreamSource()) : isConnected()))
        return;
    postJob([this, key, value, onStream]() {
        if (onStream || isConnected())
            CDeviceLinkSettings::apply(key, value, getInternalDevice(), getStreamSource());
    });
}
