#include "CParamFileThread.h"

#include "CTavDevice.h"

CParamFileThread::CParamFileThread(const char* name, const QString& path, QObject* parent)
    : CJobQueueThread(name, parent), m_path(path)
{
}

void CParamFileThread::begin()
{
    post([this]() {
        work();
        stop();
    });
}

bool CParamFileThread::keepGoing(const CTavDevicePtr& device) const
{
    return !isStopping() && device && device->isConnected() && !device->isDisconnecting();
}
