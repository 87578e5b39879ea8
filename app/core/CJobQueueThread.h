#pragma once
// The one worker for requests: jobs run one at a time, in the order posted,
// on this thread; an idle worker sleeps on a wait condition (no polling).
// Its owner either stops it and waits (stopAndWait, bounded), or retires it:
// retire() drops the pending jobs and returns at once, and the thread deletes
// itself once the job under way (a camera call) has returned. Receivers of
// its queued signals that go away with the owner get nothing after that.
// run() logs "<name> run begin" and "<name> run end".
#include <QByteArray>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>
#include <deque>
#include <functional>

class CJobQueueThread : public QThread
{
    Q_OBJECT
public:
    using Job = std::function<void()>;

    // name appears in the begin and end log lines (the owner's class name).
    explicit CJobQueueThread(const char* name, QObject* parent = nullptr);
    // Stops and waits for the job under way; owners that must not wait call
    // retire() instead (then the destructor runs on this thread's finish).
    ~CJobQueueThread() override;

    // Queues a job; the thread starts on the first one. False once stopped.
    bool post(Job job);
    // Drops the jobs not yet started; the one under way goes on.
    void clearPending();
    // Waits until every job queued so far has run; timeoutMs < 0 waits
    // without limit. True when the worker is idle.
    bool waitIdle(int timeoutMs = -1);
    // A job is queued or running.
    bool isBusy() const;
    int pendingCount() const;
    // No more jobs are taken; with dropPending the queued ones are dropped,
    // otherwise they still run before run() ends.
    void stop(bool dropPending = false);
    // stop(dropPending) and a wait of at most timeoutMs; true when ended.
    bool stopAndWait(int timeoutMs, bool dropPending = false);
    // Asks the work to stop (pending jobs dropped) and hands the thread over
    // to itself; the caller must not use the pointer afterwards.
    void retire();
    // True once stop() or retire() was asked: a long job may end early.
    bool isStopping() const;

protected:
    void run() override;

private:
    const QByteArray m_name;
    mutable QMutex m_mutex;
    QWaitCondition m_wake;
    QWaitCondition m_idle;
    std::deque<Job> m_jobs;
    bool m_bStop = false;
    bool m_bRunningJob = false;
};
