#pragma once
// Helpers of the camera-loss tests. The loss watchdogs run on a clock the
// test moves a quarter heartbeat at a time (the watchdog's probing period),
// so "reported within two heartbeat intervals" is counted in periods.
#include <QTest>

#include <functional>

#include "CManualWatchdogClock.h"
#include "SdkTestSupport.h"

namespace LossTest {

using namespace Vorlen::GenICam;

constexpr unsigned short kHeartbeatMs = 1000;
constexpr unsigned short kAnswerTimeoutMs = 100;   // real time a probe of a silent camera waits
constexpr int kQuartersPerHeartbeat = 4;
constexpr unsigned short kDefaultHeartbeatMs = 1500;   // before the link is set

// Waits until watchdogs watchdogs sleep until a time still to come.
inline bool settle(CManualWatchdogClock& clock, int watchdogs)
{
    return QTest::qWaitFor([&] { return clock.waiting() == watchdogs; }, 20000);
}

// Connects the camera, sets the short heartbeat and lets its watchdog take
// it up: afterwards it probes every quarter heartbeat of the clock.
inline bool connectWatched(CManualWatchdogClock& clock, const ICameraPtr& camera, int watchdogs)
{
    CInternalCamera* c = SdkTest::internal(camera);
    if (!c || !c->connect(accessPermissionControl) || !c->setAnswerTimeout(kAnswerTimeoutMs) ||
        !c->setHeartbeatIntervel(kHeartbeatMs))
        return false;
    clock.advance(kDefaultHeartbeatMs);   // ends the sleep begun with the default heartbeat
    return settle(clock, watchdogs);
}

// Moves the clock a quarter heartbeat at a time until reported() holds,
// each time waiting until every watchdog still running has probed and
// sleeps again (the lost camera's ends with its report). Returns the
// quarters it took; -1 when not within maxQuarters, -2 when the watchdogs
// never settled (a report stuck on its way).
inline int quartersUntil(CManualWatchdogClock& clock, const std::function<bool()>& reported, int watchdogs,
                         int maxQuarters = 2 * kQuartersPerHeartbeat)
{
    for (int quarter = 1; quarter <= maxQuarters; ++quarter) {
        clock.advance(kHeartbeatMs / kQuartersPerHeartbeat);
        if (!QTest::qWaitFor([&] { return clock.waiting() == watchdogs - (reported() ? 1 : 0); }, 20000))
            return -2;
        if (reported())
            return quarter;
    }
    return -1;
}

inline bool isOffline(const SConnectArg& arg)
{
    return arg.event == connectEventOffline;
}

} // namespace LossTest
