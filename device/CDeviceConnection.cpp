#include "CDeviceConnection.h"

#include <QCoreApplication>

#include "CDeviceConnectThread.h"
#include "CDeviceStream.h"
#include "Tavlog4cpp/TavLogMacros.h"

CDeviceConnection::CDeviceConnection(CTavDevice& device) : m_device(device)
{
    m_worker = new CDeviceConnectThread(this);
    connect(m_worker, &CDeviceConnectThread::device_connect, this, &CDeviceConnection::onConnectResult,
            Qt::QueuedConnection);
    connect(m_worker, &CDeviceConnectThread::device_disconnect, this, &CDeviceConnection::onDisconnectResult,
            Qt::QueuedConnection);
    connect(this, &CDeviceConnection::streamOpenFailed, this, &CDeviceConnection::onStreamOpenFailed,
            Qt::QueuedConnection);
}

CDeviceConnection::~CDeviceConnection()
{
    if (m_worker)
        endWorker(nullptr);
}

bool CDeviceConnection::post(std::function<void()> job)
{
    // The job holds the device: a device dropped by the manager meanwhile
    // lives until its worker has finished with it. A device whose last
    // reference is gone already is being deleted: its end closes what is open.
    const CTavDevicePtr keep = m_device.self();
    if (!keep || !m_worker)
        return false;
    return m_worker->post([keep, job]() { job(); });
}

bool CDeviceConnection::isBusy() const
{
    return m_worker && m_worker->isBusy();
}

bool CDeviceConnection::waitIdle(int timeoutMs)
{
    return !m_worker || m_worker->waitIdle(timeoutMs);
}

void CDeviceConnection::endWorker(std::function<void()> teardown)
{
    CDeviceConnectThread* worker = m_worker;
    m_worker = nullptr;
    if (!worker)
        return;
    disconnect(worker, nullptr, this, nullptr);
    if (teardown)
    {
        worker->post(std::move(teardown));
        worker->retire(false);
        return;
    }
    // Bounded wait (kJoinIdleWorkerMs): no job holds the device any more,
    // so the worker is idle or just letting go of its last job.
    if (worker->stopAndWait(kJoinIdleWorkerMs, true))
        delete worker;
    else
        worker->retire();
}

bool CDeviceConnection::isSettling() const
{
    const CTavDevice::EConnectionState s = state();
    return s == CTavDevice::stateConnecting || s == CTavDevice::stateDisconnecting;
}

void CDeviceConnection::settle(const QDeadlineTimer& deadline)
{
    // What the worker queued for this thread is delivered here, in the
    // order it was sent: results and the bus messages before them alike, so
    // that observers see the messages in order. A result may start a further
    // request (a close asked for during the connection).
    while (isSettling() && m_worker)
    {
        if (!m_worker->waitIdle(int(qMax<qint64>(0, deadline.remainingTime()))))
        {
            LOG_WARN("device worker still busy after %d ms; the result follows later. [%s]", CTavDevice::kSyncWaitMs,
                     m_device.getDeviceKey().toLocal8Bit().constData());
            return;
        }
        // A job emits its result before it ends: once the worker is idle,
        // the result is queued and delivered here.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        if (!m_worker->isBusy())
            return;
    }
}

bool CDeviceConnection::open(bool sync)
{
    const QByteArray key = m_device.getDeviceKey().toLocal8Bit();
    LOG_DEBUG("begin to openDevice. [%s]", key.constData());
    if (!m_device.getDevice())
    {
        LOG_ERROR("m_spCamera.get() is NULL!");
        return false;
    }
    switch (state())
    {
    case CTavDevice::stateConnecting:
        // The worker is still on the previous attempt.
        return false;
    case CTavDevice::stateConnected:
        LOG_WARN("device is already connected. [%s]", key.constData());
        return false;
    case CTavDevice::stateDisconnecting:
        LOG_WARN("device is still closing, openDevice ignored. [%s]", key.constData());
        return false;
    case CTavDevice::stateDisconnected:
        break;
    }

    m_eState = CTavDevice::stateConnecting;
    m_bCloseAfterConnect = false;
    const quint64 generation = ++m_nGeneration;
    m_device.emitStatus(MSG_DEVICE_CONNECTING);

    const CDeviceLinkSettings link = CDeviceLinkSettings::fromConfiguration();
    CDeviceConnectThread* worker = m_worker;
    post([this, worker, link, generation]() {
        const bool ok = m_device.connectOnWorker(link);
        emit worker->device_connect(ok, generation);
    });
    if (!sync)
        return true;
    // Bounded wait (kSyncWaitMs) for the connection and its steps.
    settle(QDeadlineTimer(CTavDevice::kSyncWaitMs));
    return state() == CTavDevice::stateConnected;
}

void CDeviceConnection::onConnectResult(bool ok, quint64 generation)
{
    // A result of a request that a loss report overtook changes nothing.
    if (generation != m_nGeneration || state() != CTavDevice::stateConnecting)
        return;
    m_device.onDeviceConnect(ok);
}

void CDeviceConnection::connectFinished(bool ok)
{
    if (!ok)
    {
        m_eState = CTavDevice::stateDisconnected;
        m_bCloseAfterConnect = false;
        m_device.emitStatus(MSG_DEVICE_CONNECT_FAILED);
        return;
    }
    m_eState = CTavDevice::stateConnected;
    if (m_bCloseAfterConnect)
    {
        m_bCloseAfterConnect = false;
        LOG_DEBUG("carry out the close asked for during the connection. [%s]",
                  m_device.getDeviceKey().toLocal8Bit().constData());
        close(false);
    }
}

