#pragma once
// Notices a GigE Vision camera gone silent. Aravis notices a lost camera
// only after about five seconds of retries, whatever the heartbeat; the
// watchdog reads the camera's control-channel privilege register over its
// own socket every quarter heartbeat interval and, once the camera has not
// answered for a whole interval, calls its callback (once) on its own
// thread. So a loss is known within about one and a half intervals.
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <thread>

namespace Vorlen {
namespace GenICam {

class CLossWatchdog
{
public:
    CLossWatchdog() = default;
    ~CLossWatchdog();
    CLossWatchdog(const CLossWatchdog&) = delete;
    CLossWatchdog& operator=(const CLossWatchdog&) = delete;

    // Starts watching the camera at cameraIp. The interval and the answer
    // timeout are read again before every probe; they must outlive the
    // watchdog. onSilent must not stop the watchdog.
    void start(uint32_t cameraIp, const std::atomic<unsigned int>& heartbeatMs,
               const std::atomic<unsigned int>& answerTimeoutMs, std::function<void()> onSilent);
    // Stops and joins the probing thread (not from onSilent).
    void stop();

private:
    void run(uint32_t cameraIp, const std::atomic<unsigned int>& heartbeatMs,
             const std::atomic<unsigned int>& answerTimeoutMs, const std::function<void()>& onSilent);

    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_stop = false;
};

} // namespace GenICam
} // namespace Vorlen
