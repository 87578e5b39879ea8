#pragma once
// Display-rate limit of one stream: decides per frame whether the video view
// gets it, so that at most one frame per 33.3 ms reaches the screen.
#include <QElapsedTimer>
#include <mutex>
#include <QObject>
#include <QString>
#include <atomic>

class CDisplayCounter : public QObject
{
    Q_OBJECT
public:
    // The display period does not follow the setting: "60 FPS" still shows
    // at most one frame per 33,333,333 ns.
    static const qint64 kDisplayPeriodNs = 33333333;

    explicit CDisplayCounter(QObject* parent = nullptr);

    // timestamp: the frame's camera timestamp (not used for the decision,
    // which follows the host's monotonic clock).
    bool isTimeToDisplay(unsigned long long timestamp);
    // Same decision at a given host time in ns (> 0); lets tests drive the clock.
    bool isTimeToDisplay(unsigned long long timestamp, qint64 nowNs);

    void setDisplayFPS(int fps);
    double getDisplayInterval();
    // Display-rate choice (0 = "Disabled": nothing is displayed), copied
    // from the owner's settings snapshot; the decision never reads the
    // configuration itself.
    void setDisplayRate(int rate) { m_nDisplayRate.store(rate, std::memory_order_relaxed); }
    int getDisplayRate() const { return m_nDisplayRate.load(std::memory_order_relaxed); }
    // Forgets the first and last displayed frame: the next frame is shown.
    void reset();

    // "Disabled" -> 0, "60 FPS" -> 60, anything else -> 30.
    static int displayRateFromSetting(const QString& value);

private:
    std::mutex m_mutex;   // standard, so that ThreadSanitizer sees its hand-offs
    QElapsedTimer m_timer;
    qint64 m_nFirstFrameTime = 0;
    qint64 m_nLastFrameTime = 0;
    double m_dDisplayInterval = 0.0;   // ms; kept for the views, not used by the decision
    std::atomic<int> m_nDisplayRate{30};
};
