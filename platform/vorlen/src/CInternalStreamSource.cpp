#include "Vorlen/GenICam/CInternalStreamSource.h"

#include <algorithm>
#include <chrono>
#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <mutex>
#include <thread>

#include "CAravisCamera.h"
#include "EventHub.h"
#include "FrameData.h"
#include "StreamStatisticsCounter.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using Infra::clearLastError;
using Infra::setLastError;

namespace {

// Default buffer count of a stream that was never given one.
constexpr unsigned int kDefaultBufferCount = 8;
// Packet size used on loopback when none was set: the link has no MTU worth
// speaking of, and large packets cost far less CPU than 1500-byte ones.
constexpr unsigned int kLoopbackPacketSize = 8192;
// GVSP leader/trailer overhead per data packet (IP + UDP + GVSP headers).
constexpr unsigned int kPacketOverhead = 20 + 8 + 8;
// At most this many normal-frame events per second and stream.
constexpr int64_t kNormalEventIntervalNs = 100 * 1000 * 1000;

int64_t monotonicNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

const char* statusText(ArvBufferStatus status)
{
    switch (status) {
    case ARV_BUFFER_STATUS_SUCCESS: return "complete";
    case ARV_BUFFER_STATUS_CLEARED: return "buffer cleared";
    case ARV_BUFFER_STATUS_TIMEOUT: return "block incomplete: packets still missing when the wait ran out";
    case ARV_BUFFER_STATUS_MISSING_PACKETS: return "block incomplete: packets missing";
    case ARV_BUFFER_STATUS_WRONG_PACKET_ID: return "packet with a wrong id";
    case ARV_BUFFER_STATUS_SIZE_MISMATCH: return "block larger than the buffer";
    case ARV_BUFFER_STATUS_FILLING: return "block still filling";
    case ARV_BUFFER_STATUS_ABORTED: return "block aborted";
    default: return "unknown status";
    }
}

EStreamEventStatus eventStatusOf(ArvBufferStatus status)
{
    switch (status) {
    case ARV_BUFFER_STATUS_SUCCESS: return streamEventNormal;
    case ARV_BUFFER_STATUS_MISSING_PACKETS: return streamEventLostPacket;
    case ARV_BUFFER_STATUS_TIMEOUT: return streamEventTooManyLostPacket;
    case ARV_BUFFER_STATUS_ABORTED: return streamEventStreamChannelError;
    default: return streamEventImageError;
    }
}

bool isLoopback(const std::string& ip)
{
    return ip.compare(0, 4, "127.") == 0;
}

bool isIncomplete(ArvBufferStatus status)
{
    return status == ARV_BUFFER_STATUS_MISSING_PACKETS || status == ARV_BUFFER_STATUS_TIMEOUT;
}

// Packets an incomplete block lacks: the data packets whose place stayed
// empty, and at least one (a lost leader or trailer leaves no hole).
uint64_t missingPacketsOf(const GrabSession& s, ArvBuffer* buffer)
{
    if (!s.marks.enabled() || !isIncomplete(arv_buffer_get_status(buffer)))
        return 0;
    return std::max<uint64_t>(1, s.marks.countMissing(buffer));
}

// Stream thread: counts every finished buffer. userData is the grab
// session, which lives until its stream (and this thread) is gone.
void streamCallback(void* userData, ArvStreamCallbackType type, ArvBuffer* buffer)
{
    if (type == ARV_STREAM_CALLBACK_TYPE_START_BUFFER && buffer)
        bufferTakeOver(buffer);
    if (type != ARV_STREAM_CALLBACK_TYPE_BUFFER_DONE || !buffer || !userData)
        return;
    const GrabSession& s = *static_cast<const GrabSession*>(userData);
    if (!s.callbackStats)
        return;
    size_t size = 0;
    const ArvBufferStatus status = arv_buffer_get_status(buffer);
    if (status == ARV_BUFFER_STATUS_SUCCESS)
        arv_buffer_get_data(buffer, &size);
    s.callbackStats->onBufferDone(status, size, monotonicNs(), missingPacketsOf(s, buffer));
    bufferHandOff(buffer);   // on its way to the output queue
}

// Control-lost handler data: the session by weak pointer, freed with the handler.
struct SLostBox
{
    std::weak_ptr<GrabSession> session;
};

void onControlLost(ArvDevice*, gpointer userData)
{
    auto* box = static_cast<SLostBox*>(userData);
    if (auto s = box->session.lock())
        s->controlLost.store(true);
}

void destroyLostBox(gpointer userData, GClosure*)
{
    delete static_cast<SLostBox*>(userData);
}

} // namespace

