#pragma once
// Buffers for the raw pixels of frames, handed out again once the last frame
// holding one is gone, so that a stream in steady state allocates no
// frame-size memory. Shared by every stream of the process; a few buffers of
// each size are kept, the rest freed.
//
// The application's lifetime owner calls CRawBufferPool::shutdownInstance()
// once, last, before the application object goes: it frees every buffer
// waiting in the pool. It is idempotent. Afterwards instance() still works,
// acquire() returns null (a frame made then holds no pixels), and a buffer
// released by a frame that outlived the call is freed rather than kept.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

namespace Gliv {

class CRawBufferPool
{
public:
    using Buffer = std::vector<uint8_t>;

    // The process-wide pool. The object lives until the process ends, so a
    // frame released during exit still has somewhere to return its buffer.
    static CRawBufferPool& instance();
    // The end of the pool (see above).
    static void shutdownInstance();

    // A buffer of exactly size bytes (contents undefined); it returns to the
    // pool when the last shared pointer to it goes. Null after shutdown.
    std::shared_ptr<Buffer> acquire(size_t size);

    // Buffers waiting to be handed out again.
    size_t freeCount();

    static const size_t kMaxFree = 48;

private:
    void release(Buffer* buffer);

    void shutdown();

    std::mutex m_mutex;
    std::vector<std::unique_ptr<Buffer>> m_free;
    bool m_shutDown = false;
};

} // namespace Gliv
