#pragma once
// The thread-safe half of a display view. Any thread (the stream thread in
// practice) submits frames: each is rendered at once at the size and region
// the view currently shows and put in the one-slot mailbox; the GUI thread
// takes the newest picture when it paints. The view's state (size, zoom,
// centre, demosaicing) is written by the GUI thread under a small lock and
// copied by the renderer per frame. Shared by pointer, so a frame in flight
// keeps it alive while its view goes away.
#include <QImage>
#include <QMutex>
#include <atomic>
#include <functional>

#include "Gliv/CDisplayGeometry.h"
#include "Gliv/CDisplayRenderer.h"
#include "Gliv/CFrameMailbox.h"

namespace Gliv {

class CDisplayPipeline
{
public:
    CDisplayPipeline() = default;
    CDisplayPipeline(const CDisplayPipeline&) = delete;
    CDisplayPipeline& operator=(const CDisplayPipeline&) = delete;

    // GUI side.
    void setViewState(const SViewState& state);
    SViewState viewState() const;
    void setDemosaic(EBayerDemosaic demosaic) { m_demosaic.store(int(demosaic)); }
    EBayerDemosaic demosaic() const { return EBayerDemosaic(m_demosaic.load()); }
    // Called on the submitting thread when the mailbox goes from empty to
    // full; it should queue one update to the GUI thread. Empty: none.
    void setNotifier(std::function<void()> notify);
    bool take(SDisplayedImage& out) { return m_mailbox.take(out); }
    // Forgets the last frame and any waiting picture.
    void clear();

    // Any thread. Renders the frame for the view and posts it. False when
    // nothing was posted (no frame, view without size, unsupported format).
    bool submit(const CQtHybridFramePtr& frame);
    // Renders the last submitted frame again for a changed view state.
    bool rerender();
    // Marks a re-render as queued; false when one is already queued.
    bool claimRerender() { return !m_rerenderQueued.exchange(true); }

    CQtHybridFramePtr lastFrame() const;
    const CFrameMailbox& mailbox() const { return m_mailbox; }
    quint64 offeredCount() const { return m_offered.load(); }
    quint64 renderedCount() const { return m_rendered.load(); }

private:
    bool renderAndPost(const CQtHybridFramePtr& frame);
    QImage* freeBuffer();

    mutable QMutex m_stateMutex;
    SViewState m_state;
    CQtHybridFramePtr m_lastFrame;
    std::atomic<int> m_demosaic{ int(bayerBilinear) };

    QMutex m_renderMutex;   // one render at a time; guards the renderer and buffers
    CDisplayRenderer m_renderer;
    // Three buffers: one painted, one waiting in the mailbox, one rendered into.
    QImage m_buffers[3];
    quint64 m_serial = 0;

    CFrameMailbox m_mailbox;
    QMutex m_notifyMutex;
    std::function<void()> m_notify;

    std::atomic<bool> m_rerenderQueued{ false };
    std::atomic<quint64> m_offered{ 0 };
    std::atomic<quint64> m_rendered{ 0 };
};

} // namespace Gliv
