#include "CStreamStartSequence.h"

#include <algorithm>
#include <chrono>
#include <mutex>

#include "CAravisCamera.h"
#include "StreamStatisticsCounter.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

using Infra::setLastError;

namespace {

// Packet size used on loopback when none was set: the link has no MTU worth
// speaking of, and large packets cost far less CPU than 1500-byte ones.
constexpr unsigned int kLoopbackPacketSize = 8192;

int64_t monotonicNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
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
    s.callbackStats->onBufferDone(status, size, monotonicNs(), s.missingPackets(buffer));
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

bool isLoopback(const std::string& ip)
{
    return ip.compare(0, 4, "127.") == 0;
}

} // namespace

bool CStreamStartSequence::run(GrabSession& session)
{
    std::unique_lock<CCameraLock> lock;
    if (!m_camera.lockAccess(lock))
        return false;
    ArvCamera* camera = m_camera.arvCamera();
    if (!camera) {
        setLastError(Infra::ERR_NOT_CONNECTED, "the camera is not connected");
        return false;
    }
    // Every step is a round trip or more; a camera lost meanwhile ends the
    // sequence after the one under way, with the loss as its error.
    const bool started = configure(camera, session) && alive() && createStream(camera, session) && alive() &&
                         startAcquisition(camera, session);
    if (!started && m_camera.isLost())
        return m_camera.failLost();
    return started;
}

bool CStreamStartSequence::alive() const
{
    return !m_camera.isLost() || m_camera.failLost();
}

bool CStreamStartSequence::configure(ArvCamera* camera, GrabSession& session)
{
    GError* error = nullptr;
    if (arv_camera_is_gv_device(camera) && m_channel > 0) {
        arv_camera_gv_select_stream_channel(camera, m_channel, &error);
        if (error) {
            setLastError(Infra::ERR_INVALID_PARAMETER, error->message);
            g_clear_error(&error);
            return false;
        }
    }
    if (!settlePacketSize(camera) || !alive())
        return false;
    m_payload = arv_camera_get_payload(camera, &error);
    if (error || m_payload == 0) {
        setLastError(Infra::ERR_READ_FAILED, error ? error->message : "payload size is 0");
        g_clear_error(&error);
        return false;
    }
    if (!readGeometry(camera, session) || !alive())
        return false;

    // Chunk decoding, when the camera has chunks at all.
    if (arv_camera_are_chunks_available(camera, nullptr)) {
        ArvDevice* device = arv_camera_get_device(camera);
        size_t xmlSize = 0;
        const char* xml = arv_device_get_genicam_xml(device, &xmlSize);
        if (xml && xmlSize > 0) {
            session.chunks = std::make_shared<ChunkContext>();
            session.chunks->parser = arv_chunk_parser_new(xml, xmlSize);
            session.chunks->features = findChunkFeatures(arv_device_get_genicam(device));
        }
    }
    return true;
}

bool CStreamStartSequence::settlePacketSize(ArvCamera* camera)
{
    m_packetBytes = 0;
    if (!arv_camera_is_gv_device(camera))
        return true;
    unsigned int wanted = m_settings.packetSize;
    if (wanted == 0 && isLoopback(m_camera.discoveryInfo().ipAddress)) {
        const guint current = arv_camera_gv_get_packet_size(camera, nullptr);
        if (current < kLoopbackPacketSize)
            wanted = kLoopbackPacketSize;
    }
    if (wanted > 0 && alive()) {
        GError* error = nullptr;
        arv_camera_gv_set_packet_size(camera, gint(wanted), &error);
        if (error) {
            LOG_WARN("packet size %u refused: %s", wanted, error->message);
            g_clear_error(&error);
        }
    }
    if (!alive())
        return false;
    m_packetBytes = arv_camera_gv_get_packet_size(camera, nullptr);
    return true;
}

bool CStreamStartSequence::readGeometry(ArvCamera* camera, GrabSession& session)
{
    // For payloads that carry none (chunk-only, JPEG).
    GError* error = nullptr;
    gint x = 0, y = 0, w = 0, h = 0;
    arv_camera_get_region(camera, &x, &y, &w, &h, &error);
    g_clear_error(&error);
    session.fallback.width = uint32_t(std::max(w, 0));
    session.fallback.height = uint32_t(std::max(h, 0));
    session.fallback.offsetX = uint64_t(std::max(x, 0));
    session.fallback.offsetY = uint64_t(std::max(y, 0));
    if (!alive())
        return false;
    session.fallback.pixelFormat = uint32_t(arv_camera_get_pixel_format(camera, &error));
    g_clear_error(&error);
    return true;
}

bool CStreamStartSequence::createStream(ArvCamera* camera, GrabSession& session)
{
    session.callbackStats = m_stats;
    if (arv_camera_is_gv_device(camera) && m_packetBytes > kPacketOverhead) {
        session.marks.payload = m_payload;
        session.marks.blockSize = m_packetBytes - kPacketOverhead;
    }
    GError* error = nullptr;
    ArvStream* stream = arv_camera_create_stream(camera, streamCallback, &session, &error);
    if (!stream) {
        setLastError(Infra::ERR_IO, error ? error->message : "cannot create the stream");
        g_clear_error(&error);
        return false;
    }
    g_clear_error(&error);
    session.stream = stream;
    m_settings.apply(stream, m_payload, m_packetBytes);
    for (unsigned int i = 0; i < m_settings.bufferCount; ++i) {
        ArvBuffer* buffer = arv_buffer_new_allocate(m_payload);
        session.marks.mark(buffer);
        bufferHandOff(buffer);
        arv_stream_push_buffer(stream, buffer);
    }
    std::lock_guard<std::mutex> lock(m_core.mutex);
    m_stats->attach(stream);
    return true;
}

bool CStreamStartSequence::startAcquisition(ArvCamera* camera, GrabSession& session)
{
    GError* error = nullptr;
    arv_camera_set_acquisition_mode(camera, ARV_ACQUISITION_MODE_CONTINUOUS, &error);
    if (error) {
        LOG_WARN("AcquisitionMode Continuous refused: %s", error->message);
        g_clear_error(&error);
    }
    if (alive())
        arv_camera_start_acquisition(camera, &error);
    if (error || m_camera.isLost()) {
        setLastError(Infra::ERR_WRITE_FAILED, error ? error->message : "");
        g_clear_error(&error);
        std::lock_guard<std::mutex> lock(m_core.mutex);
        m_stats->detach(session.stream);
        return false;   // the session frees the stream
    }
    ArvDevice* device = arv_camera_get_device(camera);
    session.device = ARV_DEVICE(g_object_ref(device));
    // The session is owned by a shared pointer (the source's), which the
    // handler watches without keeping it alive.
    auto* box = new SLostBox{session.weak_from_this()};
    session.controlLostHandler =
        g_signal_connect_data(device, "control-lost", G_CALLBACK(onControlLost), box, destroyLostBox, GConnectFlags(0));
    return true;
}

} // namespace GenICam
} // namespace Vorlen
