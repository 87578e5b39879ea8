#include "Gliv/CRawBufferPool.h"

namespace Gliv {

CRawBufferPool& CRawBufferPool::instance()
{
    // Never destroyed: frames may still be released by threads ending at exit.
    static CRawBufferPool* pool = new CRawBufferPool;
    return *pool;
}

void CRawBufferPool::shutdownInstance()
{
    instance().shutdown();
}

void CRawBufferPool::shutdown()
{
    std::vector<std::unique_ptr<Buffer>> freed;
    std::lock_guard<std::mutex> lock(m_mutex);
    m_shutDown = true;
    freed.swap(m_free);
}

std::shared_ptr<CRawBufferPool::Buffer> CRawBufferPool::acquire(size_t size)
{
    std::unique_ptr<Buffer> buffer;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_shutDown)
            return nullptr;
        // The most recently returned buffer of the same size is the warmest.
        for (auto it = m_free.rbegin(); it != m_free.rend(); ++it) {
            if ((*it)->size() == size) {
                buffer = std::move(*it);
                m_free.erase(std::next(it).base());
                break;
            }
        }
    }
    if (!buffer)
        buffer.reset(new Buffer(size));
    return std::shared_ptr<Buffer>(buffer.release(), [this](Buffer* b) { release(b); });
}

void CRawBufferPool::release(Buffer* buffer)
{
    std::unique_ptr<Buffer> owned(buffer);
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_shutDown)
        return;   // freed with owned
    if (m_free.size() >= kMaxFree)
        m_free.erase(m_free.begin());   // the oldest goes
    m_free.push_back(std::move(owned));
}

size_t CRawBufferPool::freeCount()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_free.size();
}

} // namespace Gliv
