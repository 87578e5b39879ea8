#pragma once
// Closes every open device, each on its own worker so they close side by
// side, then waits (at most 5000 ms) until none of them is open, connecting
// or closing any more. A job-queue worker: each closeAll() is one request.
#include <QList>
#include <functional>

#include "CJobQueueThread.h"
#include "CTavMessage.h"

class CDisconnectAllThread : public CJobQueueThread
{
    Q_OBJECT
public:
    // Made on first use while the application's singleton owner
    // (CSingletonOwner) keeps it, after the device manager, which it asks
    // for first; null before the owner starts and after it has ended.
    static CDisconnectAllThread* getInstance();

    // Poll step and limit of the wait for the devices to close.
    static const int kPollMs = 500;
    static const int kTimeoutMs = 5000;

    // Clock of the wait (ms of a monotonic clock) and the pause between two
    // polls, which returns false when the wait is to end early; tests put a
    // simulated clock in their place (null: the real one, whose pause ends
    // when the worker is stopped). Set before closeAll().
    void setClock(std::function<qint64()> now, std::function<bool(int)> pause);

    // GUI thread: closes the devices the device manager holds now; the
    // worker reports with closeAllBegin() and closeAllFinished().
    void closeAll();

signals:
    void closeAllBegin();
    void closeAllFinished();

private:
    CDisconnectAllThread();
    void closeAllOnWorker(const QList<CTavDevicePtr>& devices);

    std::function<qint64()> m_now;
    std::function<bool(int)> m_pause;
};
