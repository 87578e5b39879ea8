#pragma once
// Reads a GigE camera's access permission (which host controls it) off the
// GUI thread; works without control of the camera. A refresh asked for
// while a read runs is carried out after it, once however often it was
// asked. The device retires the worker instead of waiting for the camera.
#include <QMetaType>
#include <QMutex>

#include "CJobQueueThread.h"
#include "Vorlen/GenICam/ICamera.h"
#include "Vorlen/Memory/TSharedPtr.h"

Q_DECLARE_METATYPE(Vorlen::GenICam::ECameraAccessPermission)

class AccessStatusThread : public CJobQueueThread
{
    Q_OBJECT
public:
    explicit AccessStatusThread(QObject* parent = nullptr);

    // Starts a read, or asks for one more after the read under way.
    // False once the worker was stopped.
    bool RefreshAccessStatus(Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalCamera> camera);

signals:
    // accessPermissionUnknown when the permission could not be read.
    void signalRefreshAccessStatus(Vorlen::GenICam::ECameraAccessPermission permission);

protected:
    // One camera round trip (no camera: accessPermissionUnknown); tests
    // put a blocking one in.
    virtual Vorlen::GenICam::ECameraAccessPermission readPermission(
        const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalCamera>& camera);

private:
    QMutex m_mutex;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalCamera> m_spCamera;   // guarded by m_mutex
    bool m_bQueued = false;   // guarded by m_mutex: a read is queued and has not started
};