// Data lost during one getFrame call, reported as its last error.
struct SLoss
{
    uint64_t failedBlocks = 0;     // blocks closed incomplete or in error
    uint64_t missingBlocks = 0;    // block ids skipped
    char text[160] = {};

    void blockFailed(const char* description)
    {
        ++failedBlocks;
        std::snprintf(text, sizeof(text), "%s", description);
    }
    void blocksMissing(uint64_t n, const char* description)
    {
        missingBlocks += n;
        if (failedBlocks == 0)
            std::snprintf(text, sizeof(text), "%s", description);
    }
    bool any() const { return failedBlocks + missingBlocks > 0; }
    // Blocks dropped for want of a free buffer leave gaps in the block ids,
    // and the block under way when a buffer came free again arrives cut at
    // its start: those are overrides (the application held its buffers),
    // not loss.
    bool shown(uint64_t newUnderruns) const
    {
        const uint64_t explained = newUnderruns > 0 ? newUnderruns + 1 : 0;
        return failedBlocks + missingBlocks > explained;
    }
};

struct CInternalStreamSource::SImpl
{
    ICameraPtr camera;
    uint16_t channel = 0;

    // Settings, applied at the next startGrabbing.
    unsigned int bufferCount = kDefaultBufferCount;
    bool interPacketTimeoutSet = false;
    unsigned int interPacketTimeoutMs = 0;
    bool resendSet = false;
    unsigned int singleResendMax = 0;
    bool maxLostSet = false;
    unsigned int maxLostPackets = 0;
    unsigned int packetSize = 0;

    std::mutex apiMutex;   // start, stop and settings
    std::shared_ptr<StreamCore> core = std::make_shared<StreamCore>();
    std::shared_ptr<StreamStatisticsCounter> stats = std::make_shared<StreamStatisticsCounter>();

    ~SImpl();
    bool start(unsigned long maxImages, EGrabStrategy strategy);
    bool stop();
    bool getFrame(CFrame& frame, unsigned int timeoutMs);

    bool channelFailed(const GrabSession& s) const;
    void publish(const SStreamArg& arg) const;
    // Both describe the loss they found in `loss` (left alone when none), for
    // the last error of getFrame.
    void reportFailed(GrabSession& s, ArvBuffer* buffer, uint64_t blockId, uint64_t generation, SLoss& loss);
    void noteBlockId(GrabSession& s, uint64_t blockId, uint64_t timestamp, SLoss& loss);
    // A block closed complete but short of its image: counted and reported
    // as incomplete, its buffer goes back to the stream.
    void reportShort(GrabSession& s, CFrame::SData& data, uint64_t generation, SLoss& loss);
    void applyStreamOptions(ArvStream* stream, unsigned int payload, unsigned int packetBytes);
    void giveBack(ArvBuffer* buffer, uint64_t generation) { core->recycle(buffer, generation); }
};

CInternalStreamSource::SImpl::~SImpl()
{
    bool grabbing;
    {
        std::lock_guard<std::mutex> lock(core->mutex);
        grabbing = core->grabbing;
    }
    if (grabbing)
        stop();
}

bool CInternalStreamSource::SImpl::channelFailed(const GrabSession& s) const
{
    return s.controlLost.load() || !camera || !camera->isConnected();
}

void CInternalStreamSource::SImpl::publish(const SStreamArg& arg) const
{
    if (camera && EventHub::hasStreamSubscribers(camera.get()))
        EventHub::publishStream(camera.get(), arg);
}

