#pragma once
// Counting semaphore of the camera library.
#include <chrono>
#include <condition_variable>
#include <mutex>

namespace Vorlen {
namespace Infra {

class CSemaphore
{
public:
    explicit CSemaphore(unsigned int initial = 0) : m_count(initial) {}
    CSemaphore(const CSemaphore&) = delete;
    CSemaphore& operator=(const CSemaphore&) = delete;

    // Waits up to ms milliseconds for a count; true when one was taken.
    bool pend(unsigned int ms)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        if (!m_cond.wait_for(lock, std::chrono::milliseconds(ms), [this] { return m_count > 0; }))
            return false;
        --m_count;
        return true;
    }
    // Waits without a time limit.
    void pend()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_cond.wait(lock, [this] { return m_count > 0; });
        --m_count;
    }
    bool tryPend()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_count == 0)
            return false;
        --m_count;
        return true;
    }
    void post()
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            ++m_count;
        }
        m_cond.notify_one();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_cond;
    unsigned int m_count;
};

} // namespace Infra
} // namespace Vorlen
