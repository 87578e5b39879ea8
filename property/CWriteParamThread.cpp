#include "CWriteParamThread.h"

#include "Tavlog4cpp/TavLogMacros.h"

CWriteParamThread::CWriteParamThread(QObject* parent) : QThread(parent) {}

void CWriteParamThread::addJob(const std::function<void()>& job)
{
    QMutexLocker lock(&m_mutex);
    m_jobs.enqueue(job);
    m_wake.wakeOne();
}

void CWriteParamThread::stop()
{
    QMutexLocker lock(&m_mutex);
    m_bRunning = false;
    m_jobs.clear();
    m_wake.wakeOne();
}

int CWriteParamThread::pendingCount()
{
    QMutexLocker lock(&m_mutex);
    return m_jobs.size();
}

void CWriteParamThread::run()
{
    LOG_DEBUG("CWriteParamThread run begin");
    for (;;)
    {
        std::function<void()> job;
        {
            QMutexLocker lock(&m_mutex);
            while (m_bRunning && m_jobs.isEmpty())
                m_wake.wait(&m_mutex);
            if (!m_bRunning)
                break;
            job = m_jobs.dequeue();
        }
        job();
    }
    LOG_DEBUG("CWriteParamThread run end");
}
