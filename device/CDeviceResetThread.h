#pragma once
// Restores a camera's factory user set, after a short delay that lets the
// caller's wait dialog come up.
#include <QThread>

#include "CTavMessage.h"

class CDeviceResetThread : public QThread
{
    Q_OBJECT
public:
    explicit CDeviceResetThread(QObject* parent = nullptr);
    ~CDeviceResetThread() override;

    void setDevice(CTavDevicePtr device);

signals:
    // 1 when the user set was loaded, 0 otherwise.
    void device_reset(int result);

protected:
    void run() override;

private:
    CTavDevicePtr m_device;
};
