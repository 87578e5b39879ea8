#pragma once
// Reads a GigE camera's access permission (which host controls it) off the
// GUI thread; works without control of the camera.
#include <QMetaType>
#include <QMutex>
#include <QThread>

#include "Vorlen/GenICam/ICamera.h"
#include "Vorlen/Memory/TSharedPtr.h"

Q_DECLARE_METATYPE(Vorlen::GenICam::ECameraAccessPermission)

class AccessStatusThread : public QThread
{
    Q_OBJECT
public:
    explicit AccessStatusThread(QObject* parent = nullptr);
    ~AccessStatusThread() override;

    // Starts a read unless one is running; false when none was started.
    bool RefreshAccessStatus(Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalCamera> camera);

signals:
    // accessPermissionUnknown when the permission could not be read.
    void signalRefreshAccessStatus(Vorlen::GenICam::ECameraAccessPermission permission);

protected:
    void run() override;

private:
    QMutex m_mutex;
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalCamera> m_spCamera;
};
