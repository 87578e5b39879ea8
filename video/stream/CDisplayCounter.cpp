#include "CDisplayCounter.h"

#include "Tavlog4cpp/TavLogMacros.h"
#include "WorkerSettings.h"

CDisplayCounter::CDisplayCounter(QObject* parent) : QObject(parent)
{
    m_timer.start();
    setDisplayFPS(30);
}

int CDisplayCounter::displayRateFromSetting(const QString& value)
{
    return SStreamSettings::displayRateFromSetting(value);
}

bool CDisplayCounter::isTimeToDisplay(unsigned long long timestamp)
{
    qint64 now = m_timer.nsecsElapsed();
    if (now <= 0)
        now = 1;   // 0 means "unset" below
    return isTimeToDisplay(timestamp, now);
}

bool CDisplayCounter::isTimeToDisplay(unsigned long long timestamp, qint64 nowNs)
{
    Q_UNUSED(timestamp);
    std::lock_guard<std::mutex> locker(m_mutex);

    if (getDisplayRate() == 0)
        return false;

    if (m_nFirstFrameTime == 0 || m_nLastFrameTime == 0)
    {
        m_nFirstFrameTime = nowNs;
        m_nLastFrameTime = nowNs;
        LOG_WARN("set m_nFirstFrameTime: %lld", static_cast<long long>(m_nFirstFrameTime));
        return true;
    }

    const qint64 d = nowNs - m_nLastFrameTime;
    if (d > kDisplayPeriodNs)
    {
        m_nLastFrameTime = nowNs;
        return true;
    }
    // Carry the phase of the display grid over, so that over time the
    // average rate is one frame per period even when frames arrive just
    // short of it.
    if (d + ((m_nLastFrameTime - m_nFirstFrameTime) % kDisplayPeriodNs) > kDisplayPeriodNs)
    {
        m_nLastFrameTime = nowNs;
        return true;
    }
    return false;
}

void CDisplayCounter::setDisplayFPS(int fps)
{
    std::lock_guard<std::mutex> locker(m_mutex);
    m_dDisplayInterval = fps < 1 ? 0.0 : 1000.0 / fps;
}

double CDisplayCounter::getDisplayInterval()
{
    std::lock_guard<std::mutex> locker(m_mutex);
    return m_dDisplayInterval;
}

void CDisplayCounter::reset()
{
    std::lock_guard<std::mutex> locker(m_mutex);
    m_nFirstFrameTime = 0;
    m_nLastFrameTime = 0;
}
