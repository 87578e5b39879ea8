#include "CJobQueueThread.h"

#include <QDeadlineTimer>

#include "Tavlog4cpp/TavLogMacros.h"

CJobQueueThread::CJobQueueThread(const char* name, QObject* parent) : QThread(parent), m_name(name) {}

CJobQueueThread::~CJobQueueThread()
{
    stop(true);
    wait();
}

bool CJobQueueThread::post(Job job)
{
    QMutexLocker locker(&m_mutex);
    if (m_bStop)
        return false;
    m_jobs.push_back(std::move(job));
    if (!isRunning())
        start(QThread::InheritPriority);
    m_wake.wakeOne();
    return true;
}

void CJobQueueThread::clearPending()
{
    std::deque<Job> dropped;
    {
        QMutexLocker locker(&m_mutex);
        dropped.swap(m_jobs);
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
        dropped.swap(m_jobs);
    m_wake.wakeAll();
    locker.unlock();
}

bool CJobQueueThread::stopAndWait(int timeoutMs, bool dropPending)
{
    stop(dropPending);
    return wait(QDeadlineTimer(timeoutMs));
}

void CJobQueueThread::retire()
{
    setParent(nullptr);
    stop(true);
    // finished() is emitted after isRunning() turns false (both under the
    // thread's own lock), so either the connection sees it or the check
    // below does. A second deleteLater() is harmless.
    connect(this, &QThread::finished, this, &QObject::deleteLater, Qt::DirectConnection);
    if (!isRunning())
        deleteLater();
}

bool CJobQueueThread::isStopping() const
{
    QMutexLocker locker(&m_mutex);
    return m_bStop;
}

void CJobQueueThread::run()
{
    LOG_DEBUG("%s run begin", m_name.constData());
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
        if (m_jobs.empty())
            m_idle.wakeAll();
    }
    {
        QMutexLocker locker(&m_mutex);
        m_bRunningJob = false;
        m_idle.wakeAll();
    }
    LOG_DEBUG("%s run end", m_name.constData());
}
