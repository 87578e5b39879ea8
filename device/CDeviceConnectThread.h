#pragma once
// The worker of one device: every camera round trip of the device (connect
// and the steps after it, stream start and stop, disconnect, link settings)
// runs here, one job at a time in the order asked, so the GUI thread never
// waits on the camera. Results go back to the device by queued signals.
#include <QMutex>
#include <QThread>
#include <QWaitCondition>
#include <deque>
#include <functional>

class CDeviceConnectThread : public QThread
{
    Q_OBJECT
public:
    using Job = std::function<void()>;

    explicit CDeviceConnectThread(QObject* parent = nullptr);
    // Runs what is still queued, then ends the thread and waits for it.
    ~CDeviceConnectThread() override;

    // Queues a job; the thread starts on the first one. False once stopped.
    bool post(Job job);
    // Waits until every job queued so far has run; timeoutMs < 0 waits
    // without limit. True when the worker is idle.
    bool waitIdle(int timeoutMs = -1);
    // A job is queued or running.
    bool isBusy() const;
    // No more jobs are taken; the queued ones still run, then run() ends.
    void stop();

signals:
    // Result of a connection (with the steps after it) or a disconnection,
    // emitted on this thread; generation tells which request it answers.
    void device_connect(bool ok, quint64 generation);
    void device_disconnect(bool ok, quint64 generation);

protected:
    void run() override;

private:
    mutable QMutex m_mutex;
    QWaitCondition m_wake;
    QWaitCondition m_idle;
    std::deque<Job> m_jobs;
    bool m_bStop = false;
    bool m_bRunningJob = false;
};
