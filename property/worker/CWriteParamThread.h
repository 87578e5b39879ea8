#pragma once
// Runs the camera writes of a features page, in the order the user made
// them, so the GUI thread never waits on the camera. Each job returns what
// is to be done with its result on the GUI thread; that goes out by a
// queued signal, so a page that closed (and retired the thread) gets none.
#include <QMetaType>
#include <functional>

#include "CJobQueueThread.h"

using CWriteContinuation = std::function<void()>;
Q_DECLARE_METATYPE(CWriteContinuation)

class CWriteParamThread : public CJobQueueThread
{
    Q_OBJECT
public:
    // Runs on the worker; the continuation it returns (may be empty) runs
    // on the receiver's thread.
    using WriteJob = std::function<CWriteContinuation()>;

    explicit CWriteParamThread(QObject* parent = nullptr);

    void addJob(const WriteJob& job);

signals:
    void jobDone(CWriteContinuation continuation);
};