void CInternalStreamSource::SImpl::noteBlockId(GrabSession& s, uint64_t blockId, uint64_t timestamp, SLoss& loss)
{
    if (blockId == 0)
        return;
    const bool first = s.lastBlockId == 0;
    const uint64_t previous = s.lastBlockId;
    if (blockId > previous)
        s.lastBlockId = blockId;
    if (first || blockId <= previous + 1)
        return;
    const uint64_t missing = blockId - previous - 1;
    SStreamArg arg;
    arg.channel = channel;
    arg.blockId = previous + 1;
    arg.timeStamp = timestamp;
    arg.eStreamEventStatus = streamEventLostFrame;
    arg.status = 0;
    char text[96];
    std::snprintf(text, sizeof(text), "%" PRIu64 " block(s) missing before block %" PRIu64, missing, blockId);
    arg.description = text;
    loss.blocksMissing(missing, text);
    publish(arg);
}

void CInternalStreamSource::SImpl::reportFailed(GrabSession& s, ArvBuffer* buffer, uint64_t blockId, uint64_t generation,
                                               SLoss& loss)
{
    const ArvBufferStatus status = arv_buffer_get_status(buffer);
    SStreamArg arg;
    arg.channel = channel;
    arg.blockId = blockId;
    arg.timeStamp = arv_buffer_get_timestamp(buffer);
    arg.eStreamEventStatus = eventStatusOf(status);
    arg.status = uint32_t(int32_t(status));
    arg.description = statusText(status);
    if (status == ARV_BUFFER_STATUS_MISSING_PACKETS || status == ARV_BUFFER_STATUS_TIMEOUT) {
        // The resend budget of a block was used up: report it as such.
        const guint64 reached = arv_stream_get_info_uint64_by_name(s.stream, "n_resend_ratio_reached");
        if (reached > s.lastResendRatioReached) {
            arg.eStreamEventStatus = streamEventTooManyConsecutiveResends;
            arg.description = "block incomplete: resend request limit reached";
        }
        s.lastResendRatioReached = reached;
    }
    char text[160];
    if (isIncomplete(status) && s.marks.enabled())
        std::snprintf(text, sizeof(text), "block %" PRIu64 " incomplete, %" PRIu64 " packet(s) missing", blockId,
                      missingPacketsOf(s, buffer));
    else
        std::snprintf(text, sizeof(text), "block %" PRIu64 ": %s", blockId, statusText(status));
    loss.blockFailed(text);
    publish(arg);
    giveBack(buffer, generation);
}

void CInternalStreamSource::SImpl::reportShort(GrabSession& s, CFrame::SData& data, uint64_t generation, SLoss& loss)
{
    (void)s;
    stats->onShortBlock();
    char text[160];
    std::snprintf(text, sizeof(text), "block %" PRIu64 " incomplete, %" PRIu64 " of %" PRIu64 " image bytes arrived",
                  data.blockId, data.imageSize, data.minimumImageBytes());
    SStreamArg arg;
    arg.channel = channel;
    arg.blockId = data.blockId;
    arg.timeStamp = data.timestamp;
    arg.eStreamEventStatus = streamEventLostPacket;
    arg.status = uint32_t(int32_t(ARV_BUFFER_STATUS_MISSING_PACKETS));
    arg.description = text;
    loss.blockFailed(text);
    publish(arg);
    ArvBuffer* buffer = data.buffer;
    data.buffer = nullptr;   // not held by a frame: back to the stream here
    giveBack(buffer, generation);
}

