#pragma once
// Internals shared by CFrame and CInternalStreamSource: the frame record that
// owns a popped ArvBuffer, the stream state a released buffer goes back to,
// and the chunk-data helpers.
#include <arv.h>
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>
#include "CEventThrottle.h"
#include "Vorlen/GenICam/CFrame.h"

#if defined(__SANITIZE_THREAD__)
extern "C" void __tsan_acquire(void* addr);
extern "C" void __tsan_release(void* addr);
#endif

namespace Vorlen {
namespace GenICam {

// Buffers pass between our threads and Aravis' stream thread through GLib
// queues, whose futex-based locks ThreadSanitizer cannot see. These mark the
// hand-offs: handOff before a buffer leaves a thread, takeOver when it
// arrives. Nothing without ThreadSanitizer.
inline void bufferHandOff(ArvBuffer* buffer)
{
#if defined(__SANITIZE_THREAD__)
    __tsan_release(buffer);
#else
    (void)buffer;
#endif
}

inline void bufferTakeOver(ArvBuffer* buffer)
{
#if defined(__SANITIZE_THREAD__)
    __tsan_acquire(buffer);
#else
    (void)buffer;
#endif
}

class StreamStatisticsCounter;
struct GrabSession;

// What a frame needs to hand its buffer back. Frames keep it by weak pointer:
// once the stream source is gone, a released buffer is simply freed.
struct StreamCore
{
    std::mutex mutex;
    std::shared_ptr<GrabSession> session;  // set while grabbing
    uint64_t generation = 0;               // bumped at every start and stop
    bool grabbing = false;
    std::atomic<int> heldBuffers{0};       // buffers currently held by frames

    // Back to the stream when it is the same grab, otherwise freed.
    void recycle(ArvBuffer* buffer, uint64_t generation);
};

// A GenICam feature that reads a value out of a chunk.
struct ChunkFeature
{
    enum EKind { kindInteger, kindFloat, kindString, kindBoolean, kindEnumeration };
    std::string name;
    uint32_t chunkId = 0;
    EKind kind = kindInteger;
};

// Chunk decoding for one grab: a chunk parser over its own copy of the
// camera's GenICam description (so it never touches the camera's node map)
// and the features found for each chunk id.
struct ChunkContext
{
    ~ChunkContext();
    ArvChunkParser* parser = nullptr;
    std::vector<ChunkFeature> features;
    std::mutex mutex;                      // the parser is not thread-safe
};

// Finds every Chunk* value feature of a GenICam document and the chunk id it
// reads from (following pValue links down to the register carrying ChunkID).
std::vector<ChunkFeature> findChunkFeatures(ArvGc* genicam);

// One chunk of a payload: its id and where its data lies.
struct SChunkSpan
{
    uint32_t id = 0;
    size_t offset = 0;
    size_t size = 0;
};

// Walks the chunk tags (data, then 32-bit id and 32-bit length) of a chunk
// payload from its end towards its start. Stops at the first tag that does
// not fit; the spans come out in payload order. Returns false when not even
// one chunk was found.
bool walkChunks(const uint8_t* data, size_t size, bool bigEndian, std::vector<SChunkSpan>& spans);

// Data bytes as hex lines ("0000: 01 02 ..."), 16 bytes a line, the first
// maxBytes bytes only.
std::vector<std::string> hexLines(const uint8_t* data, size_t size, size_t maxBytes = 256);

// Geometry the stream read from the camera at start, used for payloads whose
// own leader carries none (chunk-only and JPEG payloads).
struct SFallbackGeometry
{
    uint32_t width = 0, height = 0, pixelFormat = 0;
    uint64_t offsetX = 0, offsetY = 0;
};

// Counts the data packets of a block that never arrived. Aravis copies each
// data packet to its place in the buffer (packet k at k * blockSize) and
// leaves the places of missing packets untouched, so a marker written at the
// start of every place before the buffer goes to the stream is still there
// after the block closed exactly where a packet is missing. The marker
// depends on the place, so image data matching it by chance is out of reach.
struct PacketMarks
{
    size_t payload = 0;     // bytes of a block
    size_t blockSize = 0;   // data bytes per packet; 0: nothing is marked or counted