bool CDeviceConnection::close(bool sync)
{
    const QByteArray key = m_device.getDeviceKey().toLocal8Bit();
    LOG_DEBUG("begin to closeDevice. [%s]", key.constData());
    // Bounded wait (kSyncWaitMs) for synchronous callers, whichever way the
    // close goes.
    const QDeadlineTimer deadline(CTavDevice::kSyncWaitMs);
    switch (state())
    {
    case CTavDevice::stateDisconnected:
        LOG_WARN("device is not open, closeDevice ignored. [%s]", key.constData());
        return false;
    case CTavDevice::stateDisconnecting:
        LOG_WARN("device is already closing. [%s]", key.constData());
        return false;
    case CTavDevice::stateConnecting:
        // Carried out as soon as the connection has finished.
        m_bCloseAfterConnect = true;
        LOG_DEBUG("close asked for during the connection; it follows the connection. [%s]", key.constData());
        if (!sync)
            return true;
        // A failed connection leaves nothing to close; a successful one
        // starts the close when its result is handled.
        settle(deadline);
        return state() == CTavDevice::stateDisconnected;
    case CTavDevice::stateConnected:
        break;
    }

    m_eState = CTavDevice::stateDisconnecting;
    m_bStreamRequested = false;
    const quint64 generation = ++m_nGeneration;
    CDeviceConnectThread* worker = m_worker;
    const bool posted = post([this, worker, generation]() {
        // Announced from the worker, so that it follows whatever the worker
        // reported before (a stream that opened just now).
        m_device.emitStatus(MSG_DEVICE_DISCONNECTING);
        m_device.closeStreamOnWorker();
        const bool ok = m_device.disconnectOnWorker();
        emit worker->device_disconnect(ok, generation);
    });
    if (!posted)
        return false;   // the device is going away: its end closes the camera
    if (sync)
        settle(deadline);
    LOG_DEBUG("end to closeDevice. [%s]", key.constData());
    return true;
}

void CDeviceConnection::onDisconnectResult(bool ok, quint64 generation)
{
    if (generation != m_nGeneration || state() != CTavDevice::stateDisconnecting)
        return;
    m_device.onDeviceDisConnect(ok);
}

void CDeviceConnection::disconnectFinished(bool ok)
{
    m_eState = CTavDevice::stateDisconnected;
    m_bStreamRequested = false;
    if (m_bLostCleanup)
    {
        // The loss has been reported (message 6); nothing more to say.
        m_bLostCleanup = false;
        return;
    }
    if (!ok)
        LOG_ERROR("disconnect device fail. [%s]", m_device.getDeviceKey().toLocal8Bit().constData());
    m_device.emitStatus(MSG_DEVICE_DISCONNECTED);
}

void CDeviceConnection::lost()
{
    // A late report after the device was closed, or a second one, changes nothing.
    if (!m_bConnected || m_bLostCleanup || state() == CTavDevice::stateDisconnected)
        return;

    LOG_WARN("Device offline.Device Key[%s]", m_device.getDeviceKey().toLocal8Bit().constData());
    if (state() == CTavDevice::stateDisconnecting)
    {
        // A close is already taking the connection down; it ends with
        // message 5 as asked.
        return;
    }

    m_bConnected = false;
    m_bStreamRequested = false;
    m_bCloseAfterConnect = false;
    m_bLostCleanup = true;
    m_eState = CTavDevice::stateDisconnecting;
    const quint64 generation = ++m_nGeneration;
    m_device.emitStatus(MSG_DEVICE_OFFLINE);

    // The dead connection is taken down on the worker, after whatever it is
    // doing: stopping the stream of a vanished camera waits for its
    // timeouts, and the library must forget the connection before the
    // camera can be connected again.
    CDeviceConnectThread* worker = m_worker;
    post([this, worker, generation]() {
        const bool ok = m_device.disconnectOnWorker();
        emit worker->device_disconnect(ok, generation);
    });
}

bool CDeviceConnection::openStream()
{
    LOG_DEBUG("begin to open a stream channel.");
    const CTavDevice::EConnectionState s = state();
    if (!m_bConnected || (s != CTavDevice::stateConnected && s != CTavDevice::stateConnecting))
    {
        LOG_ERROR("open stream error. isConnected: %d.", int(m_bConnected.load()));
        return false;
    }
    if (m_bStreamRequested)
    {
        LOG_ERROR("camera is already grabbing.");
        return false;
    }
    m_bStreamRequested = true;
    // The save throttle is armed here, on the GUI thread.
    m_device.m_stream->thread()->Init();
    const CDeviceLinkSettings settings = CDeviceLinkSettings::fromConfiguration();
    return post([this, settings]() {
        if (!m_device.openStreamOnWorker(settings))
            emit streamOpenFailed();
    });
}

void CDeviceConnection::onStreamOpenFailed()
{
    m_bStreamRequested = false;
}

bool CDeviceConnection::closeStream()
{
    if (!m_device.getStreamSource())
    {
        LOG_DEBUG("begin closeStream.");
        LOG_ERROR("m_ptrStream.get() is NULL.");
        return false;
    }
    m_bStreamRequested = false;
    return post([this]() { m_device.closeStreamOnWorker(); });
}
