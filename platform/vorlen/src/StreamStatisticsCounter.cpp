#include "StreamStatisticsCounter.h"

#include <algorithm>
#include <cstring>

namespace Vorlen {
namespace GenICam {

namespace {

const char* const kStreamInfoNames[ctrArvCount] = {
    "n_completed_buffers", "n_failures",         "n_underruns",         "n_timeouts",       "n_aborted",
    "n_missing_frames",    "n_size_mismatch_errors", "n_received_packets", "n_missing_packets", "n_error_packets",
    "n_ignored_packets",   "n_resend_requests",  "n_resent_packets",    "n_resend_ratio_reached",
    "n_resend_disabled",   "n_duplicated_packets", "n_transferred_bytes", "n_ignored_bytes"};

uint64_t minus(uint64_t a, uint64_t b)
{
    return a > b ? a - b : 0;
}

} // namespace

const char* streamInfoName(int counter)
{
    return (counter >= 0 && counter < ctrArvCount) ? kStreamInfoNames[counter] : "";
}

void countersToInfo(const StreamCounters& c, StreamStatisticsInfo& info)
{
    info.receivedImages = c[ctrCompletedBuffers];
    info.lostBlocks = lostFrames(c);
    info.errorImages = c[ctrFailures];
    info.overrideBlocks = c[ctrUnderruns] + c[ctrLatestImageDrops];
    info.lostPacketBlock = c[ctrStatusMissingPackets] + c[ctrShortBlocks];
    // Aravis stops asking for resends of a block once its request budget
    // (packet-request-ratio) is used up: that is the "too many resends" case.
    info.tooManyConsecutiveResendsBlock = c[ctrResendRatioReached];
    // A block still missing packets when its retention time ran out was given
    // up: too many packets lost to wait for.
    info.tooManyLostPacketBlock = c[ctrStatusTimeout];
    info.missingBlockId = c[ctrMissingFrames];
    // Packets really missing. Aravis' own n_missing_packets counts every
    // packet of a block after its first gap, received or not.
    info.lostPacket = c[ctrLostPackets];
    info.resendRequest = c[ctrResendRequests];
    // Aravis counts the resent packets that arrived; each one filled a hole,
    // so it is both a resent and a recovered packet.
    info.resendPacket = c[ctrResentPackets];
    info.recoveredPacket = c[ctrResentPackets];
    info.redundantPacket = c[ctrDuplicatedPackets];
    info.invalidFormatPacket = c[ctrErrorPackets];
}

uint64_t lostFrames(const StreamCounters& c)
{
    return c[ctrMissingFrames] + c[ctrFailures] + c[ctrUnderruns] + c[ctrShortBlocks];
}

// ---------------------------------------------------------------------------

SlidingRate::SlidingRate(int64_t windowNs, size_t maxEntries) : m_windowNs(windowNs), m_maxEntries(maxEntries) {}

void SlidingRate::add(int64_t nowNs, uint64_t bytes)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_entries.emplace_back(nowNs, bytes);
    trim(nowNs);
}

void SlidingRate::trim(int64_t nowNs) const
{
    while (!m_entries.empty() && (nowNs - m_entries.front().first > m_windowNs || m_entries.size() > m_maxEntries))
        m_entries.pop_front();
}

void SlidingRate::rates(int64_t nowNs, double& fps, double& mbps) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    trim(nowNs);
    fps = 0.0;
    mbps = 0.0;
    if (m_entries.size() < 2)
        return;
    const int64_t span = m_entries.back().first - m_entries.front().first;
    if (span <= 0)
        return;
    // The first frame opens the interval; the bytes of the others fill it.
    uint64_t bytes = 0;
    for (size_t i = 1; i < m_entries.size(); ++i)
        bytes += m_entries[i].second;
    fps = double(m_entries.size() - 1) * 1e9 / double(span);
    mbps = double(bytes) * 8.0 * 1e3 / double(span);   // bits per ns * 1e9 / 1e6
}

void SlidingRate::clear()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_entries.clear();
}

// ---------------------------------------------------------------------------

StreamStatisticsCounter::StreamStatisticsCounter()
{
    m_infoIndex.fill(-1);
    for (auto& v : m_own)
        v.store(0);
}

