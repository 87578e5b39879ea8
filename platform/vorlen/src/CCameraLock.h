#pragma once
// The lock of one camera's node map and register I/O (Aravis' node map is
// not thread-safe). Its holder may be in the middle of a round trip that a
// vanished camera never answers; so a thread that waits for it with
// lockUnlessLost() gives up as soon as the camera is known lost, instead of
// waiting out the holder's timeouts. lock()/unlock() make it usable with the
// standard lock guards where a wait must not give up (releasing the camera).
//
// mutex() is the underlying recursive mutex: a holder that takes it directly
// (tests simulating a call stuck in the camera) is waited for as well; its
// release is noticed within a few tens of milliseconds.
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>

namespace Vorlen {
namespace GenICam {

class CCameraLock
{
public:
    // isLost tells whether the camera is lost; any thread, never blocks.
    explicit CCameraLock(std::function<bool()> isLost) : m_isLost(std::move(isLost)) {}
    CCameraLock(const CCameraLock&) = delete;
    CCameraLock& operator=(const CCameraLock&) = delete;

    std::recursive_mutex& mutex() { return m_mutex; }

    void lock() { m_mutex.lock(); }
    void unlock();
    // Takes the lock; false (without it) when the camera is lost before or
    // while waiting.
    bool lockUnlessLost();
    // The camera was found lost: waiters of lockUnlessLost() give up.
    void notifyLost();

private:
    std::function<bool()> m_isLost;
    std::recursive_mutex m_mutex;
    std::mutex m_gateMutex;
    std::condition_variable m_gate;
    uint64_t m_releases = 0;   // guarded by m_gateMutex
};

} // namespace GenICam
} // namespace Vorlen
