#pragma once
// The map of known devices, keyed by the camera key, and the publisher of the
// message bus: device signals arrive here on the GUI thread and leave as
// CTavMessages to every observer of the subject.
#include <QMap>
#include <QMutex>
#include <QObject>
#include <QString>

#include "CSubject.h"
#include "CTavMessage.h"

class CDiscoveryDevicesThread;

class CDeviceManager : public QObject
{
    Q_OBJECT
public:
    // Created on first use, on the calling (GUI) thread; the constructor
    // starts the discovery worker and asks for the first pass.
    // Null once shutdown() has run.
    static CDeviceManager* getInstance();
    // The manager if it exists; never creates it (for workers).
    static CDeviceManager* existingInstance();
    // Closes every open device, stops discovery and deletes the manager (and
    // the discovery worker); the next getInstance() starts afresh.
    static void destroyInstance();
    // The application's end, on the GUI thread before the application object
    // goes: closes the open devices side by side and waits for them (at most
    // waitMs, handling their results meanwhile), then tears down, in this
    // order, the disconnect-all worker, the manager with its devices and the
    // discovery worker. None of them can be created again afterwards.
    static void shutdown(int waitMs = kShutdownWaitMs);
    static const int kShutdownWaitMs = 5000;

    CTavDevicePtr getDeviceByKey(const QString& key);
    QMap<QString, CTavDevicePtr> getAllDevices();
    int getOpenedDeviceCount();
    // Devices connected, connecting or closing.
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
    CDeviceManager();
    ~CDeviceManager() override;

    void connectDevice(const CTavDevicePtr& device);
    void disconnectDevice(const CTavDevicePtr& device);

    QMutex m_mapMutex;   // the disconnect-all worker reads the map too
    QMap<QString, CTavDevicePtr> m_mapDevices;
    CSubject m_subject;
    CDiscoveryDevicesThread* m_pDiscovery = nullptr;
};
