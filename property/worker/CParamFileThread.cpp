#include "CParamFileThread.h"

#include "CTavDevice.h"

CParamFileThread::CParamFileThread(const QString& path, QObject* parent) : CRetiringThread(parent), m_path(path) {}

CParamFileThread::~CParamFileThread()
{
    stop();
    wait();
}

bool CParamFileThread::keepGoing(const CTavDevicePtr& device) const
{
    return !m_bStop && device && device->isConnected() && !device->isDisconnecting();
}
