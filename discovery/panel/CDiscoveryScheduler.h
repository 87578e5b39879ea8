#pragma once
// Hands the device list's discovery requests to the discovery worker. The
// worker forgets a request that comes while a pass runs, so such a request
// waits here and goes as soon as that pass has ended (passFinished(), called
// when the device manager reports the pass): no polling. A unicast address
// waiting its turn is not replaced by a plain refresh, which would not probe
// it.
#include <QString>
#include <functional>

class CDiscoveryScheduler
{
public:
    using BusyProbe = std::function<bool()>;
    using PassStarter = std::function<void(const QString& ip)>;

    // Defaults: the discovery worker's discovering flag, and
    // CDeviceManager::refreshDeviceMap(ip, 0).
    explicit CDiscoveryScheduler(BusyProbe busy = BusyProbe(), PassStarter start = PassStarter());

    // ip: "" for a refresh, or one address to probe by unicast.
    void request(const QString& ip);
    // A pass has ended: the request waiting, if any, goes now unless another
    // pass has been asked for meanwhile.
    void passFinished();

    bool isPending() const { return m_bPending; }
    QString pendingIp() const { return m_strPendingIp; }

private:
    void startPending();

    BusyProbe m_busy;
    PassStarter m_start;
    bool m_bPending = false;
    QString m_strPendingIp;
};
