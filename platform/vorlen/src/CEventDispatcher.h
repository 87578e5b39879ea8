#pragma once
// One thread that runs queued tasks in order. The thread starts with the
// first task and keeps the dispatcher alive while it runs; stop() drops
// what is still queued, waits for the task under way and ends the thread,
// after which posting fails. Made by std::make_shared only.
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace Vorlen {
namespace GenICam {

class CEventDispatcher : public std::enable_shared_from_this<CEventDispatcher>
{
public:
    CEventDispatcher() = default;
    ~CEventDispatcher();
    CEventDispatcher(const CEventDispatcher&) = delete;
    CEventDispatcher& operator=(const CEventDispatcher&) = delete;

    // Queues a task; false (task dropped) once stopped.
    bool post(std::function<void()> task);
    // Waits until every task queued before the call has run; false on
    // timeout, once stopped, and on the dispatch thread itself.
    bool flush(unsigned int timeoutMs);
    // Waits until no task runs (at once on the dispatch thread itself).
    void waitIdle();
    // True on this dispatcher's thread.
    bool onThread() const;
    // True on the thread of any dispatcher.
    static bool onAnyThread();
    // Idempotent. From the dispatch thread itself the thread is left to end
    // on its own after the current task.
    void stop();

private:
    void run();

    mutable std::mutex m_mutex;
    std::condition_variable m_queued;
    std::condition_variable m_done;
    std::deque<std::function<void()>> m_queue;
    uint64_t m_posted = 0;
    uint64_t m_finished = 0;
    bool m_stopped = false;
    std::thread m_thread;
    std::thread::id m_threadId;
    std::mutex m_callMutex;   // held while a task runs
};

} // namespace GenICam
} // namespace Vorlen
