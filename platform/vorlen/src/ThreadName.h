#pragma once
// Names the calling thread (at most 15 characters), so that the library's
// threads can be told apart in a debugger, in /proc and in tests.
#include <pthread.h>

namespace Vorlen {
namespace GenICam {

inline void nameThisThread(const char* name)
{
    pthread_setname_np(pthread_self(), name);
}

} // namespace GenICam
} // namespace Vorlen
