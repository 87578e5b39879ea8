#pragma once
// Data lost during one getFrame call, reported as its last error: blocks
// closed incomplete or in error, and block ids skipped.
#include <cstdint>
#include <cstdio>

namespace Vorlen {
namespace GenICam {

class CFrameLoss
{
public:
    void blockFailed(const char* description)
    {
        ++m_failedBlocks;
        std::snprintf(m_text, sizeof(m_text), "%s", description);
    }
    void blocksMissing(uint64_t n, const char* description)
    {
        m_missingBlocks += n;
        if (m_failedBlocks == 0)
            std::snprintf(m_text, sizeof(m_text), "%s", description);
    }
    bool any() const { return m_failedBlocks + m_missingBlocks > 0; }
    // Blocks dropped for want of a free buffer leave gaps in the block ids,
    // and the block under way when a buffer came free again arrives cut at
    // its start: those are overrides (the application held its buffers),
    // not loss.
    bool shown(uint64_t newUnderruns) const
    {
        const uint64_t explained = newUnderruns > 0 ? newUnderruns + 1 : 0;
        return m_failedBlocks + m_missingBlocks > explained;
    }
    const char* text() const { return m_text; }

private:
    uint64_t m_failedBlocks = 0;
    uint64_t m_missingBlocks = 0;
    char m_text[160] = {};
};

} // namespace GenICam
} // namespace Vorlen
