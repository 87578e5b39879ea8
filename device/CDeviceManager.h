#pragma once
// The map of known devices, keyed by the camera key, and the publisher of the
// message bus: device signals arrive here on the GUI thread and leave as
// CTavMessages to every observer of the subject.
#include <QMap>
#include <QMutex>
#include <QObject>
#include <QString>
#include <functional>

#include "CSubject.h"
#include "CTavMessage.h"

class CDiscoveryDevicesThread;

class CDeviceManager : public QObject
{
    Q_OBJECT
public:
    // Made on first use, on the calling (GUI) thread, while the
    // application's singleton owner (CSingletonOwner) keeps it; the
    // constructor starts the discovery worker and asks for the first pass.
    // Null before the owner starts and after it has ended.
    static CDeviceManager* getInstance();

    CTavDevicePtr getDeviceByKey(const QString& key);
    QMap<QString, CTavDevicePtr> getAllDevices();
    int getOpenedDeviceCount();
    // Devices connected, connecting or closing (CTavDevice::isActive).
    int getActiveDeviceCount();
    // Asks the discovery worker for a pass (see CDiscoveryDevicesThread::StartDiscovery).
    void refreshDeviceMap(const QString& ip, int flags);

    CSubject* getSubject() { return &m_subject; }
    void attach(CObserver* observer) { m_subject.Attach(observer); }
    void detach(CObserver* observer) { m_subject.Detach(observer); }

signals:
    // The device map has been rebuilt after a discovery pass.
    void discoveryDevicesFinished();

public slots:
    void on_discoveryDevicesFinished(bool ok);
    void on_Device_Param_Update(const Vorlen::GenICam::SParamUpdataArg arg, QString key);
    void on_Device_Stream_Event(const Vorlen::GenICam::SStreamArg arg, QString key);
    void on_Device_Msg_Channel(const Vorlen::GenICam::SMsgChannelArg arg, QString key);
    void on_Device_Status_Changed(EN_MESSAGE_TYPE type, CTavDevicePtr device);


private:
    friend class CSingletonOwner;
    CDeviceManager();
    // Asks every open device to close on its own worker and lets go of the
    // devices; waits for nothing.
    ~CDeviceManager() override;

    void connectDevice(const CTavDevicePtr& device);
    void disconnectDevice(const CTavDevicePtr& device);
    // One message of a device event: the device of the key (none: nothing
    // is published), the event's record filled in by fill.
    void publishEvent(EN_MESSAGE_TYPE type, const QString& key, const std::function<void(CTavMessage&)>& fill);

    QMutex m_mapMutex;   // the disconnect-all worker reads the map too
    QMap<QString, CTavDevicePtr> m_mapDevices;
    CSubject m_subject;
    CDiscoveryDevicesThread* m_pDiscovery = nullptr;
};
