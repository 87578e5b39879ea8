#include "Vorlen/GenICam/CInternalStreamSource.h"

#include <chrono>
#include <mutex>

#include "CAravisCamera.h"
#include "CBackgroundWork.h"
#include "CFrameLoss.h"
#include "CStreamEventReporter.h"
#include "CStreamSettings.h"
#include "CStreamStartSequence.h"
#include "FrameData.h"
#include "StreamStatisticsCounter.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using Infra::clearLastError;
using Infra::setLastError;

namespace {

int64_t monotonicNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

} // namespace

struct CInternalStreamSource::SImpl
{
    SImpl(const ICameraPtr& cam, uint16_t ch) : camera(cam), channel(ch), events(cam, ch) {}
    ~SImpl();

    ICameraPtr camera;
    uint16_t channel = 0;
    CStreamSettings settings;   // applied at the next startGrabbing
    CStreamEventReporter events;

    std::mutex apiMutex;   // start, stop and settings
    std::shared_ptr<StreamCore> core = std::make_shared<StreamCore>();
    std::shared_ptr<StreamStatisticsCounter> stats = std::make_shared<StreamStatisticsCounter>();

    bool start(unsigned long maxImages, EGrabStrategy strategy);
    bool stop();
    bool getFrame(CFrame& frame, unsigned int timeoutMs);
    // Changes a setting when it may change now: the camera is of the kind
    // the setting is for (typeUndefined: any), the value is valid and the
    // stream is not grabbing. Otherwise false with the last error set.
    template <class Apply>
    bool change(EInterfaceType kind, bool valid, int invalidCode, const char* invalidText, Apply apply)
    {
        std::lock_guard<std::mutex> api(apiMutex);
        if (!settingAccepted(kind, valid, invalidCode, invalidText))
            return false;
        apply(settings);
        clearLastError();
        return true;
    }
    bool settingAccepted(EInterfaceType kind, bool valid, int invalidCode, const char* invalidText);

    bool grabbing() const;
    bool channelFailed(const GrabSession& s) const;
    // The newest complete frame queued behind buffer, the older ones given back.
    ArvBuffer* skipToNewest(GrabSession& s, ArvBuffer* buffer, uint64_t& blockId, uint64_t generation, CFrameLoss& loss,
                            bool& overridden);
    // Last error of a getFrame call that delivered a frame.
    void settleFrameError(GrabSession& s, const CFrameLoss& loss, bool overridden);
    void stopAcquisition();
};

CInternalStreamSource::SImpl::~SImpl()
{
    if (grabbing())
        stop();
}

bool CInternalStreamSource::SImpl::grabbing() const
{
    std::lock_guard<std::mutex> lock(core->mutex);
    return core->grabbing;
}

bool CInternalStreamSource::SImpl::channelFailed(const GrabSession& s) const
{
    return s.controlLost.load() || !camera || !camera->isConnected();
}

bool CInternalStreamSource::SImpl::settingAccepted(EInterfaceType kind, bool valid, int invalidCode,
                                                   const char* invalidText)
{
    if (kind != typeUndefined && camera && camera->getType() != kind) {
        setLastError(Infra::ERR_NOT_SUPPORTED, kind == typeGigEVision ? "GigE Vision only" : "USB3 Vision only");
        return false;
    }
    if (!valid) {
        setLastError(invalidCode, invalidText);
        return false;
    }
    if (grabbing()) {
        setLastError(Infra::ERR_STREAM_BUSY, "stream settings are taken before grabbing starts");
        return false;
    }
    return true;
}

