#include "CDeviceConnectThread.h"

#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"

using namespace Vorlen::GenICam;

CDeviceConnectThread::CDeviceConnectThread(QObject* parent) : QThread(parent) {}

CDeviceConnectThread::~CDeviceConnectThread()
{
    wait();
}

void CDeviceConnectThread::setDevice(Vorlen::Memory::TSharedPtr<ICamera> camera, CONNECT_TYPE type)
{
    m_spCamera = camera;
    m_eType = type;
}

void CDeviceConnectThread::setReleaseFirst(Vorlen::Memory::TSharedPtr<CInternalStreamSource> stream,
                                           Vorlen::Memory::TSharedPtr<CInternalEventManager> events)
{
    m_releaseStream = stream;
    m_releaseEvents = events;
}

void CDeviceConnectThread::run()
{
    LOG_DEBUG("CDeviceConnectThread run begin");

    if (m_releaseStream)
    {
        if (m_releaseStream->isGrabbing() && !m_releaseStream->stopGrabbing())
            LOG_ERROR("stopGrabbing fail. [%s]", GetErrorDesc().toLocal8Bit().constData());
        m_releaseStream.reset();
    }
    m_releaseEvents.reset();

    const Vorlen::Memory::TSharedPtr<CInternalCamera> camera =
        Vorlen::Memory::dynamicPointerCast<CInternalCamera>(m_spCamera);
    bool ok = false;
    if (camera.get() == nullptr)
    {
        LOG_ERROR("m_spCamera.get() is NULL!");
    }
    else if (m_eType == CONNECT_TYPE_CONNECT)
    {
        // Control access: the camera can be used by others for monitoring only.
        ok = camera->connect(accessPermissionControl);
        if (!ok)
            LOG_ERROR("connect [%s] fail. [%s]", camera->getKey().c_str(), GetErrorDesc().toLocal8Bit().constData());
    }
    else
    {
        ok = camera->disConnect();
        if (!ok)
            LOG_ERROR("disConnect [%s] fail. [%s]", camera->getKey().c_str(), GetErrorDesc().toLocal8Bit().constData());
    }

    if (m_eType == CONNECT_TYPE_CONNECT)
        emit device_connect(ok);
    else
        emit device_disconnect(ok);

    LOG_DEBUG("CDeviceConnectThread run end");
}
