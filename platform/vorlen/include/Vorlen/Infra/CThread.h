#pragma once
// Thread of the camera library. The body runs once on the new thread and
// polls looping() to know when to return:
//
//   thread.createThread([&] { while (thread.looping()) work(); });
//   ...
//   thread.destroyThread();   // looping() turns false, then joins
#include <atomic>
#include <functional>
#include <thread>

namespace Vorlen {
namespace Infra {

class CThread
{
public:
    using Proc = std::function<void()>;

    CThread() = default;
    ~CThread()
    {
        m_looping = false;
        if (m_thread.joinable()) {
            if (m_thread.get_id() == std::this_thread::get_id())
                m_thread.detach();
            else
                m_thread.join();
        }
    }
    CThread(const CThread&) = delete;
    CThread& operator=(const CThread&) = delete;

    // False when a thread is already running or the body is empty.
    bool createThread(const Proc& proc)
    {
        if (!proc || m_thread.joinable())
            return false;
        m_looping = true;
        m_over = false;
        m_thread = std::thread([this, proc] {
            proc();
            m_over = true;
        });
        return true;
    }
    // Asks the body to stop and waits for it. Called from the thread
    // itself it only asks (a thread cannot join itself).
    bool destroyThread()
    {
        m_looping = false;
        if (!m_thread.joinable())
            return true;
        if (m_thread.get_id() == std::this_thread::get_id())
            return false;
        m_thread.join();
        return true;
    }
    // True when no body runs (never started, or returned).
    bool isThreadOver() const { return m_over; }
    bool looping() const { return m_looping; }

private:
    std::thread m_thread;
    std::atomic<bool> m_looping{false};
    std::atomic<bool> m_over{true};
};

} // namespace Infra
} // namespace Vorlen
