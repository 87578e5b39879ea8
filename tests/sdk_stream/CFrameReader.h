#pragma once
// Takes frames from a stream on a thread of its own until stopped,
// counting them.
#include <atomic>
#include <thread>

#include "Vorlen/GenICam.h"

class CFrameReader
{
public:
    explicit CFrameReader(Vorlen::GenICam::CInternalStreamSource& source)
    {
        m_thread = std::thread([this, &source] {
            Vorlen::GenICam::CFrame frame;
            while (!m_stop)
                if (source.getFrame(frame, 100))
                    ++m_frames;
        });
    }
    ~CFrameReader() { stop(); }
    void stop()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
    }
    int frames() const { return m_frames; }

private:
    std::thread m_thread;
    std::atomic<bool> m_stop{false};
    std::atomic<int> m_frames{0};
};