void CInternalStreamSource::SImpl::applyStreamOptions(ArvStream* stream, unsigned int payload, unsigned int packetBytes)
{
    if (!ARV_IS_GV_STREAM(stream))
        return;
    if (interPacketTimeoutSet && interPacketTimeoutMs > 0) {
        // How long a block waits for its next packet before it is closed
        // incomplete. 0 keeps Aravis' own wait.
        const guint us = guint(std::min<uint64_t>(uint64_t(interPacketTimeoutMs) * 1000u, G_MAXUINT));
        g_object_set(stream, "frame-retention", us, nullptr);
    }
    if (resendSet && singleResendMax == 0)
        g_object_set(stream, "packet-resend", ARV_GV_STREAM_PACKET_RESEND_NEVER, nullptr);
    if (maxLostSet && payload > 0) {
        // Resend requests of one block, as a share of its packets.
        const unsigned int dataBytes = packetBytes > kPacketOverhead ? packetBytes - kPacketOverhead : packetBytes;
        const double packets = std::ceil(double(payload) / double(std::max(1u, dataBytes)));
        const double ratio = std::min(1.0, std::max(0.0, double(maxLostPackets) / std::max(1.0, packets)));
        g_object_set(stream, "packet-request-ratio", ratio, nullptr);
    }
}

bool CInternalStreamSource::SImpl::start(unsigned long maxImagesArg, EGrabStrategy strategyArg)
{
    std::lock_guard<std::mutex> api(apiMutex);
    {
        std::lock_guard<std::mutex> lock(core->mutex);
        if (core->grabbing) {
            setLastError(Infra::ERR_STREAM_BUSY, "the stream is already grabbing");
            return false;
        }
    }
    CAravisCamera* ac = toAravisCamera(camera);
    if (!ac) {
        setLastError(Infra::ERR_INVALID_HANDLE, "no camera behind the stream");
        return false;
    }
    if (!ac->isConnected()) {
        setLastError(Infra::ERR_NOT_CONNECTED, "the camera is not connected");
        return false;
    }

    auto session = std::make_shared<GrabSession>();
    SFallbackGeometry geometry;
    std::shared_ptr<ChunkContext> chunkContext;
    unsigned int payload = 0;
    {
        std::lock_guard<std::recursive_mutex> gc(ac->gcMutex());
        ArvCamera* cam = ac->arvCamera();
        if (!cam) {
            setLastError(Infra::ERR_NOT_CONNECTED, "the camera is not connected");
            return false;
        }
        GError* error = nullptr;
        const bool gige = arv_camera_is_gv_device(cam);
        if (gige && channel > 0) {
            arv_camera_gv_select_stream_channel(cam, channel, &error);
            if (error) {
                setLastError(Infra::ERR_INVALID_PARAMETER, error->message);
                g_clear_error(&error);
                return false;
            }
        }
        unsigned int packetBytes = 0;
        if (gige) {
            unsigned int wanted = packetSize;
            if (wanted == 0 && isLoopback(ac->discoveryInfo().ipAddress)) {
                const guint current = arv_camera_gv_get_packet_size(cam, nullptr);
                if (current < kLoopbackPacketSize)
                    wanted = kLoopbackPacketSize;
            }
            if (wanted > 0) {
                arv_camera_gv_set_packet_size(cam, gint(wanted), &error);
                if (error) {
                    LOG_WARN("packet size %u refused: %s", wanted, error->message);
                    g_clear_error(&error);
                }
            }
            packetBytes = arv_camera_gv_get_packet_size(cam, nullptr);
        }

        payload = arv_camera_get_payload(cam, &error);
        if (error || payload == 0) {
            setLastError(Infra::ERR_READ_FAILED, error ? error->message : "payload size is 0");
            g_clear_error(&error);
            return false;
        }

        // Geometry for payloads that carry none (chunk-only, JPEG).
        gint x = 0, y = 0, w = 0, h = 0;
        arv_camera_get_region(cam, &x, &y, &w, &h, &error);
        g_clear_error(&error);
        geometry.width = uint32_t(std::max(w, 0));
        geometry.height = uint32_t(std::max(h, 0));
        geometry.offsetX = uint64_t(std::max(x, 0));
        geometry.offsetY = uint64_t(std::max(y, 0));
        geometry.pixelFormat = uint32_t(arv_camera_get_pixel_format(cam, &error));
        g_clear_error(&error);

        // Chunk decoding, when the camera has chunks at all.
        ArvDevice* device = arv_camera_get_device(cam);
        if (arv_camera_are_chunks_available(cam, nullptr)) {
            size_t xmlSize = 0;
            const char* xml = arv_device_get_genicam_xml(device, &xmlSize);
            if (xml && xmlSize > 0) {
                chunkContext = std::make_shared<ChunkContext>();
                chunkContext->parser = arv_chunk_parser_new(xml, xmlSize);
                chunkContext->features = findChunkFeatures(arv_device_get_genicam(device));
            }
        }

        session->callbackStats = stats;
        if (gige && packetBytes > kPacketOverhead) {
            session->marks.payload = payload;
            session->marks.blockSize = packetBytes - kPacketOverhead;
        }
        ArvStream* stream = arv_camera_create_stream(cam, streamCallback, session.get(), &error);
        if (!stream) {
            setLastError(Infra::ERR_IO, error ? error->message : "cannot create the stream");
            g_clear_error(&error);
            return false;
        }
        g_clear_error(&error);
        session->stream = stream;
        applyStreamOptions(stream, payload, packetBytes);

        for (unsigned int i = 0; i < bufferCount; ++i) {
            ArvBuffer* buffer = arv_buffer_new_allocate(payload);
            session->marks.mark(buffer);
            bufferHandOff(buffer);
            arv_stream_push_buffer(stream, buffer);
        }
        {
            std::lock_guard<std::mutex> lock(core->mutex);
            stats->attach(stream);
        }

        arv_camera_set_acquisition_mode(cam, ARV_ACQUISITION_MODE_CONTINUOUS, &error);
        if (error) {
            LOG_WARN("AcquisitionMode Continuous refused: %s", error->message);
            g_clear_error(&error);
        }
        arv_camera_start_acquisition(cam, &error);
        if (error) {
            setLastError(Infra::ERR_WRITE_FAILED, error->message);
            g_clear_error(&error);
            std::lock_guard<std::mutex> lock(core->mutex);
            stats->detach(stream);
            return false;   // the session frees the stream
        }

        session->device = ARV_DEVICE(g_object_ref(device));
        auto* lostBox = new SLostBox{session};
        session->controlLostHandler =
            g_signal_connect_data(device, "control-lost", G_CALLBACK(onControlLost), lostBox, destroyLostBox, GConnectFlags(0));
    }

    session->strategy = strategyArg;
    session->maxImages = maxImagesArg;
    session->fallback = geometry;
    session->chunks = chunkContext;
    {
        std::lock_guard<std::mutex> lock(core->mutex);
        core->session = session;
        core->generation++;
        core->grabbing = true;
    }
    LOG_DEBUG("stream started: channel %u, %u buffers of %u bytes", unsigned(channel), bufferCount, payload);
    clearLastError();
    return true;
}

