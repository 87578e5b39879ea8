#include "CDeviceManager.h"

#include <algorithm>

#include "CDiscoveryDevicesThread.h"
#include "CSingletonSlot.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/TavLogMacros.h"

using namespace Vorlen::GenICam;

CDeviceManager* CDeviceManager::getInstance()
{
    return CSingletonSlot<CDeviceManager>::instance([]() { return new CDeviceManager(); });
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
    // The discovery worker outlives the manager (the owner ends it next).
    disconnect(m_pDiscovery, nullptr, this, nullptr);

    QMap<QString, CTavDevicePtr> devices;
    {
        QMutexLocker locker(&m_mapMutex);
        devices.swap(m_mapDevices);
    }
    for (const CTavDevicePtr& device : qAsConst(devices))
    {
        disconnectDevice(device);
        // The close runs on the device's own worker, which keeps the device
        // until it is done; a device still connecting closes after that.
        const CTavDevice::EConnectionState state = device->connectionState();
        if (state == CTavDevice::stateConnected || state == CTavDevice::stateConnecting)
            device->closeDevice(false);
    }
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
    return int(std::count_if(m_mapDevices.cbegin(), m_mapDevices.cend(),
                             [](const CTavDevicePtr& device) { return device->isActive(); }));
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

void CDeviceManager::publishEvent(EN_MESSAGE_TYPE type, const QString& key,
                                  const std::function<void(CTavMessage&)>& fill)
{
    CTavMessagePtr msg = Vorlen::Memory::makeShared<CTavMessage>();
    msg->type = type;
    msg->device = getDeviceByKey(key);
    if (!msg->device)
        return;
    fill(*msg);
    m_subject.Notify(msg);
}

void CDeviceManager::on_Device_Param_Update(const SParamUpdataArg arg, QString key)
{
    publishEvent(MSG_PARAM_UPDATE, key, [&arg](CTavMessage& msg) { msg.paramUpdateArg = arg; });
}

void CDeviceManager::on_Device_Stream_Event(const SStreamArg arg, QString key)
{
    publishEvent(MSG_STREAM_EVENT, key, [&arg](CTavMessage& msg) { msg.streamArg = arg; });
}

void CDeviceManager::on_Device_Msg_Channel(const SMsgChannelArg arg, QString key)
{
    publishEvent(MSG_MSG_CHANNEL, key, [&arg](CTavMessage& msg) { msg.msgChannelArg = arg; });
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
