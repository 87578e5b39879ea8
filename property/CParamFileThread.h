#pragma once
// What the two parameter-file workers share: the device, the file, a stop
// flag and the progress signal. The device's own connected flag is read
// between camera operations, so a camera that goes away stops the work.
#include <QString>
#include <QThread>
#include <atomic>

#include "CTavMessage.h"

class CParamFileThread : public QThread
{
    Q_OBJECT
public:
    CParamFileThread(const QString& path, QObject* parent = nullptr);

    QString path() const { return m_path; }
    // Ends the work at the next feature.
    void stop() { m_bStop = true; }
    bool isStopRequested() const { return m_bStop; }

signals:
    void progress(int done, int total);

protected:
    // False once stop() was called or the device is no longer connected.
    bool keepGoing(const CTavDevicePtr& device) const;

    QString m_path;
    std::atomic<bool> m_bStop{false};
};
