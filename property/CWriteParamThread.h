#pragma once
// Runs the camera writes of a features form, in the order the user made
// them, so the GUI thread never waits on the camera.
#include <QMutex>
#include <QQueue>
#include <QThread>
#include <QWaitCondition>
#include <atomic>
#include <functional>

class CWriteParamThread : public QThread
{
    Q_OBJECT
public:
    explicit CWriteParamThread(QObject* parent = nullptr);

    void addJob(const std::function<void()>& job);
    // Ends the loop once the job under way is done; pending jobs are dropped.
    void stop();
    int pendingCount();

protected:
    void run() override;

private:
    QQueue<std::function<void()>> m_jobs;
    QMutex m_mutex;
    QWaitCondition m_wake;
    std::atomic<bool> m_bRunning{true};
};
