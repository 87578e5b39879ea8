#include "CDeviceManager.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include "CDisconnectAllThread.h"
#include "CDiscoveryDevicesThread.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/TavLogMacros.h"

using namespace Vorlen::GenICam;

namespace {
QMutex g_instanceMutex;
CDeviceManager* g_instance = nullptr;
bool g_shutDown = false;
}

CDeviceManager* CDeviceManager::getInstance()
{
    QMutexLocker locker(&g_instanceMutex);
    if (!g_instance && !g_shutDown)
    {
        g_instance = new CDeviceManager();
        // Whatever is still open when the application ends lets its camera go.
        static bool postRoutineAdded = false;
        if (!postRoutineAdded && QCoreApplication::instance())
        {
            postRoutineAdded = true;
            qAddPostRoutine(&CDeviceManager::destroyInstance);
        }
    }
    return g_instance;
}

CDeviceManager* CDeviceManager::existingInstance()
{
    QMutexLocker locker(&g_instanceMutex);
    return g_instance;
}

void CDeviceManager::destroyInstance()
{
    CDeviceManager* instance = nullptr;
    {
        QMutexLocker locker(&g_instanceMutex);
        instance = g_instance;
        g_instance = nullptr;
    }
    delete instance;
}

void CDeviceManager::shutdown(int waitMs)
{
    {
        QMutexLocker locker(&g_instanceMutex);
        g_shutDown = true;
    }
    QElapsedTimer clock;
    clock.start();
    CDeviceManager* manager = existingInstance();
    if (manager)
    {
        for (const CTavDevicePtr& device : manager->getAllDevices())
        {
            const CTavDevice::EConnectionState state = device->connectionState();
            if (state == CTavDevice::stateConnected || state == CTavDevice::stateConnecting)
                device->closeDevice(false);
        }
        // The results come back as queued calls: handle them while waiting.
        while (manager->getActiveDeviceCount() != 0 && clock.elapsed() < waitMs)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        if (manager->getActiveDeviceCount() != 0)
            LOG_WARN("%d device(s) still closing after %d ms; left to their workers",
                     manager->getActiveDeviceCount(), waitMs);
    }
    // A disconnect-all under way ends by its own time limit.
    CDisconnectAllThread::shutdownInstance(CDisconnectAllThread::kTimeoutMs + 2 * CDisconnectAllThread::kPollMs);
    destroyInstance();
    CDiscoveryDevicesThread::shutdownInstance();
}

CDeviceManager::CDeviceManager() : QObject(nullptr)
{
    registerMessageMetaTypes();
    m_pDiscovery = CDiscoveryDevicesThread::getInstance();
    connect(m_pDiscovery, &CDiscoveryDevicesThread::discoveryDevicesFinished, this,
            &CDeviceManager::on_discoveryDevicesFinished);
    m_pDiscovery->start(QThread::InheritPriority);
    m_pDiscovery->StartDiscovery(QString(), 11);
}

CDeviceManager::~CDeviceManager()
{
    // A disconnect-all still under way polls this manager; let it end first
    // (it gives up on its own after its time limit).
    if (CDisconnectAllThread* closer = CDisconnectAllThread::existingInstance())
        closer->wait(static_cast<unsigned long>(CDisconnectAllThread::kTimeoutMs + 2 * CDisconnectAllThread::kPollMs));

    disconnect(m_pDiscovery, nullptr, this, nullptr);
    m_pDiscovery->stop();

    QMap<QString, CTavDevicePtr> devices;
    {
        QMutexLocker locker(&m_mapMutex);
        devices.swap(m_mapDevices);
    }
    for (const CTavDevicePtr& device : devices)
    {
        disconnectDevice(device);
        // A device whose worker is still busy (a camera that does not
        // answer) is left to it: the worker holds the device until done.
        if (device->isConnectThreadRunning())
        {
            LOG_WARN("device still busy at shutdown, left to its worker. [%s]",
                     device->getDeviceKey().toLocal8Bit().constData());
            continue;
        }
        const CTavDevice::EConnectionState state = device->connectionState();
        if (state == CTavDevice::stateConnected || state == CTavDevice::stateConnecting)
            device->closeDevice(true);
    }
    devices.clear();

    CDiscoveryDevicesThread::destroyInstance();
}

CTavDevicePtr CDeviceManager::getDeviceByKey(const QString& key)
{
    QMutexLocker locker(&m_mapMutex);
    return m_mapDevices.value(key);
}

QMap<QString, CTavDevicePtr> CDeviceManager::getAllDevices()
{
    QMutexLocker locker(&m_mapMutex);
    return m_mapDevices;
}

int CDeviceManager::getOpenedDeviceCount()
{
    QMutexLocker locker(&m_mapMutex);
    int count = 0;
    for (const CTavDevicePtr& device : m_mapDevices)
    {
        if (device && device->isConnected())
            ++count;
    }
    return count;
}

int CDeviceManager::getActiveDeviceCount()
{
    QMutexLocker locker(&m_mapMutex);
    int count = 0;
    for (const CTavDevicePtr& device : m_mapDevices)
    {
        if (device && (device->connectionState() != CTavDevice::stateDisconnected || device->isConnected()))
            ++count;
    }
    return count;
}

