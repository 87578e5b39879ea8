#include "AravisSystem.h"

namespace Vorlen {
namespace GenICam {

std::mutex& aravisSystemMutex()
{
    static std::mutex mutex;
    return mutex;
}

} // namespace GenICam
} // namespace Vorlen
