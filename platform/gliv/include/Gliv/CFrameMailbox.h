#pragma once
// A one-slot mailbox between the thread that renders pictures and the GUI
// thread that paints them. A newer picture replaces a waiting one, so a slow
// GUI drops pictures instead of piling them up, and posting never waits for
// painting. post() tells when the slot was empty: only then does the
// producer need to ask the GUI for an update, so at most one update request
// is ever queued.
#include <QMutex>
#include <atomic>

#include "Gliv/SDisplayedImage.h"

namespace Gliv {

class CFrameMailbox
{
public:
    // True when the slot was empty before (the caller requests one update).
    bool post(SDisplayedImage item);
    // Moves the waiting picture out; false when none waits.
    bool take(SDisplayedImage& out);
    bool hasPending() const;
    void clear();
    // Pictures replaced before they were painted.
    quint64 replacedCount() const { return m_replaced.load(); }

private:
    mutable QMutex m_mutex;
    SDisplayedImage m_slot;
    bool m_full = false;
    std::atomic<quint64> m_replaced{0};
};

} // namespace Gliv