bool CInternalStreamSource::SImpl::stop()
{
    std::lock_guard<std::mutex> api(apiMutex);
    std::shared_ptr<GrabSession> session;
    {
        std::lock_guard<std::mutex> lock(core->mutex);
        if (!core->grabbing) {
            setLastError(Infra::ERR_STREAM_NOT_OPEN, "the stream is not grabbing");
            return false;
        }
        // From here on released buffers are freed, not pushed back.
        core->grabbing = false;
        core->generation++;
        session = core->session;
    }

    // A camera that is gone would only make every command wait for its
    // timeouts.
    CAravisCamera* ac = toAravisCamera(camera);
    const bool cameraGone = channelFailed(*session);
    if (ac && !cameraGone) {
        std::lock_guard<std::recursive_mutex> gc(ac->gcMutex());
        if (ArvCamera* cam = ac->arvCamera()) {
            GError* error = nullptr;
            arv_camera_stop_acquisition(cam, &error);
            if (error) {
                LOG_WARN("AcquisitionStop failed: %s", error->message);
                g_clear_error(&error);
            }
        }
    }

    // Wait for a reader still inside getFrame, then let the stream go: its
    // release stops the receiving thread and frees the buffers still queued.
    // Buffers held by frames are freed when their last frame goes.
    {
        std::lock_guard<std::mutex> reader(session->readMutex);
        std::lock_guard<std::mutex> lock(core->mutex);
        stats->detach(session->stream);
        core->session.reset();
    }
    if (session->device && session->controlLostHandler) {
        g_signal_handler_disconnect(session->device, session->controlLostHandler);
        session->controlLostHandler = 0;
    }
    if (cameraGone) {
        // The session may hold the last reference to a vanished camera's
        // device, whose release waits for the control channel to time out:
        // do not make the caller (often the GUI thread) wait for that.
        std::thread([s = std::move(session)]() mutable { s.reset(); }).detach();
    }
    session.reset();
    LOG_DEBUG("stream stopped: channel %u, %d buffer(s) still held by frames", unsigned(channel),
              core->heldBuffers.load());
    clearLastError();
    return true;
}

