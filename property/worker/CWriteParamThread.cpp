#include "CWriteParamThread.h"

CWriteParamThread::CWriteParamThread(QObject* parent) : CJobQueueThread("CWriteParamThread", parent)
{
    qRegisterMetaType<CWriteContinuation>("CWriteContinuation");
}

void CWriteParamThread::addJob(const WriteJob& job)
{
    post([this, job]() {
        const CWriteContinuation continuation = job();
        if (continuation)
            emit jobDone(continuation);
    });
}