void CDeviceManager::refreshDeviceMap(const QString& ip, int flags)
{
    m_pDiscovery->StartDiscovery(ip, flags);
}

void CDeviceManager::connectDevice(const CTavDevicePtr& device)
{
    CTavDevice* d = device.get();
    connect(d, &CTavDevice::device_param_update, this, &CDeviceManager::on_Device_Param_Update);
    connect(d, &CTavDevice::device_stream_event, this, &CDeviceManager::on_Device_Stream_Event);
    connect(d, &CTavDevice::device_msg_channel, this, &CDeviceManager::on_Device_Msg_Channel);
    connect(d, &CTavDevice::device_status_changed, this, &CDeviceManager::on_Device_Status_Changed);
}

void CDeviceManager::disconnectDevice(const CTavDevicePtr& device)
{
    CTavDevice* d = device.get();
    disconnect(d, &CTavDevice::device_param_update, this, &CDeviceManager::on_Device_Param_Update);
    disconnect(d, &CTavDevice::device_stream_event, this, &CDeviceManager::on_Device_Stream_Event);
    disconnect(d, &CTavDevice::device_msg_channel, this, &CDeviceManager::on_Device_Msg_Channel);
    disconnect(d, &CTavDevice::device_status_changed, this, &CDeviceManager::on_Device_Status_Changed);
}

void CDeviceManager::on_discoveryDevicesFinished(bool ok)
{
    Q_UNUSED(ok);
    const CameraPtrVector cameras = m_pDiscovery->getVecCamera();

    QMap<QString, CTavDevicePtr> previous = getAllDevices();
    QMap<QString, CTavDevicePtr> devices;
    for (const auto& camera : cameras)
    {
        if (!camera)
            continue;
        const QString key = QString::fromLocal8Bit(camera->getKey().c_str());
        if (key.isEmpty() || devices.contains(key))
            continue;

        CTavDevicePtr device = previous.take(key);
        if (device)
        {
            // The library keeps one object per camera; follow it should it
            // ever hand out another one, but never under an open connection.
            if (device->getDevice() != camera && !device->isConnected() && !device->isConnecting())
            {
                Vorlen::Memory::TSharedPtr<ICamera> handle = camera;
                device->setDevice(handle);
            }
            // The camera answered again: its user id may have changed.
            device->refreshUserId();
        }
        else
        {
            device = CTavDevice::create();
            Vorlen::Memory::TSharedPtr<ICamera> handle = camera;
            device->setDevice(handle);
            device->init();
            connectDevice(device);
        }
        devices.insert(key, device);
    }

    // Cameras that did not answer: an open or opening device stays until it
    // is closed; the others go.
    for (auto it = previous.begin(); it != previous.end(); ++it)
    {
        const CTavDevicePtr& device = it.value();
        if (device->isConnected() || device->isConnecting() || device->isDisconnecting() ||
            device->isConnectThreadRunning())
            devices.insert(it.key(), device);
        else
            disconnectDevice(device);
    }

    {
        QMutexLocker locker(&m_mapMutex);
        m_mapDevices.swap(devices);
    }
    // The dropped devices are released here, outside the lock.
    devices.clear();
    previous.clear();

    CTavMessagePtr msg = Vorlen::Memory::makeShared<CTavMessage>();
    msg->type = MSG_DISCOVERY_FINISHED;
    m_subject.Notify(msg);
    emit discoveryDevicesFinished();
}

void CDeviceManager::on_Device_Param_Update(const SParamUpdataArg arg, QString key)
{
    CTavMessagePtr msg = Vorlen::Memory::makeShared<CTavMessage>();
    msg->type = MSG_PARAM_UPDATE;
    msg->device = getDeviceByKey(key);
    if (!msg->device)
        return;
    msg->paramUpdateArg = arg;
    m_subject.Notify(msg);
}

void CDeviceManager::on_Device_Stream_Event(const SStreamArg arg, QString key)
{
    CTavMessagePtr msg = Vorlen::Memory::makeShared<CTavMessage>();
    msg->type = MSG_STREAM_EVENT;
    msg->device = getDeviceByKey(key);
    if (!msg->device)
        return;
    msg->streamArg = arg;
    m_subject.Notify(msg);
}

void CDeviceManager::on_Device_Msg_Channel(const SMsgChannelArg arg, QString key)
{
    CTavMessagePtr msg = Vorlen::Memory::makeShared<CTavMessage>();
    msg->type = MSG_MSG_CHANNEL;
    msg->device = getDeviceByKey(key);
    if (!msg->device)
        return;
    msg->msgChannelArg = arg;
    m_subject.Notify(msg);
}

void CDeviceManager::on_Device_Status_Changed(EN_MESSAGE_TYPE type, CTavDevicePtr device)
{
    QString key;
    if (device)
        device->getDeviceKey(key);

    CTavMessagePtr msg = Vorlen::Memory::makeShared<CTavMessage>();
    msg->type = type;
    msg->device = getDeviceByKey(key);
    if (!msg->device)
        msg->device = device;
    LOG_DEBUG("notify Device_Status_Changed. MessageType[%d] Device Key[%s]", int(type),
              key.toLocal8Bit().constData());
    m_subject.Notify(msg);
}