    bool enabled() const { return payload > 0 && blockSize > 0; }
    uint64_t packetCount() const { return enabled() ? (payload + blockSize - 1) / blockSize : 0; }
    // Before the buffer is queued to the stream.
    void mark(uint8_t* data, size_t size) const;
    void mark(ArvBuffer* buffer) const;
    // After the block closed: data packets whose place still holds its marker.
    uint64_t countMissing(const uint8_t* data, size_t size) const;
    uint64_t countMissing(ArvBuffer* buffer) const;
};

// One stream object from startGrabbing to stopGrabbing.
struct GrabSession : std::enable_shared_from_this<GrabSession>
{
    GrabSession() = default;
    ~GrabSession();
    GrabSession(const GrabSession&) = delete;
    GrabSession& operator=(const GrabSession&) = delete;

    ArvStream* stream = nullptr;          // owned reference
    // The stream callback's counter; kept until the stream is released.
    // The callback gets the session itself (it outlives the stream).
    std::shared_ptr<StreamStatisticsCounter> callbackStats;
    // Packet places of this grab's buffers; set before the first buffer is queued.
    PacketMarks marks;
    ArvDevice* device = nullptr;          // owned reference, for the control-lost handler
    unsigned long controlLostHandler = 0;
    std::atomic<bool> controlLost{false};

    // Settings of this grab.
    EGrabStrategy strategy = grabStrategySequential;
    unsigned long maxImages = 0;
    SFallbackGeometry fallback;
    std::shared_ptr<ChunkContext> chunks;

    // Reader state, touched under readMutex by getFrame only.
    std::mutex readMutex;
    bool haveBlockId = false;
    uint64_t lastRawBlockId = 0;
    uint64_t blockIdEpoch = 0;            // added to 16-bit block ids after each wrap
    uint64_t lastBlockId = 0;             // last unwrapped id seen (any status)
    uint64_t lastUnderruns = 0;
    uint64_t lastResendRatioReached = 0;
    CEventThrottle normalEvents{100 * 1000 * 1000};   // normal-frame events: at most ten a second
    bool channelErrorReported = false;
    uint64_t delivered = 0;
    bool limitReached = false;

    // Extends a block id to 64 bits across the 16-bit wrap (65535 -> 1).
    uint64_t unwrapBlockId(uint64_t raw);
    // Packets an incomplete block lacks: the data packets whose place stayed
    // empty, and at least one (a lost leader or trailer leaves no hole); 0
    // for a block that is not incomplete or when packets are not counted.
    uint64_t missingPackets(ArvBuffer* buffer) const;
};

// The frame record behind CFrame. Filled once by the stream; read-only after,
// except the chunk text which is decoded on first use.
struct CFrame::SData
{
    SData() = default;
    ~SData();
    SData(const SData&) = delete;
    SData& operator=(const SData&) = delete;

    // Fills the image fields from a complete buffer.
    void describe(ArvBuffer* buf, uint64_t unwrappedBlockId, const SFallbackGeometry& fallback);
    // Bytes the described image needs at least (width x height at the
    // format's bits per pixel); 0 when unknown or not an uncompressed image.
    uint64_t minimumImageBytes() const;
    // A block closed as complete whose image data falls short of its own
    // geometry: packets went missing without the receiver noticing.
    bool isImageShort() const { return imageSize < minimumImageBytes(); }

    ArvBuffer* buffer = nullptr;                 // owned
    std::weak_ptr<StreamCore> core;
    uint64_t generation = 0;

    TVector<CFrame::EPayloadType> payloadTypes;
    const unsigned char* image = nullptr;
    uint64_t imageSize = 0;
    uint32_t width = 0, height = 0, paddingX = 0, paddingY = 0, pixelFormat = 0;
    uint64_t timestamp = 0, offsetX = 0, offsetY = 0, blockId = 0;

    const uint8_t* payload = nullptr;            // whole received payload
    size_t payloadSize = 0;
    bool hasChunks = false;
    std::vector<SChunkSpan> chunkSpans;          // without the image chunk
    std::shared_ptr<ChunkContext> chunkContext;

    // Chunk text, decoded once.
    std::once_flag chunkTextOnce;
    std::vector<std::vector<std::string>> chunkText;
    void decodeChunks();
};

} // namespace GenICam
} // namespace Vorlen
