#include "CWriteParamThread.h"

namespace {
const int kContinuationTypeId = qRegisterMetaType<CWriteContinuation>("CWriteContinuation");
}

CWriteParamThread::CWriteParamThread(QObject* parent) : CJobQueueThread("CWriteParamThread", parent)
{
    Q_UNUSED(kContinuationTypeId);
}

void CWriteParamThread::addJob(const WriteJob& job)
{
    post([this, job]() {
        const CWriteContinuation continuation = job();
        if (continuation)
            emit jobDone(continuation);
    });
}
