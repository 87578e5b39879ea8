#include "Gliv/CDisplayPipeline.h"

namespace Gliv {

void CDisplayPipeline::setViewState(const SViewState& state)
{
    QMutexLocker lock(&m_stateMutex);
    m_state = state;
}

SViewState CDisplayPipeline::viewState() const
{
    QMutexLocker lock(&m_stateMutex);
    return m_state;
}

void CDisplayPipeline::setNotifier(std::function<void()> notify)
{
    // Taken by submit() around the call too: once this returns, the old
    // notifier is never called again.
    QMutexLocker lock(&m_notifyMutex);
    m_notify = std::move(notify);
}

void CDisplayPipeline::clear()
{
    {
        QMutexLocker lock(&m_stateMutex);
        m_lastFrame.reset();
    }
    m_mailbox.clear();
}

CQtHybridFramePtr CDisplayPipeline::lastFrame() const
{
    QMutexLocker lock(&m_stateMutex);
    return m_lastFrame;
}

bool CDisplayPipeline::submit(const CQtHybridFramePtr& frame)
{
    ++m_offered;
    if (!frame)
        return false;
    {
        QMutexLocker lock(&m_stateMutex);
        m_lastFrame = frame;
    }
    return renderAndPost(frame);
}

bool CDisplayPipeline::rerender()
{
    m_rerenderQueued.store(false);
    const CQtHybridFramePtr frame = lastFrame();
    return frame ? renderAndPost(frame) : false;
}

QImage* CDisplayPipeline::freeBuffer()
{
    // A buffer nobody else holds any more (painted and released, or
    // replaced in the mailbox) is written in place.
    for (QImage& b : m_buffers)
        if (b.isNull() || b.isDetached())
            return &b;
    return nullptr;
}

bool CDisplayPipeline::renderAndPost(const CQtHybridFramePtr& frame)
{
    const SViewState state = viewState();
    const QSize imageSize(int(frame->getWidth()), int(frame->getHeight()));
    SDisplayedImage item;
    if (!CDisplayGeometry::compute(state, imageSize, item.source, item.dest))
        return false;
    SRenderRequest request;
    request.source = item.source;
    request.target = item.dest.size().toSize();
    request.demosaic = demosaic();
    {
        QMutexLocker lock(&m_renderMutex);
        QImage* buffer = freeBuffer();
        if (buffer == nullptr)
            return false;
        if (!m_renderer.render(*frame, request, *buffer))
            return false;
        item.image = *buffer;
        item.serial = ++m_serial;
    }
    item.imageSize = imageSize;
    item.frame = frame;
    ++m_rendered;
    if (m_mailbox.post(std::move(item))) {
        QMutexLocker lock(&m_notifyMutex);
        if (m_notify)
            m_notify();
    }
    return true;
}

} // namespace Gliv
