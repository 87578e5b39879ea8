#include "AccessStatusThread.h"

#include "CDeviceFeatures.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/GenICam/CCameraInfo.h"

using namespace Vorlen::GenICam;

AccessStatusThread::AccessStatusThread(QObject* parent) : CJobQueueThread("AccessStatusThread", parent)
{
    qRegisterMetaType<ECameraAccessPermission>("ECameraAccessPermission");
    qRegisterMetaType<ECameraAccessPermission>("Vorlen::GenICam::ECameraAccessPermission");
}

bool AccessStatusThread::RefreshAccessStatus(Vorlen::Memory::TSharedPtr<CInternalCamera> camera)
{
    QMutexLocker locker(&m_mutex);
    m_spCamera = camera;
    if (m_bQueued)
        return !isStopping();   // the queued read takes the latest camera
    m_bQueued = post([this]() {
        Vorlen::Memory::TSharedPtr<CInternalCamera> target;
        {
            QMutexLocker lock(&m_mutex);
            m_bQueued = false;
            target = m_spCamera;
        }
        emit signalRefreshAccessStatus(readPermission(target));
    });
    return m_bQueued;
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
                  CDeviceFeatures::errorText().constData());
        permission = accessPermissionUnknown;
    }
    return permission;
}
