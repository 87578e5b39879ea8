#pragma once
// The one owner of the process-wide objects. main() makes it right after the
// application object and before the main window, and it ends after the window
// and before the application object; tests and benchmarks make and end it the
// same way. What lives between the two (windows, panels, dialogs) may take
// the singletons for granted; code that can run outside that span (worker
// threads, objects released late) checks getInstance() for null.
//
// The order, written here and nowhere else:
//
//   made                                                       ended
//   1 CConfiguration           by the owner, when it starts      4
//   2 CDiscoveryDevicesThread  on first use; the device          3
//                              manager asks for it first
//   3 CDeviceManager           on first use                      2
//   4 CDisconnectAllThread     on first use; asks for the        1
//                              device manager first
//   then, in main() after the owner has ended, the camera library's own
//   singletons (CSystem::shutdownInstance) and the frame buffer pool
//   (CRawBufferPool::shutdownInstance): ended for good, never made again
//
// Ending has two steps. shutdown() closes the slots in reverse order, so that
// nothing is made again, and stops each object without waiting on a camera:
// open devices close on their own workers, the workers are told to stop, and
// what has stopped is deleted at once. The destructor (which calls shutdown()
// first if nobody did) waits, bounded, for the workers still finishing,
// deletes what was left to them in the same order and ends the camera
// library. A new owner may start afterwards (tests do, one per case).
#include <QList>

class QThread;

class CSingletonOwner
{
public:
    // How long the end waits for a worker that was told to stop: they end
    // at once unless they are inside a camera call.
    static const int kStopWaitMs = 20;
    // How long the destructor waits, at most, for the devices still closing
    // and the workers still ending.
    static const int kDrainMs = 3000;

    // Opens the slots and makes the configuration. Needs the application
    // object (QCoreApplication or QApplication).
    CSingletonOwner();
    ~CSingletonOwner();
    CSingletonOwner(const CSingletonOwner&) = delete;
    CSingletonOwner& operator=(const CSingletonOwner&) = delete;

    // Closes the slots in reverse order and stops the objects without
    // waiting on a camera; a second call does nothing.
    void shutdown();

private:
    // A worker told to stop that did not end within kStopWaitMs; the
    // destructor deletes it once it has ended.
    void endLater(QThread* thread);
    // Runs the deletions queued by the last jobs until every worker is
    // quiet and every late thread has ended, or the deadline passes.
    bool drain(int timeoutMs);

    bool m_bShutDown = false;
    QList<QThread*> m_late;
};
