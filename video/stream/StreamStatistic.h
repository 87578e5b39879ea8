#pragma once
// Rates of one stream for the status bar and the statistics dialog: receive
// and display frame rate and bandwidth over the last 50 frames, and the last
// stream error.
#include <QElapsedTimer>
#include <QList>
#include <mutex>
#include <QObject>
#include <QPair>
#include <QString>

namespace Vorlen { namespace GenICam { class CFrame; } }

class StreamStatistic : public QObject
{
    Q_OBJECT
public:
    static const int kMaxEntries = 50;

    // Text of the rates before they can be computed (fewer than two frames).
    static QString defaultReceiveFps() { return QStringLiteral("0.00"); }
    static QString defaultDisplayFps() { return QStringLiteral("0"); }
    static QString defaultBandwidth() { return QStringLiteral("0.00"); }

    explicit StreamStatistic(QObject* parent = nullptr);

    // Waits at most 30 ms for the lock; when it is not taken the outputs are
    // left as they were. After a read the error text goes back to empty,
    // except for the two errors that persist ("NOT SUPPORTED IMAGE FORMAT",
    // "ERROR_STREAM_CHANNEL_ERROR").
    void getStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames, QString& bandwidth);
    void getStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames, QString& bandwidth,
                      QString& errorText, unsigned long long& errorCount);

    void reset();
    void setError(const QString& error);
    void setErrorCount(unsigned long long count);

    void rcvNewFrame(const Vorlen::GenICam::CFrame& frame);
    void increaseDisplayFrame();
    void setDisplayFPS(int fps);

    // Same as above at a given monotonic time in ns; lets tests drive the clock.
    void rcvNewFrame(unsigned long long imageSize, qint64 nowNs);
    void increaseDisplayFrame(qint64 nowNs);

private:
    void update();   // under m_mutex

    // Takes m_mutex within 30 ms or gives up.
    bool lockWithin30Ms();

    // A standard mutex, so that ThreadSanitizer sees every hand-off (it
    // does not see timed locks, hence lockWithin30Ms polling try_lock).
    std::mutex m_mutex;
    QElapsedTimer m_timer;
    QList<QPair<unsigned long long, qint64>> m_receivedFrames;   // (image size, arrival ns)
    QList<qint64> m_displayedFrames;                             // arrival ns
    unsigned long long m_totalFrames = 0;
    int m_displayFps = 30;
    QString m_error;
    unsigned long long m_errorCount = 0;
    QString m_receiveFps;
    QString m_displayFpsText;
    QString m_bandwidth;
};
