#pragma once
// What the two parameter-file workers share: the file, the one-shot run of
// their work on a job-queue worker, and the progress signal. The device's
// own connected flag is read between camera operations, so a camera that
// goes away stops the work, as does stop(). An owner that goes away retires
// the worker: it stops at the next feature and deletes itself, and what it
// reports then goes nowhere.
#include <QString>

#include "CJobQueueThread.h"
#include "CTavMessage.h"

class CParamFileThread : public CJobQueueThread
{
    Q_OBJECT
public:
    QString path() const { return m_path; }
    // Starts the work; the thread ends when the work is done.
    void begin();

signals:
    void progress(int done, int total);

protected:
    // name: the class name for the thread's log lines.
    CParamFileThread(const char* name, const QString& path, QObject* parent);

    // The load or the save, on the worker.
    virtual void work() = 0;
    // False once stop() was asked or the device is no longer connected.
    bool keepGoing(const CTavDevicePtr& device) const;

    const QString m_path;
};
