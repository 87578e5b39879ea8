#include "StreamStatistic.h"

#include <chrono>
#include <thread>

#include "Vorlen/GenICam/CFrame.h"

namespace {
const char* const kNotSupportedImageFormat = "NOT SUPPORTED IMAGE FORMAT";
const char* const kStreamChannelError = "ERROR_STREAM_CHANNEL_ERROR";
}

StreamStatistic::StreamStatistic(QObject* parent)
    : QObject(parent),
      m_receiveFps(defaultReceiveFps()),
      m_displayFpsText(defaultDisplayFps()),
      m_bandwidth(defaultBandwidth())
{
    m_timer.start();
}

bool StreamStatistic::lockWithin30Ms()
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(30);
    while (!m_mutex.try_lock())
    {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

void StreamStatistic::getStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames,
                                   QString& bandwidth)
{
    QString error;
    unsigned long long errorCount = 0;
    getStatistic(receiveFps, displayFps, totalFrames, bandwidth, error, errorCount);
}

void StreamStatistic::getStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames,
                                   QString& bandwidth, QString& errorText, unsigned long long& errorCount)
{
    // The status bar polls this from the GUI thread: never wait long for the
    // retrieval thread.
    if (!lockWithin30Ms())
        return;

    update();
    receiveFps = m_receiveFps;
    displayFps = m_displayFpsText;
    totalFrames = m_totalFrames;
    bandwidth = m_bandwidth;
    errorText = m_error;
    errorCount = m_errorCount;

    if (m_error != QLatin1String(kNotSupportedImageFormat) && m_error != QLatin1String(kStreamChannelError))
        m_error.clear();

    m_mutex.unlock();
}

void StreamStatistic::reset()
{
    std::lock_guard<std::mutex> locker(m_mutex);
    m_receivedFrames.clear();
    m_displayedFrames.clear();
    m_totalFrames = 0;
    m_error.clear();
    m_errorCount = 0;
    m_receiveFps = defaultReceiveFps();
    m_displayFpsText = defaultDisplayFps();
    m_bandwidth = defaultBandwidth();
}

void StreamStatistic::setError(const QString& error)
{
    std::lock_guard<std::mutex> locker(m_mutex);
    m_error = error;
}

void StreamStatistic::setErrorCount(unsigned long long count)
{
    std::lock_guard<std::mutex> locker(m_mutex);
    m_errorCount = count;
}

void StreamStatistic::rcvNewFrame(const Vorlen::GenICam::CFrame& frame)
{
    rcvNewFrame(frame.getImageSize(), m_timer.nsecsElapsed());
}

void StreamStatistic::rcvNewFrame(unsigned long long imageSize, qint64 nowNs)
{
    std::lock_guard<std::mutex> locker(m_mutex);
    if (m_receivedFrames.size() > kMaxEntries - 1)
        m_receivedFrames.removeFirst();
    m_receivedFrames.append(qMakePair(imageSize, nowNs));
    ++m_totalFrames;
}

void StreamStatistic::increaseDisplayFrame()
{
    increaseDisplayFrame(m_timer.nsecsElapsed());
}

void StreamStatistic::increaseDisplayFrame(qint64 nowNs)
{
    std::lock_guard<std::mutex> locker(m_mutex);
    if (m_displayedFrames.size() > kMaxEntries - 1)
        m_displayedFrames.removeFirst();
    m_displayedFrames.append(nowNs);
}

void StreamStatistic::setDisplayFPS(int fps)
{
    std::lock_guard<std::mutex> locker(m_mutex);
    m_displayFps = fps;
}

void StreamStatistic::update()
{
    const int n = m_receivedFrames.size();
    if (n >= 2)
    {
        const qint64 span = m_receivedFrames.last().second - m_receivedFrames.first().second;
        if (span > 0)
        {
            double bytes = 0.0;
            for (const auto& entry : m_receivedFrames)
                bytes += static_cast<double>(entry.first);
            const double fps = (n - 1) * 1e9 / static_cast<double>(span);
            const double mbps = bytes * 1e9 / static_cast<double>(span) / 1000.0 / 1000.0 * 8.0;
            m_receiveFps = QString::number(fps, 'f', 2);
            m_bandwidth = QString::number(mbps, 'f', 2);
        }
    }

    const int m = m_displayedFrames.size();
    if (m_displayFps != 0 && m >= 2)
    {
        const qint64 span = m_displayedFrames.last() - m_displayedFrames.first();
        if (span > 0)
        {
            long long fps = static_cast<long long>((m - 1) * 1e9 / static_cast<double>(span) + 0.5);
            if (fps > m_displayFps)
                fps = m_displayFps;
            m_displayFpsText = QString::number(fps);
        }
    }
}
