#pragma once
// A shared pointer that one thread replaces while others read it: copies are
// taken and replaced under a lock, and what a replacement lets go of is
// released by the caller, outside the lock.
#include <mutex>

#include "Vorlen/Memory/TSharedPtr.h"

template <class T>
class CGuardedPtr
{
public:
    Vorlen::Memory::TSharedPtr<T> get() const
    {
        std::lock_guard<std::mutex> locker(m_mutex);
        return m_ptr;
    }
    // Stores ptr and returns what was there.
    Vorlen::Memory::TSharedPtr<T> exchange(Vorlen::Memory::TSharedPtr<T> ptr)
    {
        std::lock_guard<std::mutex> locker(m_mutex);
        m_ptr.swap(ptr);
        return ptr;
    }
    Vorlen::Memory::TSharedPtr<T> take() { return exchange(Vorlen::Memory::TSharedPtr<T>()); }

private:
    mutable std::mutex m_mutex;   // standard, so that ThreadSanitizer sees it
    Vorlen::Memory::TSharedPtr<T> m_ptr;
};
