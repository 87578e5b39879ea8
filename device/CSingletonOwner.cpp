#include "CSingletonOwner.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <algorithm>
#include <atomic>

#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CDisconnectAllThread.h"
#include "CDiscoveryDevicesThread.h"
#include "CJobQueueThread.h"
#include "CSingletonSlot.h"
#include "Tavlog4cpp/TavLogMacros.h"

namespace {
std::atomic<bool> g_ownerAlive{false};
}

CSingletonOwner::CSingletonOwner()
{
    // Two owners would end each other's objects.
    if (g_ownerAlive.exchange(true))
        qFatal("CSingletonOwner: a second owner while the first one lives");
    if (!QCoreApplication::instance())
        qFatal("CSingletonOwner: made before the application object");
    CSingletonSlot<CConfiguration>::open();
    CSingletonSlot<CDiscoveryDevicesThread>::open();
    CSingletonSlot<CDeviceManager>::open();
    CSingletonSlot<CDisconnectAllThread>::open();
    CConfiguration::getInstance();
}

CSingletonOwner::~CSingletonOwner()
{
    shutdown();
    // Bounded wait (kDrainMs), the last one of the program: the cameras
    // still closing on their devices' workers, retired workers inside a
    // camera call, a discovery pass under way. What has not ended by then
    // is left behind.
    if (!drain(kDrainMs))
        LOG_WARN("workers still busy %d ms after shutdown; left behind", kDrainMs);
    for (QThread* thread : qAsConst(m_late))
    {
        if (thread->isFinished())
            delete thread;
    }
    m_late.clear();

    // The camera library's own singletons and the frame buffer pool end after
    // this, for good, in main(): tests make one owner after another over the
    // same library.

    g_ownerAlive = false;
}

void CSingletonOwner::shutdown()
{
    if (m_bShutDown)
        return;
    m_bShutDown = true;

    // 4. The disconnect-all worker waits for the devices but never on a
    // camera: it ends as soon as it is told to (bounded wait, kStopWaitMs).
    if (CDisconnectAllThread* closer = CSingletonSlot<CDisconnectAllThread>::close())
    {
        if (closer->stopAndWait(kStopWaitMs, true))
            delete closer;
        else
            closer->retire();
    }

    // 3. The device manager: its open devices close on their own workers.
    delete CSingletonSlot<CDeviceManager>::close();

    // 2. The discovery worker: an idle one ends at once (bounded wait,
    // kStopWaitMs); a pass under way is left to finish.
    if (CDiscoveryDevicesThread* discovery = CSingletonSlot<CDiscoveryDevicesThread>::close())
    {
        discovery->requestStop();
        if (discovery->wait(kStopWaitMs))
            delete discovery;
        else
            endLater(discovery);
    }

    // 1. The configuration.
    delete CSingletonSlot<CConfiguration>::close();
}

void CSingletonOwner::endLater(QThread* thread)
{
    LOG_DEBUG("%s still running at shutdown; deleted once it has ended", thread->metaObject()->className());
    m_late.append(thread);
}

bool CSingletonOwner::drain(int timeoutMs)
{
    QDeadlineTimer deadline(timeoutMs);
    for (;;)
    {
        // Devices released by their last job, and workers that have
        // retired, wait for deletion on this thread; deleting a device may
        // hand its camera's teardown to its worker.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const auto running = std::find_if(m_late.cbegin(), m_late.cend(),
                                          [](QThread* thread) { return !thread->isFinished(); });
        if (running == m_late.cend() && CJobQueueThread::waitUntilQuiet(0))
        {
            // Quiet: what the last jobs released is deleted, and if that
            // handed out no new work the end is reached.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            if (CJobQueueThread::waitUntilQuiet(0))
                return true;
            continue;
        }
        if (deadline.hasExpired())
            return false;
        if (running != m_late.cend())
            (*running)->wait(deadline);
        else
            CJobQueueThread::waitUntilQuiet(int(qMax<qint64>(0, deadline.remainingTime())));
    }
}
