#pragma once
// What the two parameter-file workers share: the file, the run of their
// work on a job-queue worker, the progress signal and cancelling. The
// device's own connected flag is read between camera operations, so a
// camera that goes away stops the work, as does stop(). An owner that goes
// away retires the worker: it stops at the next feature and deletes itself,
// and what it reports then goes nowhere.
//
// The user's cancel races with the end of the work; exactly one of them
// wins. cancel() wins until the work commits (a save puts its file in
// place, a load reports its result); after that cancel() returns false and
// the result is on its way. A cancelled worker reports nothing and writes
// nothing more.
#include <QString>
#include <atomic>

#include "CJobQueueThread.h"
#include "CTavMessage.h"

class CParamFileThread : public CJobQueueThread
{
    Q_OBJECT
public:
    QString path() const { return m_path; }
    // Starts the work.
    void begin();
    // True when the work will stop at its next step without a result; false
    // when it has already committed (its result follows) or ended.
    bool cancel();
    bool isCancelled() const { return m_state.load() == stateCancelled; }

signals:
    void progress(int done, int total);

protected:
    // name: the class name for the thread's log lines.
    CParamFileThread(const char* name, const QString& path, QObject* parent);

    // The first step of the work, on the worker; returns true when the work
    // is done (the thread then ends), false when a further step was or
    // will be posted.
    virtual bool work() = 0;
    // Runs a further step; false when the worker no longer takes any.
    bool postStep(const std::function<bool()>& step);
    // False once stop() or cancel() was asked or the device is no longer connected.
    bool keepGoing(const CTavDevicePtr& device) const;
    // The point of no return: false when the user cancelled first.
    bool commit();
    // Why keepGoing() turned false: lost when the camera went away, else
    // stopped (a stop asked for). A cancelled worker reports nothing.
    static QString stopReason(const CTavDevicePtr& device, const QString& stopped, const QString& lost);

    const QString m_path;

private:
    enum EState
    {
        stateRunning,
        stateCancelled,
        stateCommitted
    };
    std::atomic<int> m_state{stateRunning};
};