bool CInternalStreamSource::SImpl::getFrame(CFrame& frame, unsigned int timeoutMs)
{
    // Give the caller's previous buffer back first: a reader that reuses one
    // frame object must not starve the stream.
    frame.reset();

    std::shared_ptr<GrabSession> session;
    uint64_t generation = 0;
    {
        std::lock_guard<std::mutex> lock(core->mutex);
        if (!core->grabbing || !core->session) {
            setLastError(Infra::ERR_STREAM_NOT_OPEN, "the stream is not grabbing");
            return false;
        }
        session = core->session;
        generation = core->generation;
    }
    GrabSession& s = *session;
    std::lock_guard<std::mutex> reader(s.readMutex);

    if (s.limitReached) {
        clearLastError();
        return false;
    }

    const int64_t deadline = monotonicNs() + int64_t(timeoutMs) * 1000000LL;
    bool overridden = false;
    // An incomplete or missing block met on the way is this call's last
    // error, even when a complete frame follows it: the loss must show.
    SLoss loss;
    for (;;) {
        const int64_t remainingNs = deadline - monotonicNs();
        ArvBuffer* buffer = nullptr;
        if (remainingNs > 0)
            buffer = arv_stream_timeout_pop_buffer(s.stream, guint64(remainingNs / 1000));
        else
            buffer = arv_stream_try_pop_buffer(s.stream);
        if (!buffer)
            break;
        bufferTakeOver(buffer);

        uint64_t blockId = s.unwrapBlockId(arv_buffer_get_frame_id(buffer));
        noteBlockId(s, blockId, arv_buffer_get_timestamp(buffer), loss);
        if (arv_buffer_get_status(buffer) != ARV_BUFFER_STATUS_SUCCESS) {
            reportFailed(s, buffer, blockId, generation, loss);
            continue;
        }

        if (s.strategy == grabStrategyLatestImage) {
            // Only the newest complete frame is wanted: older ones go back.
            while (ArvBuffer* newer = arv_stream_try_pop_buffer(s.stream)) {
                bufferTakeOver(newer);
                const uint64_t newerId = s.unwrapBlockId(arv_buffer_get_frame_id(newer));
                noteBlockId(s, newerId, arv_buffer_get_timestamp(newer), loss);
                if (arv_buffer_get_status(newer) != ARV_BUFFER_STATUS_SUCCESS) {
                    reportFailed(s, newer, newerId, generation, loss);
                    continue;
                }
                giveBack(buffer, generation);
                stats->onLatestImageDrop();
                overridden = true;
                buffer = newer;
                blockId = newerId;
            }
        }

        auto data = Memory::makeShared<CFrame::SData>();
        data->buffer = buffer;
        data->core = core;
        data->generation = generation;
        data->chunkContext = s.chunks;
        data->describe(buffer, blockId, s.fallback);
        if (data->isImageShort()) {
            reportShort(s, *data, generation, loss);
            continue;
        }
        core->heldBuffers.fetch_add(1, std::memory_order_relaxed);
        frame = CFrame(data);

        const int64_t now = monotonicNs();
        if (now - s.lastNormalEventNs >= kNormalEventIntervalNs && camera
            && EventHub::hasStreamSubscribers(camera.get())) {
            s.lastNormalEventNs = now;
            SStreamArg arg;
            arg.channel = channel;
            arg.blockId = blockId;
            arg.timeStamp = data->timestamp;
            arg.eStreamEventStatus = streamEventNormal;
            arg.status = uint32_t(ARV_BUFFER_STATUS_SUCCESS);
            arg.description = statusText(ARV_BUFFER_STATUS_SUCCESS);
            EventHub::publishStream(camera.get(), arg);
        }

        // Frames dropped for want of a free buffer since the last call.
        guint64 underruns = 0;
        arv_stream_get_statistics(s.stream, nullptr, nullptr, &underruns);
        uint64_t newUnderruns = 0;
        if (underruns > s.lastUnderruns) {
            newUnderruns = underruns - s.lastUnderruns;
            s.lastUnderruns = underruns;
            overridden = true;
        }
        s.channelErrorReported = false;
        if (loss.shown(newUnderruns))
            setLastError(Infra::ERR_NO_FRAME, loss.text);
        else if (overridden)
            setLastError(Infra::WARN_BUFFER_OVERRIDE);
        else
            clearLastError();

        if (s.maxImages > 0 && ++s.delivered >= s.maxImages) {
            s.limitReached = true;
            CAravisCamera* ac = toAravisCamera(camera);
            if (ac) {
                std::lock_guard<std::recursive_mutex> gc(ac->gcMutex());
                if (ArvCamera* cam = ac->arvCamera())
                    arv_camera_stop_acquisition(cam, nullptr);
            }
        }
        return true;
    }

    // Nothing complete within the timeout.
    if (channelFailed(s)) {
        setLastError(Infra::ERROR_STREAM_CHANNEL_ERROR, "the camera does not answer any more");
        if (!s.channelErrorReported) {
            s.channelErrorReported = true;
            SStreamArg arg;
            arg.channel = channel;
            arg.blockId = s.lastBlockId;
            arg.eStreamEventStatus = streamEventStreamChannelError;
            arg.description = "stream channel error: the camera does not answer any more";
            publish(arg);
            LOG_ERROR("stream channel %u: the camera does not answer any more", unsigned(channel));
        }
    } else if (loss.any()) {
        // Underruns are taken into account with the next frame; peek only.
        guint64 underruns = 0;
        arv_stream_get_statistics(s.stream, nullptr, nullptr, &underruns);
        if (loss.shown(underruns > s.lastUnderruns ? underruns - s.lastUnderruns : 0))
            setLastError(Infra::ERR_NO_FRAME, loss.text);
        else
            clearLastError();
    } else {
        clearLastError();
    }
    return false;
}

