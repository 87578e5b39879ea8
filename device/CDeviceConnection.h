#pragma once
// Where one device's connection stands, and the requests that move it. Every
// camera round trip of a request runs as a job on the device's worker
// (CDeviceConnectThread), one at a time in the order asked; the results come
// back queued to this object on the device's (GUI) thread, which alone
// changes the state. Each request has a generation number: the result of one
// that a later request overtook (a loss report) changes nothing.
#include <QDeadlineTimer>
#include <QObject>
#include <atomic>
#include <functional>

#include "CTavDevice.h"

class CDeviceConnectThread;

class CDeviceConnection : public QObject
{
    Q_OBJECT
public:
    // How long the end of a device waits for its idle worker to end.
    static const int kJoinIdleWorkerMs = 100;

    explicit CDeviceConnection(CTavDevice& device);
    // Ends the worker if endWorker() has not.
    ~CDeviceConnection() override;

    CTavDevice::EConnectionState state() const { return CTavDevice::EConnectionState(m_eState.load()); }
    bool isConnected() const { return m_bConnected; }
    bool isStreamRequested() const { return m_bStreamRequested; }
    bool isCloseAfterConnect() const { return m_bCloseAfterConnect; }
    // Worker: the camera's connection came up or went.
    void setConnected(bool connected) { m_bConnected = connected; }

    // The requests of CTavDevice (openDevice, closeDevice, openStream,
    // closeStream), with its rules.
    bool open(bool sync);
    bool close(bool sync);
    bool openStream();
    bool closeStream();
    // Results and the loss report, on the device's thread.
    void connectFinished(bool ok);
    void disconnectFinished(bool ok);
    void lost();

    // Queues a job that keeps the device alive until it has run; false
    // when the device is already going away.
    bool post(std::function<void()> job);
    bool isBusy() const;
    bool waitIdle(int timeoutMs);
    CDeviceConnectThread* worker() const { return m_worker; }
    // The device's end: with a teardown job, the worker runs it after what
    // is queued and then deletes itself; without, the idle worker is
    // stopped (bounded wait, kJoinIdleWorkerMs) and deleted.
    void endWorker(std::function<void()> teardown);

signals:
    // Worker to device: the stream did not start.
    void streamOpenFailed();

private slots:
    void onConnectResult(bool ok, quint64 generation);
    void onDisconnectResult(bool ok, quint64 generation);
    void onStreamOpenFailed();

private:
    // Synchronous calls: handles the worker's results here until the device
    // is at rest or the deadline passes.
    void settle(const QDeadlineTimer& deadline);
    bool isSettling() const;

    CTavDevice& m_device;
    CDeviceConnectThread* m_worker = nullptr;
    std::atomic<int> m_eState{CTavDevice::stateDisconnected};
    std::atomic<bool> m_bConnected{false};
    std::atomic<bool> m_bStreamRequested{false};
    // GUI thread only.
    bool m_bCloseAfterConnect = false;   // a close was asked for during the connection
    bool m_bLostCleanup = false;         // the worker tears down a lost connection
    quint64 m_nGeneration = 0;           // number of the request whose result is awaited
};
