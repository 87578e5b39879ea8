#include "AccessStatusThread.h"

#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"
#include "Vorlen/GenICam/CCameraInfo.h"

using namespace Vorlen::GenICam;

AccessStatusThread::AccessStatusThread(QObject* parent) : CRetiringThread(parent)
{
    qRegisterMetaType<ECameraAccessPermission>("ECameraAccessPermission");
    qRegisterMetaType<ECameraAccessPermission>("Vorlen::GenICam::ECameraAccessPermission");
}

AccessStatusThread::~AccessStatusThread()
{
    requestStop();
    wait();
}

bool AccessStatusThread::RefreshAccessStatus(Vorlen::Memory::TSharedPtr<CInternalCamera> camera)
{
    QMutexLocker locker(&m_mutex);
    if (m_bStopped)
        return false;
    m_spCamera = camera;
    m_bPending = true;
    // A running loop takes the request after its read; otherwise the
    // thread starts again (a loop that has just ended has only its last
    // instructions left to wait for).
    if (!m_bLooping)
    {
        m_bLooping = true;
        locker.unlock();
        wait();
        start();
    }
    return true;
}

void AccessStatusThread::requestStop()
{
    QMutexLocker locker(&m_mutex);
    m_bStopped = true;
    m_bPending = false;
}

void AccessStatusThread::run()
{
    LOG_DEBUG("AccessStatusThread run begin");
    for (;;)
    {
        Vorlen::Memory::TSharedPtr<CInternalCamera> camera;
        {
            QMutexLocker locker(&m_mutex);
            if (!m_bPending || m_bStopped)
            {
                m_bLooping = false;
                break;
            }
            m_bPending = false;
            camera = m_spCamera;
        }

        emit signalRefreshAccessStatus(readPermission(camera));
    }
    LOG_DEBUG("AccessStatusThread run end");
}

ECameraAccessPermission AccessStatusThread::readPermission(const Vorlen::Memory::TSharedPtr<CInternalCamera>& camera)
{
    ECameraAccessPermission permission = accessPermissionUnknown;
    if (camera.get() == nullptr)
    {
        LOG_ERROR("m_spCamera.get() is NULL!");
        return permission;
    }
    CInternalGigECameraInfo info(camera);
    if (!info.getAccessPermission(permission))
    {
        LOG_ERROR("getAccessPermission [%s] fail. [%s]", camera->getKey().c_str(),
                  GetErrorDesc().toLocal8Bit().constData());
        permission = accessPermissionUnknown;
    }
    return permission;
}
