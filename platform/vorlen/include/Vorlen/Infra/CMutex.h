#pragma once
// Recursive lock of the camera library.
#include <mutex>

namespace Vorlen {
namespace Infra {

class CMutex
{
public:
    CMutex() = default;
    CMutex(const CMutex&) = delete;
    CMutex& operator=(const CMutex&) = delete;

    void enter() { m_mutex.lock(); }
    bool tryEnter() { return m_mutex.try_lock(); }
    void leave() { m_mutex.unlock(); }

private:
    std::recursive_mutex m_mutex;
};

// Holds a CMutex for the life of the guard.
class CMutexGuard
{
public:
    explicit CMutexGuard(CMutex& mutex) : m_mutex(mutex) { m_mutex.enter(); }
    ~CMutexGuard() { m_mutex.leave(); }
    CMutexGuard(const CMutexGuard&) = delete;
    CMutexGuard& operator=(const CMutexGuard&) = delete;

private:
    CMutex& m_mutex;
};

} // namespace Infra
} // namespace Vorlen
