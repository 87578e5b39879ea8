#pragma once
// Lets go of objects whose release may wait on a camera that vanished: a
// lost camera's Aravis objects wait for Aravis' own heartbeat thread to give
// up, a stream of such a camera for its control channel. Each release runs
// on a thread of its own so that no caller (the GUI thread, the event
// threads) waits for it; finished threads are joined at the next release,
// the rest at shutdown. One per process.
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace Vorlen {
namespace GenICam {

class CBackgroundReleaser
{
public:
    static CBackgroundReleaser& instance();

    // Runs release on a thread of its own; after shutdown() on the caller's.
    void run(std::function<void()> release);
    // Joins the releases that have finished; never waits.
    void joinFinished();
    // Waits for every release under way; later ones run on their callers'
    // threads. Idempotent.
    void shutdown();

private:
    CBackgroundReleaser() = default;
    void join(bool all);

    struct SRelease
    {
        std::thread thread;
        std::shared_ptr<std::atomic<bool>> done;
    };
    std::mutex m_mutex;
    std::vector<SRelease> m_releases;
    bool m_shutDown = false;
};

} // namespace GenICam
} // namespace Vorlen