// ---------------------------------------------------------------------------

CInternalStreamSource::CInternalStreamSource(const Memory::TSharedPtr<ICamera>& camera, uint16_t channel)
    : d(Memory::makeShared<SImpl>())
{
    d->camera = camera;
    d->channel = channel;
}

CInternalStreamSource::~CInternalStreamSource() = default;

namespace {

bool settingsLocked(const std::shared_ptr<StreamCore>& core)
{
    std::lock_guard<std::mutex> lock(core->mutex);
    if (core->grabbing) {
        setLastError(Infra::ERR_STREAM_BUSY, "stream settings are taken before grabbing starts");
        return true;
    }
    return false;
}

// A transport setting applies only to its own kind of camera, and only
// before grabbing starts.
bool settingAccepted(const ICamera* camera, EInterfaceType kind, const std::shared_ptr<StreamCore>& core)
{
    if (camera && camera->getType() != kind) {
        setLastError(Infra::ERR_NOT_SUPPORTED, kind == typeGigEVision ? "GigE Vision only" : "USB3 Vision only");
        return false;
    }
    return !settingsLocked(core);
}

} // namespace

bool CInternalStreamSource::setBufferCount(unsigned int count)
{
    std::lock_guard<std::mutex> api(d->apiMutex);
    if (count == 0) {
        setLastError(Infra::ERR_INVALID_PARAMETER, "buffer count 0");
        return false;
    }
    if (settingsLocked(d->core))
        return false;
    d->bufferCount = count;
    clearLastError();
    return true;
}

