#pragma once
// Connects or disconnects one camera off the GUI thread.
#include <QThread>

#include "Vorlen/GenICam/CInternalEventManager.h"
#include "Vorlen/GenICam/CInternalStreamSource.h"
#include "Vorlen/GenICam/ICamera.h"
#include "Vorlen/Memory/TSharedPtr.h"

enum CONNECT_TYPE
{
    CONNECT_TYPE_CONNECT = 0,
    CONNECT_TYPE_DISCONNECT = 1
};

class CDeviceConnectThread : public QThread
{
    Q_OBJECT
public:
    explicit CDeviceConnectThread(QObject* parent = nullptr);
    ~CDeviceConnectThread() override;

    // Set before start(); not while the thread runs.
    void setDevice(Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera> camera, CONNECT_TYPE type);
    CONNECT_TYPE getConnectType() const { return m_eType; }
    // Disconnect only: the stream and event manager of a lost connection,
    // stopped and released on this thread before the camera is disconnected
    // (stopping a stream of a vanished camera waits for its timeouts).
    void setReleaseFirst(Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource> stream,
                         Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalEventManager> events);

signals:
    void device_connect(bool ok);
    void device_disconnect(bool ok);

protected:
    void run() override;

private:
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera> m_spCamera;
    CONNECT_TYPE m_eType = CONNECT_TYPE_CONNECT;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource> m_releaseStream;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalEventManager> m_releaseEvents;
};
