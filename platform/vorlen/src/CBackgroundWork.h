#pragma once
// Work that may wait on a camera that vanished, each on a thread of its own
// so that no caller (the GUI thread, the event threads, the camera calls
// that noticed the loss) waits for it: letting go of a lost camera's Aravis
// objects (they wait for Aravis' own heartbeat thread to give up), of a
// stream of such a camera, or opening a camera whose connect gave up.
// Finished threads are joined at the next run, the rest at shutdown. One
// per process.
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace Vorlen {
namespace GenICam {

class CBackgroundWork
{
public:
    static CBackgroundWork& instance();

    // Runs work on a thread of its own; after shutdown() on the caller's.
    void run(std::function<void()> work);
    // Joins the threads whose work has finished; never waits.
    void joinFinished();
    // Waits for all work under way; later work runs on its callers'
    // threads. Idempotent.
    void shutdown();

private:
    CBackgroundWork() = default;
    void join(bool all);

    struct SJob
    {
        std::thread thread;
        std::shared_ptr<std::atomic<bool>> done;
    };
    std::mutex m_mutex;
    std::vector<SJob> m_jobs;
    bool m_shutDown = false;
};

} // namespace GenICam
} // namespace Vorlen
