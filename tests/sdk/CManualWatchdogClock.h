#pragma once
// A clock for the loss watchdogs that moves only when the test says so, so
// that loss detection is measured in heartbeat periods, not wall time. Put
// it in (CWatchdogClock::setCurrent) before connecting: each watchdog takes
// the clock in use when it starts.
#include <atomic>
#include <map>
#include <mutex>

#include "CWatchdogClock.h"

class CManualWatchdogClock : public Vorlen::GenICam::CWatchdogClock
{
public:
    int64_t nowMs() override { return m_now.load(); }

    bool sleepFor(std::unique_lock<std::mutex>& lock, std::condition_variable& cv, int64_t ms,
                  const std::function<bool()>& done) override
    {
        const int64_t deadline = m_now.load() + ms;
        {
            std::lock_guard<std::mutex> clock(m_mutex);
            m_sleepers[&cv] = deadline;
        }
        // advance() notifies without the sleeper's mutex: the bounded wait
        // covers a notification that falls between test and wait.
        while (!done() && m_now.load() < deadline)
            cv.wait_for(lock, std::chrono::milliseconds(5));
        {
            std::lock_guard<std::mutex> clock(m_mutex);
            m_sleepers.erase(&cv);
        }
        return done();
    }

    void advance(int64_t ms)
    {
        std::lock_guard<std::mutex> clock(m_mutex);
        m_now += ms;
        for (const auto& sleeper : m_sleepers)
            sleeper.first->notify_all();
    }

    // Watchdogs asleep until a time still to come: each has judged the time
    // before and waits for the clock to move.
    int waiting()
    {
        std::lock_guard<std::mutex> clock(m_mutex);
        int n = 0;
        for (const auto& sleeper : m_sleepers)
            n += sleeper.second > m_now.load() ? 1 : 0;
        return n;
    }

private:
    std::atomic<int64_t> m_now{1000000};
    std::mutex m_mutex;
    std::map<std::condition_variable*, int64_t> m_sleepers;
};
