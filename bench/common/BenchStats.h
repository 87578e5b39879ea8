#pragma once
// Figures the benchmarks print from a series of measured durations.
#include <QtGlobal>
#include <algorithm>
#include <vector>

namespace BenchStats {

// Median and 99th percentile, in ms, of durations in ns.
inline void percentiles(std::vector<qint64> ns, double& median, double& p99)
{
    median = p99 = 0.0;
    if (ns.empty())
        return;
    std::sort(ns.begin(), ns.end());
    median = ns[ns.size() / 2] / 1e6;
    p99 = ns[std::min(ns.size() - 1, size_t(double(ns.size()) * 0.99))] / 1e6;
}

} // namespace BenchStats
