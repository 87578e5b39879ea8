#pragma once
// Aravis' interface lists (device discovery, opening by id) are global and
// not thread-safe: every use goes through this lock.
#include <mutex>

namespace Vorlen {
namespace GenICam {

std::mutex& aravisSystemMutex();

} // namespace GenICam
} // namespace Vorlen