void StreamStatisticsCounter::attach(ArvStream* stream)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_infoIndex.fill(-1);
    if (!stream)
        return;
    const guint n = arv_stream_get_n_infos(stream);
    for (guint id = 0; id < n; ++id) {
        const char* name = arv_stream_get_info_name(stream, id);
        if (!name || arv_stream_get_info_type(stream, id) != G_TYPE_UINT64)
            continue;
        for (int c = 0; c < ctrArvCount; ++c) {
            if (std::strcmp(name, kStreamInfoNames[c]) == 0) {
                m_infoIndex[c] = int(id);
                break;
            }
        }
    }
}

StreamCounters StreamStatisticsCounter::readStream(ArvStream* stream) const
{
    StreamCounters c{};
    if (!stream)
        return c;
    guint64 completed = 0, failures = 0, underruns = 0;
    arv_stream_get_statistics(stream, &completed, &failures, &underruns);
    c[ctrCompletedBuffers] = completed;
    c[ctrFailures] = failures;
    c[ctrUnderruns] = underruns;
    if (ARV_IS_GV_STREAM(stream)) {
        guint64 resent = 0, missing = 0;
        arv_gv_stream_get_statistics(ARV_GV_STREAM(stream), &resent, &missing);
        c[ctrResentPackets] = resent;
        c[ctrMissingPackets] = missing;
    }
    for (int k = 0; k < ctrArvCount; ++k) {
        if (m_infoIndex[k] >= 0)
            c[k] = arv_stream_get_info_uint64(stream, guint(m_infoIndex[k]));
    }
    return c;
}

void StreamStatisticsCounter::detach(ArvStream* stream)
{
    if (!stream)
        return;
    std::lock_guard<std::mutex> lock(m_mutex);
    const StreamCounters last = readStream(stream);
    for (int k = 0; k < ctrArvCount; ++k)
        m_accumulated[k] += last[k];
    m_infoIndex.fill(-1);
}

void StreamStatisticsCounter::onBufferDone(ArvBufferStatus status, uint64_t bytes, int64_t nowNs,
                                           uint64_t missingPackets)
{
    if (missingPackets > 0)
        m_own[ctrLostPackets - ctrArvCount].fetch_add(missingPackets, std::memory_order_relaxed);
    int own = -1;
    switch (status) {
    case ARV_BUFFER_STATUS_SUCCESS:
        m_rate.add(nowNs, bytes);
        return;
    case ARV_BUFFER_STATUS_MISSING_PACKETS:
        own = ctrStatusMissingPackets;
        break;
    case ARV_BUFFER_STATUS_TIMEOUT:
        own = ctrStatusTimeout;
        break;
    case ARV_BUFFER_STATUS_ABORTED:     // acquisition stopped mid-block: Aravis counts it
    case ARV_BUFFER_STATUS_CLEARED:
    case ARV_BUFFER_STATUS_FILLING:
        return;
    default:
        own = ctrStatusImageError;
        break;
    }
    m_own[own - ctrArvCount].fetch_add(1, std::memory_order_relaxed);
}

StreamCounters StreamStatisticsCounter::raw(ArvStream* stream) const
{
    StreamCounters c = readStream(stream);
    for (int k = 0; k < ctrArvCount; ++k)
        c[k] += m_accumulated[k];
    for (int k = ctrArvCount; k < ctrCount; ++k)
        c[k] = m_own[k - ctrArvCount].load(std::memory_order_relaxed);
    return c;
}

StreamCounters StreamStatisticsCounter::totals(ArvStream* stream) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    StreamCounters c = raw(stream);
    for (int k = 0; k < ctrCount; ++k)
        c[k] = minus(c[k], m_baseline[k]);
    return c;
}

void StreamStatisticsCounter::fill(ArvStream* stream, StreamStatisticsInfo& info, int64_t nowNs) const
{
    countersToInfo(totals(stream), info);
    m_rate.rates(nowNs, info.acquisitionFps, info.bandwidthMbps);
}

void StreamStatisticsCounter::reset(ArvStream* stream)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_baseline = raw(stream);
    m_rate.clear();
}

} // namespace GenICam
} // namespace Vorlen
