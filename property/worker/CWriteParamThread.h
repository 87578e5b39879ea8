#pragma once
// Runs the camera writes of a features page, in the order the user made
// them, so the GUI thread never waits on the camera. Each job returns what
// is to be done with its result on the GUI thread; that goes out by a
// queued signal, so a page that closed (and retired the thread) gets none.
#include <QMetaType>
#include <QMutex>
#include <QQueue>
#include <QWaitCondition>
#include <atomic>
#include <functional>

#include "CRetiringThread.h"

using CWriteContinuation = std::function<void()>;
Q_DECLARE_METATYPE(CWriteContinuation)

class CWriteParamThread : public CRetiringThread
{
    Q_OBJECT
public:
    // Runs on the worker; the continuation it returns (may be empty) runs
    // on the receiver's thread.
    using Job = std::function<CWriteContinuation()>;

    explicit CWriteParamThread(QObject* parent = nullptr);
    ~CWriteParamThread() override;

    void addJob(const Job& job);
    // Ends the loop once the job under way is done; pending jobs are dropped.
    void stop();
    int pendingCount();

signals:
    void jobDone(CWriteContinuation continuation);

protected:
    void run() override;
    void requestStop() override { stop(); }

private:
    QQueue<Job> m_jobs;
    QMutex m_mutex;
    QWaitCondition m_wake;
    std::atomic<bool> m_bRunning{true};
};