bool CInternalStreamSource::setInterPacketTimeout(unsigned int ms)
{
    std::lock_guard<std::mutex> api(d->apiMutex);
    if (!settingAccepted(d->camera.get(), typeGigEVision, d->core))
        return false;
    d->interPacketTimeoutSet = true;
    d->interPacketTimeoutMs = ms;
    clearLastError();
    return true;
}

bool CInternalStreamSource::setSingleResendMaxPacketNum(unsigned int count)
{
    std::lock_guard<std::mutex> api(d->apiMutex);
    if (!settingAccepted(d->camera.get(), typeGigEVision, d->core))
        return false;
    // 0 turns resends off; Aravis has no per-request packet limit, so any
    // other count leaves resends as Aravis and the camera agree on.
    if (count > 0)
        LOG_WARN("SingleResendMaxPacketNum %u has no counterpart in the receiver; packet resend stays enabled", count);
    d->resendSet = true;
    d->singleResendMax = count;
    clearLastError();
    return true;
}

bool CInternalStreamSource::setMaxLostPacketNum(unsigned int count)
{
    std::lock_guard<std::mutex> api(d->apiMutex);
    if (!settingAccepted(d->camera.get(), typeGigEVision, d->core))
        return false;
    d->maxLostSet = true;
    d->maxLostPackets = count;
    clearLastError();
    return true;
}

bool CInternalStreamSource::setUrbTransfer(unsigned int count, unsigned int size)
{
    std::lock_guard<std::mutex> api(d->apiMutex);
    if (!settingAccepted(d->camera.get(), typeUsb3Vision, d->core))
        return false;
    LOG_WARN("urb number count %u, urb size count %u have no counterpart in the receiver; its own transfer sizes are used",
             count, size);
    clearLastError();
    return true;
}

bool CInternalStreamSource::setPacketSize(unsigned int bytes)
{
    std::lock_guard<std::mutex> api(d->apiMutex);
    if (d->camera && d->camera->getType() != typeGigEVision) {
        setLastError(Infra::ERR_NOT_SUPPORTED, "GigE Vision only");
        return false;
    }
    if (bytes == 0 || bytes > 65535) {
        setLastError(Infra::ERR_OUT_OF_RANGE, "packet size 1 to 65535");
        return false;
    }
    if (settingsLocked(d->core))
        return false;
    d->packetSize = bytes;
    clearLastError();
    return true;
}

bool CInternalStreamSource::startGrabbing(unsigned long maxImages, EGrabStrategy strategy)
{
    return d->start(maxImages, strategy);
}

bool CInternalStreamSource::stopGrabbing()
{
    return d->stop();
}

bool CInternalStreamSource::isGrabbing() const
{
    std::lock_guard<std::mutex> lock(d->core->mutex);
    return d->core->grabbing;
}

bool CInternalStreamSource::getFrame(CFrame& frame, unsigned int timeoutMs)
{
    return d->getFrame(frame, timeoutMs);
}

uint64_t CInternalStreamSource::getLostFrameCount() const
{
    std::lock_guard<std::mutex> lock(d->core->mutex);
    ArvStream* stream = d->core->session ? d->core->session->stream : nullptr;
    return lostFrames(d->stats->totals(stream));
}

bool CInternalStreamSource::getStatisticsInfo(StreamStatisticsInfo& info) const
{
    info = StreamStatisticsInfo();
    std::lock_guard<std::mutex> lock(d->core->mutex);
    ArvStream* stream = d->core->session ? d->core->session->stream : nullptr;
    d->stats->fill(stream, info, monotonicNs());
    clearLastError();
    return true;
}

bool CInternalStreamSource::resetStatisticsInfo()
{
    std::lock_guard<std::mutex> lock(d->core->mutex);
    ArvStream* stream = d->core->session ? d->core->session->stream : nullptr;
    d->stats->reset(stream);
    clearLastError();
    return true;
}

} // namespace GenICam
} // namespace Vorlen
