#pragma once
// The worker of one device: every camera round trip of the device (connect
// and the steps after it, stream start and stop, disconnect, link settings)
// runs here, one job at a time in the order asked, so the GUI thread never
// waits on the camera. Results go back to the device by queued signals.
#include "CJobQueueThread.h"

class CDeviceConnectThread : public CJobQueueThread
{
    Q_OBJECT
public:
    explicit CDeviceConnectThread(QObject* parent = nullptr) : CJobQueueThread("CDeviceConnectThread", parent) {}

signals:
    // Result of a connection (with the steps after it) or a disconnection,
    // emitted on this thread; generation tells which request it answers.
    void device_connect(bool ok, quint64 generation);
    void device_disconnect(bool ok, quint64 generation);
};
