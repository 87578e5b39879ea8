#include "Gliv/CFrameMailbox.h"

#include <utility>

namespace Gliv {

bool CFrameMailbox::post(SDisplayedImage item)
{
    SDisplayedImage replaced;   // released after the lock, outside the GUI's way
    QMutexLocker lock(&m_mutex);
    const bool wasEmpty = !m_full;
    if (!wasEmpty)
        ++m_replaced;
    std::swap(m_slot, item);
    m_full = true;
    lock.unlock();
    return wasEmpty;
}

bool CFrameMailbox::take(SDisplayedImage& out)
{
    QMutexLocker lock(&m_mutex);
    if (!m_full)
        return false;
    out = std::move(m_slot);
    m_slot = SDisplayedImage();
    m_full = false;
    return true;
}

bool CFrameMailbox::hasPending() const
{
    QMutexLocker lock(&m_mutex);
    return m_full;
}

void CFrameMailbox::clear()
{
    SDisplayedImage dropped;
    QMutexLocker lock(&m_mutex);
    std::swap(dropped, m_slot);
    m_full = false;
}

} // namespace Gliv