bool CInternalStreamSource::SImpl::start(unsigned long maxImages, EGrabStrategy strategy)
{
    std::lock_guard<std::mutex> api(apiMutex);
    if (grabbing()) {
        setLastError(Infra::ERR_STREAM_BUSY, "the stream is already grabbing");
        return false;
    }
    CAravisCamera* ac = toAravisCamera(camera);
    if (!ac) {
        setLastError(Infra::ERR_INVALID_HANDLE, "no camera behind the stream");
        return false;
    }
    if (ac->isLost())
        return ac->failLost();
    if (!ac->isConnected()) {
        setLastError(Infra::ERR_NOT_CONNECTED, "the camera is not connected");
        return false;
    }
    auto session = std::make_shared<GrabSession>();
    session->strategy = strategy;
    session->maxImages = maxImages;
    CStreamStartSequence sequence(*ac, channel, settings, stats, *core);
    if (!sequence.run(*session))
        return false;
    {
        std::lock_guard<std::mutex> lock(core->mutex);
        core->session = session;
        core->generation++;
        core->grabbing = true;
    }
    LOG_DEBUG("stream started: channel %u, %u buffers of %u bytes", unsigned(channel), settings.bufferCount,
              sequence.payload());
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
    const bool cameraGone = channelFailed(*session);
    if (!cameraGone)
        stopAcquisition();

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
        CBackgroundWork::instance().run([s = std::move(session)]() mutable { s.reset(); });
    }
    session.reset();
    LOG_DEBUG("stream stopped: channel %u, %d buffer(s) still held by frames", unsigned(channel),
              core->heldBuffers.load());
    clearLastError();
    return true;
}

void CInternalStreamSource::SImpl::stopAcquisition()
{
    CAravisCamera* ac = toAravisCamera(camera);
    std::unique_lock<CCameraLock> lock;
    if (!ac || !ac->lockAccess(lock))
        return;   // a lost camera streams no more
    if (ArvCamera* cam = ac->arvCamera()) {
        GError* error = nullptr;
        arv_camera_stop_acquisition(cam, &error);
        if (error) {
            LOG_WARN("AcquisitionStop failed: %s", error->message);
            g_clear_error(&error);
        }
    }
}

ArvBuffer* CInternalStreamSource::SImpl::skipToNewest(GrabSession& s, ArvBuffer* buffer, uint64_t& blockId,
                                                      uint64_t generation, CFrameLoss& loss, bool& overridden)
{
    while (ArvBuffer* newer = arv_stream_try_pop_buffer(s.stream)) {
        bufferTakeOver(newer);
        const uint64_t newerId = s.unwrapBlockId(arv_buffer_get_frame_id(newer));
        events.blockArrived(s, newerId, arv_buffer_get_timestamp(newer), loss);
        if (arv_buffer_get_status(newer) != ARV_BUFFER_STATUS_SUCCESS) {
            events.blockFailed(s, newer, newerId, loss);
            core->recycle(newer, generation);
            continue;
        }
        core->recycle(buffer, generation);
        stats->onLatestImageDrop();
        overridden = true;
        buffer = newer;
        blockId = newerId;
    }
    return buffer;
}

