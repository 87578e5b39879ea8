#include "CCameraLock.h"

#include <chrono>

namespace Vorlen {
namespace GenICam {

namespace {
// Covers holders that unlock mutex() directly, without telling the gate.
constexpr std::chrono::milliseconds kRecheck(50);
}

void CCameraLock::unlock()
{
    m_mutex.unlock();
    {
        std::lock_guard<std::mutex> gate(m_gateMutex);
        ++m_releases;
    }
    m_gate.notify_all();
}

bool CCameraLock::lockUnlessLost()
{
    for (;;) {
        uint64_t seen = 0;
        {
            std::lock_guard<std::mutex> gate(m_gateMutex);
            seen = m_releases;
        }
        if (m_isLost())
            return false;
        if (m_mutex.try_lock()) {
            if (!m_isLost())
                return true;
            m_mutex.unlock();
            return false;
        }
        std::unique_lock<std::mutex> gate(m_gateMutex);
        m_gate.wait_for(gate, kRecheck, [&] { return m_isLost() || m_releases != seen; });
    }
}

void CCameraLock::notifyLost()
{
    {
        std::lock_guard<std::mutex> gate(m_gateMutex);
    }
    m_gate.notify_all();
}

} // namespace GenICam
} // namespace Vorlen
