#include "CDeviceConnectThread.h"

#include <QDeadlineTimer>

CDeviceConnectThread::CDeviceConnectThread(QObject* parent) : QThread(parent) {}

CDeviceConnectThread::~CDeviceConnectThread()
{
    stop();
    wait();
}

bool CDeviceConnectThread::post(Job job)
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

bool CDeviceConnectThread::waitIdle(int timeoutMs)
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

bool CDeviceConnectThread::isBusy() const
{
    QMutexLocker locker(&m_mutex);
    return !m_jobs.empty() || m_bRunningJob;
}

void CDeviceConnectThread::stop()
{
    QMutexLocker locker(&m_mutex);
    m_bStop = true;
    m_wake.wakeAll();
}

void CDeviceConnectThread::run()
{
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
        // The job (and what it holds, possibly the last reference to the
        // device) goes before the worker counts as idle.
        job = nullptr;
        QMutexLocker locker(&m_mutex);
        m_bRunningJob = false;
        if (m_jobs.empty())
            m_idle.wakeAll();
    }
    QMutexLocker locker(&m_mutex);
    m_idle.wakeAll();
}
