#pragma once
// What the two parameter-file workers share: the device, the file, a stop
// flag and the progress signal. The device's own connected flag is read
// between camera operations, so a camera that goes away stops the work.
// An owner that goes away retires the worker: it stops at the next feature
// and deletes itself, and what it reports then goes nowhere.
#include <QString>
#include <atomic>

#include "CRetiringThread.h"

#include "CTavMessage.h"

class CParamFileThread : public CRetiringThread
{
    Q_OBJECT
public:
    CParamFileThread(const QString& path, QObject* parent = nullptr);
    ~CParamFileThread() override;

    QString path() const { return m_path; }
    // Ends the work at the next feature.
    void stop() { m_bStop = true; }
    bool isStopRequested() const { return m_bStop; }

signals:
    void progress(int done, int total);

protected:
    // False once stop() was called or the device is no longer connected.
    bool keepGoing(const CTavDevicePtr& device) const;
    void requestStop() override { stop(); }

    QString m_path;
    std::atomic<bool> m_bStop{false};
};
