#include "CLossWatchdog.h"

#include <algorithm>

#include "CWatchdogClock.h"
#include "Gvcp.h"
#include "ThreadName.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

CLossWatchdog::~CLossWatchdog()
{
    stop();
}

void CLossWatchdog::start(uint32_t cameraIp, const std::atomic<unsigned int>& heartbeatMs,
                          const std::atomic<unsigned int>& answerTimeoutMs, std::function<void()> onSilent)
{
    stop();
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = false;
    }
    m_thread = std::thread([this, cameraIp, &heartbeatMs, &answerTimeoutMs, onSilent] {
        run(cameraIp, heartbeatMs, answerTimeoutMs, onSilent);
    });
}

void CLossWatchdog::stop()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
    }
    m_wake.notify_all();
    if (!m_thread.joinable())
        return;
    // Never from onSilent; but the camera's last reference may go on this
    // very thread, and its end stops the watchdog.
    if (m_thread.get_id() == std::this_thread::get_id())
        m_thread.detach();
    else
        m_thread.join();
}

void CLossWatchdog::run(uint32_t cameraIp, const std::atomic<unsigned int>& heartbeatMs,
                        const std::atomic<unsigned int>& answerTimeoutMs, const std::function<void()>& onSilent)
{
    nameThisThread("vorlen-watchdog");
    const std::shared_ptr<CWatchdogClock> clock = CWatchdogClock::current();
    int64_t lastAnswer = clock->nowMs();
    for (;;) {
        const unsigned int heartbeat = std::max(200u, heartbeatMs.load());
        const unsigned int step = heartbeat / 4;
        const unsigned int timeout = std::min(step, std::max(50u, answerTimeoutMs.load()));
        uint32_t value = 0;
        const int result = Gvcp::readRegister(cameraIp, Gvcp::REG_CCP, value, timeout);
        const int64_t now = clock->nowMs();
        if (result != Infra::ERR_TIMEOUT) {
            lastAnswer = now;
        } else if (now - lastAnswer >= int64_t(heartbeat)) {
            LOG_WARN("camera at %s silent for %u ms", Gvcp::ipToString(cameraIp).c_str(), heartbeat);
            onSilent();
            return;
        }
        std::unique_lock<std::mutex> lock(m_mutex);
        if (clock->sleepFor(lock, m_wake, step, [this] { return m_stop; }))
            return;
    }
}

} // namespace GenICam
} // namespace Vorlen
