#include "CParamFileThread.h"

#include "CTavDevice.h"

CParamFileThread::CParamFileThread(const QString& path, QObject* parent) : QThread(parent), m_path(path) {}

bool CParamFileThread::keepGoing(const CTavDevicePtr& device) const
{
    return !m_bStop && device && device->isConnected() && !device->isDisconnecting();
}