void CInternalStreamSource::SImpl::settleFrameError(GrabSession& s, const CFrameLoss& loss, bool overridden)
{
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
        setLastError(Infra::ERR_NO_FRAME, loss.text());
    else if (overridden)
        setLastError(Infra::WARN_BUFFER_OVERRIDE);
    else
        clearLastError();
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
    CFrameLoss loss;
    for (;;) {
        const int64_t remainingNs = deadline - monotonicNs();
        ArvBuffer* buffer = remainingNs > 0 ? arv_stream_timeout_pop_buffer(s.stream, guint64(remainingNs / 1000))
                                            : arv_stream_try_pop_buffer(s.stream);
        if (!buffer)
            break;
        bufferTakeOver(buffer);

        uint64_t blockId = s.unwrapBlockId(arv_buffer_get_frame_id(buffer));
        events.blockArrived(s, blockId, arv_buffer_get_timestamp(buffer), loss);
        if (arv_buffer_get_status(buffer) != ARV_BUFFER_STATUS_SUCCESS) {
            events.blockFailed(s, buffer, blockId, loss);
            core->recycle(buffer, generation);
            continue;
        }
        // Only the newest complete frame is wanted: older ones go back.
        if (s.strategy == grabStrategyLatestImage)
            buffer = skipToNewest(s, buffer, blockId, generation, loss, overridden);

        auto data = Memory::makeShared<CFrame::SData>();
        data->buffer = buffer;
        data->core = core;
        data->generation = generation;
        data->chunkContext = s.chunks;
        data->describe(buffer, blockId, s.fallback);
        if (data->isImageShort()) {
            // Counted and reported as incomplete; not held by a frame, so
            // its buffer goes back to the stream here.
            stats->onShortBlock();
            events.blockShort(*data, loss);
            data->buffer = nullptr;
            core->recycle(buffer, generation);
            continue;
        }
        core->heldBuffers.fetch_add(1, std::memory_order_relaxed);
        frame = CFrame(data);
        events.frameDelivered(s, blockId, data->timestamp, monotonicNs());
        settleFrameError(s, loss, overridden);
        if (s.maxImages > 0 && ++s.delivered >= s.maxImages) {
            s.limitReached = true;
            stopAcquisition();
        }
        return true;
    }

    // Nothing complete within the timeout.
    if (channelFailed(s)) {
        setLastError(Infra::ERROR_STREAM_CHANNEL_ERROR, "the camera does not answer any more");
        events.channelFailed(s);
    } else if (loss.any()) {
        // Underruns are taken into account with the next frame; peek only.
        guint64 underruns = 0;
        arv_stream_get_statistics(s.stream, nullptr, nullptr, &underruns);
        if (loss.shown(underruns > s.lastUnderruns ? underruns - s.lastUnderruns : 0))
            setLastError(Infra::ERR_NO_FRAME, loss.text());
        else
            clearLastError();
    } else {
        clearLastError();
    }
    return false;
}

// ---------------------------------------------------------------------------

CInternalStreamSource::CInternalStreamSource(const Memory::TSharedPtr<ICamera>& camera, uint16_t channel)
    : d(Memory::makeShared<SImpl>(camera, channel))
{
}

CInternalStreamSource::~CInternalStreamSource() = default;

bool CInternalStreamSource::setBufferCount(unsigned int count)
{
    return d->change(typeUndefined, count > 0, Infra::ERR_INVALID_PARAMETER, "buffer count 0",
                     [count](CStreamSettings& s) { s.bufferCount = count; });
}

bool CInternalStreamSource::setInterPacketTimeout(unsigned int ms)
{
    return d->change(typeGigEVision, true, Infra::ERR_OK, nullptr, [ms](CStreamSettings& s) {
        s.interPacketTimeoutSet = true;
        s.interPacketTimeoutMs = ms;
    });
}

bool CInternalStreamSource::setSingleResendMaxPacketNum(unsigned int count)
{
    return d->change(typeGigEVision, true, Infra::ERR_OK, nullptr, [count](CStreamSettings& s) {
        // 0 turns resends off; Aravis has no per-request packet limit, so
        // any other count leaves resends as Aravis and the camera agree on.
        if (count > 0)
            LOG_WARN("SingleResendMaxPacketNum %u has no counterpart in the receiver; packet resend stays enabled",
                     count);
        s.resendSet = true;
        s.singleResendMax = count;
    });
}

bool CInternalStreamSource::setMaxLostPacketNum(unsigned int count)
{
    return d->change(typeGigEVision, true, Infra::ERR_OK, nullptr, [count](CStreamSettings& s) {
        s.maxLostSet = true;
        s.maxLostPackets = count;
    });
}

bool CInternalStreamSource::setUrbTransfer(unsigned int count, unsigned int size)
{
    return d->change(typeUsb3Vision, true, Infra::ERR_OK, nullptr, [count, size](CStreamSettings&) {
        LOG_WARN("urb number count %u, urb size count %u have no counterpart in the receiver; its own transfer "
                 "sizes are used",
                 count, size);
    });
}

bool CInternalStreamSource::setPacketSize(unsigned int bytes)
{
    return d->change(typeGigEVision, bytes > 0 && bytes <= 65535, Infra::ERR_OUT_OF_RANGE, "packet size 1 to 65535",
                     [bytes](CStreamSettings& s) { s.packetSize = bytes; });
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
    return d->grabbing();
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
