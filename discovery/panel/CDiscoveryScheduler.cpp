#include "CDiscoveryScheduler.h"

#include "CDeviceManager.h"
#include "CDiscoveryDevicesThread.h"

CDiscoveryScheduler::CDiscoveryScheduler(BusyProbe busy, PassStarter start)
    : m_busy(std::move(busy)), m_start(std::move(start))
{
    if (!m_busy)
        m_busy = []() {
            CDiscoveryDevicesThread* worker = CDiscoveryDevicesThread::getInstance();
            return worker && worker->isDisconvrying();
        };
    if (!m_start)
        m_start = [](const QString& ip) { CDeviceManager::getInstance()->refreshDeviceMap(ip, 0); };
}

void CDiscoveryScheduler::request(const QString& ip)
{
    if (!m_bPending || !ip.isEmpty())
        m_strPendingIp = ip;
    m_bPending = true;
    startPending();
}

void CDiscoveryScheduler::passFinished()
{
    startPending();
}

void CDiscoveryScheduler::startPending()
{
    // The worker clears its flag before it reports the pass, so a busy
    // worker always reports once more: the request goes then.
    if (!m_bPending || m_busy())
        return;
    m_bPending = false;
    const QString ip = m_strPendingIp;
    m_strPendingIp.clear();
    m_start(ip);
}
