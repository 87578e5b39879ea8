#include "CParamFileThread.h"

#include "CTavDevice.h"

CParamFileThread::CParamFileThread(const char* name, const QString& path, QObject* parent)
    : CJobQueueThread(name, parent), m_path(path)
{
}

void CParamFileThread::begin()
{
    postStep([this]() { return work(); });
}

bool CParamFileThread::postStep(const std::function<bool()>& step)
{
    return post([this, step]() {
        if (step())
            stop();
    });
}

bool CParamFileThread::cancel()
{
    int expected = stateRunning;
    if (!m_state.compare_exchange_strong(expected, stateCancelled))
        return expected == stateCancelled;
    stop(true);
    return true;
}

bool CParamFileThread::commit()
{
    int expected = stateRunning;
    return m_state.compare_exchange_strong(expected, stateCommitted) || expected == stateCommitted;
}

bool CParamFileThread::keepGoing(const CTavDevicePtr& device) const
{
    return !isStopping() && device && device->isConnected() && !device->isDisconnecting();
}

QString CParamFileThread::stopReason(const CTavDevicePtr& device, const QString& stopped, const QString& lost)
{
    if (!device || !device->isConnected() || device->isDisconnecting())
        return lost;
    return stopped;
}
