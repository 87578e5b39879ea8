#include "CWatchdogClock.h"

#include <chrono>

namespace Vorlen {
namespace GenICam {

namespace {

std::mutex g_mutex;
std::shared_ptr<CWatchdogClock> g_clock;

} // namespace

int64_t CWatchdogClock::nowMs()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

bool CWatchdogClock::sleepFor(std::unique_lock<std::mutex>& lock, std::condition_variable& cv, int64_t ms,
                              const std::function<bool()>& done)
{
    return cv.wait_for(lock, std::chrono::milliseconds(ms), done);
}

std::shared_ptr<CWatchdogClock> CWatchdogClock::current()
{
    std::lock_guard<std::mutex> lock(g_mutex);
    if (!g_clock)
        g_clock = std::make_shared<CWatchdogClock>();
    return g_clock;
}

void CWatchdogClock::setCurrent(const std::shared_ptr<CWatchdogClock>& clock)
{
    std::lock_guard<std::mutex> lock(g_mutex);
    g_clock = clock;
}

} // namespace GenICam
} // namespace Vorlen
