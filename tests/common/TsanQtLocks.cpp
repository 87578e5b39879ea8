// Linked into every test of a ThreadSanitizer build (never elsewhere).
//
// Qt 5's mutexes lock and unlock inside libQt5Core with futexes, where
// ThreadSanitizer cannot see them: every pair of threads that hands data over
// under a QMutex would be reported as racing. These definitions take the
// place of Qt's exported lock functions for the calls our code makes, call
// Qt's own, and tell ThreadSanitizer what happened (acquire after locking,
// release before unlocking, both around a condition wait). The inline fast
// path of QBasicMutex already uses atomics on the same address, so the two
// meet on one synchronisation object.
#include <QDeadlineTimer>
#include <QMutex>
#include <QReadWriteLock>
#include <QWaitCondition>

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

extern "C" void __tsan_acquire(void* addr);
extern "C" void __tsan_release(void* addr);

namespace {

// Qt's definition of a symbol that this file defines again.
template <class F>
F real(const char* symbol)
{
    void* p = dlsym(RTLD_NEXT, symbol);
    if (!p) {
        std::fprintf(stderr, "TsanQtLocks: %s not found in Qt\n", symbol);
        std::abort();
    }
    return reinterpret_cast<F>(p);
}

} // namespace

void QMutex::lock() noexcept
{
    static const auto f = real<void (*)(QMutex*)>("_ZN6QMutex4lockEv");
    f(this);
    __tsan_acquire(this);
}

bool QMutex::tryLock(int timeout) noexcept
{
    static const auto f = real<bool (*)(QMutex*, int)>("_ZN6QMutex7tryLockEi");
    const bool locked = f(this, timeout);
    if (locked)
        __tsan_acquire(this);
    return locked;
}

void QMutex::unlock() noexcept
{
    static const auto f = real<void (*)(QMutex*)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    f(this);
}

void QBasicMutex::lockInternal() noexcept
{
    static const auto f = real<void (*)(QBasicMutex*)>("_ZN11QBasicMutex12lockInternalEv");
    f(this);
    __tsan_acquire(this);
}

bool QBasicMutex::lockInternal(int timeout) noexcept
{
    static const auto f = real<bool (*)(QBasicMutex*, int)>("_ZN11QBasicMutex12lockInternalEi");
    const bool locked = f(this, timeout);
    if (locked)
        __tsan_acquire(this);
    return locked;
}

void QBasicMutex::unlockInternal() noexcept
{
    static const auto f = real<void (*)(QBasicMutex*)>("_ZN11QBasicMutex14unlockInternalEv");
    __tsan_release(this);
    f(this);
}

void QReadWriteLock::lockForRead()
{
    static const auto f = real<void (*)(QReadWriteLock*)>("_ZN14QReadWriteLock11lockForReadEv");
    f(this);
    __tsan_acquire(this);
}

void QReadWriteLock::lockForWrite()
{
    static const auto f = real<void (*)(QReadWriteLock*)>("_ZN14QReadWriteLock12lockForWriteEv");
    f(this);
    __tsan_acquire(this);
}

bool QReadWriteLock::tryLockForRead()
{
    static const auto f = real<bool (*)(QReadWriteLock*)>("_ZN14QReadWriteLock14tryLockForReadEv");
    const bool locked = f(this);
    if (locked)
        __tsan_acquire(this);
    return locked;
}

bool QReadWriteLock::tryLockForRead(int timeout)
{
    static const auto f = real<bool (*)(QReadWriteLock*, int)>("_ZN14QReadWriteLock14tryLockForReadEi");
    const bool locked = f(this, timeout);
    if (locked)
        __tsan_acquire(this);
    return locked;
}

bool QReadWriteLock::tryLockForWrite()
{
    static const auto f = real<bool (*)(QReadWriteLock*)>("_ZN14QReadWriteLock15tryLockForWriteEv");
    const bool locked = f(this);
    if (locked)
        __tsan_acquire(this);
    return locked;
}

bool QReadWriteLock::tryLockForWrite(int timeout)
{
    static const auto f = real<bool (*)(QReadWriteLock*, int)>("_ZN14QReadWriteLock15tryLockForWriteEi");
    const bool locked = f(this, timeout);
    if (locked)
        __tsan_acquire(this);
    return locked;
}

void QReadWriteLock::unlock()
{
    static const auto f = real<void (*)(QReadWriteLock*)>("_ZN14QReadWriteLock6unlockEv");
    __tsan_release(this);
    f(this);
}

bool QWaitCondition::wait(QMutex* mutex, QDeadlineTimer deadline)
{
    static const auto f =
        real<bool (*)(QWaitCondition*, QMutex*, QDeadlineTimer)>("_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer");
    __tsan_release(mutex);
    const bool woken = f(this, mutex, deadline);
    __tsan_acquire(mutex);
    return woken;
}

bool QWaitCondition::wait(QMutex* mutex, unsigned long time)
{
    static const auto f = real<bool (*)(QWaitCondition*, QMutex*, unsigned long)>("_ZN14QWaitCondition4waitEP6QMutexm");
    __tsan_release(mutex);
    const bool woken = f(this, mutex, time);
    __tsan_acquire(mutex);
    return woken;
}

bool QWaitCondition::wait(QReadWriteLock* lock, QDeadlineTimer deadline)
{
    static const auto f = real<bool (*)(QWaitCondition*, QReadWriteLock*, QDeadlineTimer)>(
        "_ZN14QWaitCondition4waitEP14QReadWriteLock14QDeadlineTimer");
    __tsan_release(lock);
    const bool woken = f(this, lock, deadline);
    __tsan_acquire(lock);
    return woken;
}

bool QWaitCondition::wait(QReadWriteLock* lock, unsigned long time)
{
    static const auto f = real<bool (*)(QWaitCondition*, QReadWriteLock*, unsigned long)>(
        "_ZN14QWaitCondition4waitEP14QReadWriteLockm");
    __tsan_release(lock);
    const bool woken = f(this, lock, time);
    __tsan_acquire(lock);
    return woken;
}
