#include "CEventDispatcher.h"

#include <chrono>

#include "ThreadName.h"

namespace Vorlen {
namespace GenICam {

namespace {
thread_local const CEventDispatcher* t_current = nullptr;
}

CEventDispatcher::~CEventDispatcher()
{
    stop();
}

bool CEventDispatcher::post(std::function<void()> task)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_stopped)
            return false;
        if (!m_thread.joinable()) {
            m_thread = std::thread([self = shared_from_this()] { self->run(); });
            m_threadId = m_thread.get_id();
        }
        m_queue.push_back(std::move(task));
        ++m_posted;
    }
    m_queued.notify_one();
    return true;
}

bool CEventDispatcher::flush(unsigned int timeoutMs)
{
    if (onThread())
        return false;
    std::unique_lock<std::mutex> lock(m_mutex);
    const uint64_t target = m_posted;
    return m_done.wait_for(lock, std::chrono::milliseconds(timeoutMs),
                           [&] { return m_stopped || m_finished >= target; }) &&
           !m_stopped;
}

void CEventDispatcher::waitIdle()
{
    if (onThread())
        return;
    std::lock_guard<std::mutex> lock(m_callMutex);
}

bool CEventDispatcher::onThread() const
{
    return t_current == this;
}

bool CEventDispatcher::onAnyThread()
{
    return t_current != nullptr;
}

void CEventDispatcher::stop()
{
    std::thread thread;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stopped = true;
        m_queue.clear();
        thread = std::move(m_thread);
    }
    m_queued.notify_all();
    m_done.notify_all();
    if (!thread.joinable())
        return;
    if (onThread())
        thread.detach();
    else
        thread.join();
}

void CEventDispatcher::run()
{
    t_current = this;
    nameThisThread("vorlen-events");
    for (;;) {
        std::function<void()> task;
        {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_queued.wait(lock, [this] { return m_stopped || !m_queue.empty(); });
            if (m_stopped)
                return;
            task = std::move(m_queue.front());
            m_queue.pop_front();
        }
        {
            std::lock_guard<std::mutex> call(m_callMutex);
            // A throwing subscriber must not end event delivery for everybody.
            try {
                task();
            } catch (...) {
            }
        }
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            ++m_finished;
        }
        m_done.notify_all();
    }
}

} // namespace GenICam
} // namespace Vorlen
