#pragma once
// The time the loss watchdogs judge silence by and sleep on: the steady
// clock. Tests put in a clock of their own that they move themselves (a
// subclass), so that "lost within two heartbeat intervals" is counted in
// heartbeat periods rather than guessed from the wall clock.
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>

namespace Vorlen {
namespace GenICam {

class CWatchdogClock
{
public:
    virtual ~CWatchdogClock() = default;

    virtual int64_t nowMs();
    // Waits on cv, whose mutex lock holds, until ms have passed on this
    // clock or done() is true; returns done(). Whoever makes done() true
    // notifies cv with the mutex held.
    virtual bool sleepFor(std::unique_lock<std::mutex>& lock, std::condition_variable& cv, int64_t ms,
                          const std::function<bool()>& done);

    // The clock in use (the steady clock unless a test put in another).
    static std::shared_ptr<CWatchdogClock> current();
    // Watchdogs started after this call use clock; null: the steady clock.
    static void setCurrent(const std::shared_ptr<CWatchdogClock>& clock);
};

} // namespace GenICam
} // namespace Vorlen
