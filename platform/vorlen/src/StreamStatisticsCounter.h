#pragma once
// Counters behind CInternalStreamSource::getStatisticsInfo.
//
// Most counters are Aravis' own (read from the live ArvStream by name); a few
// are ours: buffer statuses tallied in the stream callback, and frames dropped
// by the latest-image strategy. A stream object lives from startGrabbing to
// stopGrabbing, so the counters of finished streams are accumulated, and
// resetStatisticsInfo stores a baseline that later readings are taken from.
#include <arv.h>
#include <array>
#include <atomic>
#include <cstdint>
#include <deque>
#include <mutex>
#include "Vorlen/GenICam/Defs.h"

namespace Vorlen {
namespace GenICam {

enum EStreamCounter
{
    // Aravis (arv_stream_get_info_*), in the order of kStreamInfoNames.
    ctrCompletedBuffers = 0,
    ctrFailures,
    ctrUnderruns,
    ctrTimeouts,
    ctrAborted,
    ctrMissingFrames,
    ctrSizeMismatchErrors,
    ctrReceivedPackets,
    ctrMissingPackets,
    ctrErrorPackets,
    ctrIgnoredPackets,
    ctrResendRequests,
    ctrResentPackets,
    ctrResendRatioReached,
    ctrResendDisabled,
    ctrDuplicatedPackets,
    ctrTransferredBytes,
    ctrIgnoredBytes,
    ctrArvCount,
    // Ours.
    ctrStatusMissingPackets = ctrArvCount,   // blocks closed with packets missing
    ctrStatusTimeout,                        // blocks given up waiting for packets
    ctrStatusImageError,                     // wrong packet id, size mismatch, ...
    ctrLatestImageDrops,                     // older frames dropped by grabStrategyLatestImage
    ctrLostPackets,                          // data packets that never arrived in closed blocks
    ctrShortBlocks,                          // blocks closed complete with less image data than described
    ctrCount
};

using StreamCounters = std::array<uint64_t, ctrCount>;

// Name of an Aravis stream info for a counter below ctrArvCount.
const char* streamInfoName(int counter);

// Maps raw counters onto the statistics record (rates are not touched).
void countersToInfo(const StreamCounters& c, StreamStatisticsInfo& info);
// Frames the application did not get: missing block ids, incomplete blocks,
// and blocks dropped because no buffer was free.
uint64_t lostFrames(const StreamCounters& c);

// Frame rate and bandwidth over the last second of completed frames.
class SlidingRate
{
public:
    explicit SlidingRate(int64_t windowNs = 1000000000LL, size_t maxEntries = 512);
    void add(int64_t nowNs, uint64_t bytes);
    // Rates as seen at nowNs; 0 when fewer than two frames fall into the
    // window (also when the stream has gone quiet for a whole window).
    void rates(int64_t nowNs, double& fps, double& mbps) const;
    void clear();

private:
    void trim(int64_t nowNs) const;
    int64_t m_windowNs;
    size_t m_maxEntries;
    mutable std::mutex m_mutex;
    mutable std::deque<std::pair<int64_t, uint64_t>> m_entries;
};

class StreamStatisticsCounter
{
public:
    StreamStatisticsCounter();

    // A new stream object: learns where its infos are.
    void attach(ArvStream* stream);
    // The stream object is going away: its final counters are kept.
    void detach(ArvStream* stream);

    // Stream thread: a buffer was finished with this status; missingPackets
    // is the number of its packets that never arrived (PacketMarks).
    void onBufferDone(ArvBufferStatus status, uint64_t bytes, int64_t nowNs, uint64_t missingPackets = 0);
    void onLatestImageDrop() { m_own[ctrLatestImageDrops - ctrArvCount].fetch_add(1, std::memory_order_relaxed); }
    void onShortBlock() { m_own[ctrShortBlocks - ctrArvCount].fetch_add(1, std::memory_order_relaxed); }

    // Totals since the last reset; stream may be null (not grabbing).
    StreamCounters totals(ArvStream* stream) const;
    void fill(ArvStream* stream, StreamStatisticsInfo& info, int64_t nowNs) const;
    void reset(ArvStream* stream);

    // One raw reading of a live stream's Aravis counters.
    StreamCounters readStream(ArvStream* stream) const;

private:
    StreamCounters raw(ArvStream* stream) const;   // accumulated + live + ours, no baseline

    mutable std::mutex m_mutex;
    std::array<int, ctrArvCount> m_infoIndex;     // info id per counter, -1 when absent
    StreamCounters m_accumulated{};                 // Aravis counters of finished streams
    StreamCounters m_baseline{};
    std::array<std::atomic<uint64_t>, ctrCount - ctrArvCount> m_own;
    SlidingRate m_rate;
};

} // namespace GenICam
} // namespace Vorlen
