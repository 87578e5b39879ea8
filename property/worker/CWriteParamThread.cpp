#include "CWriteParamThread.h"

#include "Tavlog4cpp/TavLogMacros.h"

namespace {
const int kContinuationTypeId = qRegisterMetaType<CWriteContinuation>("CWriteContinuation");
}

CWriteParamThread::CWriteParamThread(QObject* parent) : CRetiringThread(parent)
{
    Q_UNUSED(kContinuationTypeId);
}

CWriteParamThread::~CWriteParamThread()
{
    stop();
    wait();
}

void CWriteParamThread::addJob(const Job& job)
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
        Job job;
        {
            QMutexLocker lock(&m_mutex);
            while (m_bRunning && m_jobs.isEmpty())
                m_wake.wait(&m_mutex);
            if (!m_bRunning)
                break;
            job = m_jobs.dequeue();
        }
        const CWriteContinuation continuation = job();
        if (continuation)
            emit jobDone(continuation);
    }
    LOG_DEBUG("CWriteParamThread run end");
}
