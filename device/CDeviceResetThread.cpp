#include "CDeviceResetThread.h"

#include "CTavDevice.h"
#include "Tavlog4cpp/TavLogMacros.h"

CDeviceResetThread::CDeviceResetThread(QObject* parent) : QThread(parent) {}

CDeviceResetThread::~CDeviceResetThread()
{
    wait();
}

void CDeviceResetThread::setDevice(CTavDevicePtr device)
{
    m_device = device;
}

void CDeviceResetThread::run()
{
    msleep(2000);
    LOG_DEBUG("CDeviceResetThread run begin");
    bool result = false;
    if (m_device)
        result = m_device->doPropertyReset();
    else
        LOG_ERROR("m_device is NULL!");
    emit device_reset(result ? 1 : 0);
    // The device is not kept beyond the reset.
    m_device.reset();
    LOG_DEBUG("CDeviceResetThread run end");
}
