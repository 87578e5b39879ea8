#include "CJobQueueThread.h"

#include <QDeadlineTimer>
#include <chrono>
#include <condition_variable>
#include <mutex>

#include "Tavlog4cpp/TavLogMacros.h"

namespace {
// Workers with work (busy or retired and still running), process-wide.
struct SWorkTally
{
    std::mutex mutex;
    std::condition_variable quiet;
    int count = 0;

    void add(int delta)
    {
        std::lock_guard<std::mutex> locker(mutex);
        count += delta;
        if (count == 0)
            quiet.notify_all();
    }
};

SWorkTally& tally()
{
    // Never destroyed: retired threads may still report while the program
    // ends.
    static SWorkTally* instance = new SWorkTally;
    return *instance;
}
} // namespace

CJobQueueThread::CJobQueueThread(const char* name, QObject* parent) : QThread(parent), m_name(name) {}

CJobQueueThread::~CJobQueueThread()
{
    stop(true);
    wait();
    QMutexLocker locker(&m_mutex);
    m_bRunningJob = false;
    updateBusy();
}

void CJobQueueThread::updateBusy()
{
    const bool busy = !m_jobs.empty() || m_bRunningJob;
    if (busy == m_bCountedBusy)
        return;
    m_bCountedBusy = busy;
    tally().add(busy ? 1 : -1);
}

bool CJobQueueThread::post(Job job)
{
    QMutexLocker locker(&m_mutex);
    if (m_bStop)
        return false;
    m_jobs.push_back(std::move(job));
    updateBusy();
    if (!m_bRunActive)
    {
        m_bRunActive = true;
        start(QThread::InheritPriority);
    }
    m_wake.wakeOne();
    return true;
}

void CJobQueueThread::clearPending()
{
    std::deque<Job> dropped;
    {
        QMutexLocker locker(&m_mutex);
        dropped.swap(m_jobs);
        updateBusy();
        if (!m_bRunningJob)
            m_idle.wakeAll();
    }
    // What the dropped jobs hold is released outside the lock.
}

bool CJobQueueThread::waitIdle(int timeoutMs)
{
    QDeadlineTimer deadline(timeoutMs < 0 ? QDeadlineTimer::Forever : QDeadlineTimer(timeoutMs));
    QMutexLocker locker(&m_mutex);
    while (!m_jobs.empty() || m_bRunningJob)
    {
        if (!m_idle.wait(&m_mutex, deadline))
            return m_jobs.empty() && !m_bRunningJob;
    }
    return true;
}

bool CJobQueueThread::isBusy() const
{
    QMutexLocker locker(&m_mutex);
    return !m_jobs.empty() || m_bRunningJob;
}

int CJobQueueThread::pendingCount() const
{
    QMutexLocker locker(&m_mutex);
    return static_cast<int>(m_jobs.size());
}

void CJobQueueThread::stop(bool dropPending)
{
    std::deque<Job> dropped;
    QMutexLocker locker(&m_mutex);
    m_bStop = true;
    if (dropPending)
    {
        dropped.swap(m_jobs);
        updateBusy();
        if (!m_bRunningJob)
            m_idle.wakeAll();
    }
    m_wake.wakeAll();
    locker.unlock();
    // The dropped jobs are released here, outside the lock.
}

bool CJobQueueThread::stopAndWait(int timeoutMs, bool dropPending)
{
    stop(dropPending);
    return wait(QDeadlineTimer(timeoutMs));
}

void CJobQueueThread::retire(bool dropPending)
{
    setParent(nullptr);
    stop(dropPending);
    QMutexLocker locker(&m_mutex);
    m_bRetired = true;
    if (m_bRunActive)
    {
        // The run under way counts as work until its end hands the thread
        // over for deletion (see run()).
        tally().add(1);
        return;
    }
    locker.unlock();
    deleteLater();
}

bool CJobQueueThread::isStopping() const
{
    QMutexLocker locker(&m_mutex);
    return m_bStop;
}

bool CJobQueueThread::pauseUnlessStopping(int ms)
{
    QDeadlineTimer deadline(ms);
    QMutexLocker locker(&m_mutex);
    while (!m_bStop)
    {
        // post() wakes the same condition too: wait on until the deadline.
        if (!m_wake.wait(&m_mutex, deadline))
            break;
    }
    return !m_bStop;
}

bool CJobQueueThread::waitUntilQuiet(int timeoutMs)
{
    SWorkTally& t = tally();
    std::unique_lock<std::mutex> locker(t.mutex);
    auto isQuiet = [&t]() { return t.count == 0; };
    if (timeoutMs < 0)
    {
        t.quiet.wait(locker, isQuiet);
        return true;
    }
    return t.quiet.wait_for(locker, std::chrono::milliseconds(timeoutMs), isQuiet);
}

void CJobQueueThread::run()
{
    // Logged under the owner's name, as its own begin and end lines.
    TAVLOG_SRC(TAVLOG_LEVEL_DEBUG, m_name.constData(), "%s run begin", m_name.constData());
    for (;;)
    {
        Job job;
        {
            QMutexLocker locker(&m_mutex);
            while (m_jobs.empty() && !m_bStop)
                m_wake.wait(&m_mutex);
            if (m_jobs.empty())
                break;
            job = std::move(m_jobs.front());
            m_jobs.pop_front();
            m_bRunningJob = true;
        }
        job();
        // The job (and what it holds, possibly the last reference to a
        // device) goes before the worker counts as idle.
        job = nullptr;
        QMutexLocker locker(&m_mutex);
        m_bRunningJob = false;
        updateBusy();
        if (m_jobs.empty())
            m_idle.wakeAll();
    }
    TAVLOG_SRC(TAVLOG_LEVEL_DEBUG, m_name.constData(), "%s run end", m_name.constData());
    QMutexLocker locker(&m_mutex);
    m_bRunningJob = false;
    updateBusy();
    m_idle.wakeAll();
    m_bRunActive = false;
    if (!m_bRetired)
        return;
    // Retired: the thread is handed over for deletion on its object's
    // thread, whose destructor waits out the last instructions of this one.
    // Nothing of this object is touched after that.
    locker.unlock();
    deleteLater();
    tally().add(-1);
}
