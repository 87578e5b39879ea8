#include "CDisconnectAllThread.h"

#include <QElapsedTimer>
#include <QMetaObject>
#include <QMutex>

#include "CDeviceManager.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/TavLogMacros.h"

namespace {
QMutex g_instanceMutex;
CDisconnectAllThread* g_instance = nullptr;
bool g_shutDown = false;
}

CDisconnectAllThread* CDisconnectAllThread::getInstance()
{
    QMutexLocker locker(&g_instanceMutex);
    if (!g_instance && !g_shutDown)
        g_instance = new CDisconnectAllThread();
    return g_instance;
}

CDisconnectAllThread* CDisconnectAllThread::existingInstance()
{
    QMutexLocker locker(&g_instanceMutex);
    return g_instance;
}

void CDisconnectAllThread::shutdownInstance(int waitMs)
{
    CDisconnectAllThread* instance = nullptr;
    {
        QMutexLocker locker(&g_instanceMutex);
        g_shutDown = true;
        instance = g_instance;
        g_instance = nullptr;
    }
    if (!instance)
        return;
    if (instance->wait(static_cast<unsigned long>(qMax(0, waitMs))))
    {
        delete instance;
        return;
    }
    // Still polling a device that does not close: it ends by its own time
    // limit and deletes itself then.
    LOG_WARN("CDisconnectAllThread still running at shutdown; left to finish");
    connect(instance, &QThread::finished, instance, &QObject::deleteLater);
}

CDisconnectAllThread::CDisconnectAllThread(QObject* parent) : QThread(parent)
{
    setClock(nullptr, nullptr);
}

CDisconnectAllThread::~CDisconnectAllThread()
{
    wait();
}

void CDisconnectAllThread::setClock(std::function<qint64()> now, std::function<void(int)> pause)
{
    if (!now || !pause)
    {
        // Back to the monotonic clock.
        auto clock = std::make_shared<QElapsedTimer>();
        clock->start();
        now = [clock]() { return clock->elapsed(); };
        pause = [](int ms) { QThread::msleep(static_cast<unsigned long>(ms)); };
    }
    m_now = std::move(now);
    m_pause = std::move(pause);
}

void CDisconnectAllThread::run()
{
    LOG_DEBUG("CDisconnectAllThread run begin");
    emit closeAllBegin();

    CDeviceManager* manager = CDeviceManager::existingInstance();
    if (manager)
    {
        const QMap<QString, CTavDevicePtr> devices = manager->getAllDevices();
        for (const CTavDevicePtr& device : devices)
        {
            // The device's state belongs to its own (GUI) thread, which also
            // handles its connection results and loss reports: the close is
            // asked for there and runs on the device's own worker, so all
            // devices close side by side. A device still connecting closes
            // once its connection has finished.
            if (device && device->connectionState() != CTavDevice::stateDisconnected)
                QMetaObject::invokeMethod(
                    device.get(),
                    [device]() {
                        const CTavDevice::EConnectionState state = device->connectionState();
                        if (state == CTavDevice::stateConnected || state == CTavDevice::stateConnecting)
                            device->closeDevice(false);
                    },
                    Qt::QueuedConnection);
        }

        const qint64 start = m_now();
        while (manager->getActiveDeviceCount() != 0 && m_now() - start < kTimeoutMs)
            m_pause(kPollMs);
        if (manager->getActiveDeviceCount() != 0)
            LOG_WARN("CDisconnectAllThread gave up after %d ms; %d device(s) still open", kTimeoutMs,
                     manager->getActiveDeviceCount());
    }

    emit closeAllFinished();
    LOG_DEBUG("CDisconnectAllThread run end");
}
