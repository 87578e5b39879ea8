#include "AccessStatusThread.h"

#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"
#include "Vorlen/GenICam/CCameraInfo.h"

using namespace Vorlen::GenICam;

AccessStatusThread::AccessStatusThread(QObject* parent) : QThread(parent)
{
    qRegisterMetaType<ECameraAccessPermission>("ECameraAccessPermission");
    qRegisterMetaType<ECameraAccessPermission>("Vorlen::GenICam::ECameraAccessPermission");
}

AccessStatusThread::~AccessStatusThread()
{
    wait();
}

bool AccessStatusThread::RefreshAccessStatus(Vorlen::Memory::TSharedPtr<CInternalCamera> camera)
{
    QMutexLocker locker(&m_mutex);
    if (isRunning())
        return false;
    m_spCamera = camera;
    start();
    return true;
}

void AccessStatusThread::run()
{
    LOG_DEBUG("AccessStatusThread run begin");
    Vorlen::Memory::TSharedPtr<CInternalCamera> camera;
    {
        QMutexLocker locker(&m_mutex);
        camera = m_spCamera;
    }

    ECameraAccessPermission permission = accessPermissionUnknown;
    if (camera.get() == nullptr)
    {
        LOG_ERROR("m_spCamera.get() is NULL!");
    }
    else
    {
        CInternalGigECameraInfo info(camera);
        if (!info.getAccessPermission(permission))
        {
            LOG_ERROR("getAccessPermission [%s] fail. [%s]", camera->getKey().c_str(),
                      GetErrorDesc().toLocal8Bit().constData());
            permission = accessPermissionUnknown;
        }
    }
    emit signalRefreshAccessStatus(permission);
    LOG_DEBUG("AccessStatusThread run end");
}
