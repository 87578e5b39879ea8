#pragma once
// Lets an event through at most once per interval of the time given to it.
#include <cstdint>

namespace Vorlen {
namespace GenICam {

class CEventThrottle
{
public:
    explicit CEventThrottle(int64_t intervalNs) : m_intervalNs(intervalNs) {}

    // True (and the interval starts again) when the last event let through
    // lies at least one interval before nowNs; the first one always passes.
    bool pass(int64_t nowNs)
    {
        if (m_passed && nowNs - m_lastNs < m_intervalNs)
            return false;
        m_passed = true;
        m_lastNs = nowNs;
        return true;
    }

private:
    int64_t m_intervalNs;
    int64_t m_lastNs = 0;
    bool m_passed = false;
};

} // namespace GenICam
} // namespace Vorlen
