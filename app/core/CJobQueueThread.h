#pragma once
// The one worker for requests: jobs run one at a time, in the order posted,
// on this thread; an idle worker sleeps on a wait condition (no polling).
// Its owner either stops it and waits (stopAndWait, bounded), or retires it:
// retire() returns at once, and the thread deletes itself once the job under
// way (a camera call), and with retire(false) the jobs still queued, have
// run. Receivers of its queued signals that go away with the owner get
// nothing after that.
// run() logs "<name> run begin" and "<name> run end".
//
// waitUntilQuiet() tells the end of the program when every worker of the
// process is idle and every retired one has ended, so that what they still
// hold can be released before the libraries they call go.
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
    // Stops and waits for the job under way, without a time limit: owners
    // that must not wait call stopAndWait() or retire() first.
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
    // Stops taking jobs (dropping the queued ones unless dropPending is
    // false) and hands the thread over to itself: it deletes itself when
    // run() has returned. The caller must not use the pointer afterwards.
    void retire(bool dropPending = true);
    // True once stop() or retire() was asked: a long job may end early.
    bool isStopping() const;

    // Waits (at most timeoutMs; < 0 without limit) until no worker of the
    // process has a job queued or running and every retired one has ended.
    // Objects released by those last jobs may still wait for deletion on
    // their own thread's event queue.
    static bool waitUntilQuiet(int timeoutMs);

protected:
    void run() override;
    // For a job that waits between steps: sleeps up to ms, but returns as
    // soon as stop() or retire() is asked. False when it was asked.
    bool pauseUnlessStopping(int ms);

private:
    // Counts this worker as busy in the process-wide tally while it has
    // work. Called with m_mutex held.
    void updateBusy();

    const QByteArray m_name;
    mutable QMutex m_mutex;
    QWaitCondition m_wake;
    QWaitCondition m_idle;
    std::deque<Job> m_jobs;
    bool m_bStop = false;
    bool m_bRunningJob = false;
    bool m_bCountedBusy = false;
    bool m_bRunActive = false;   // started and run() not yet at its end
    bool m_bRetired = false;
};
