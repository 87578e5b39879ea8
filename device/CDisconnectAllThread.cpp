#include "CDisconnectAllThread.h"

#include <QElapsedTimer>
#include <QMetaObject>
#include <algorithm>
#include <memory>

#include "CDeviceManager.h"
#include "CSingletonSlot.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/TavLogMacros.h"

CDisconnectAllThread* CDisconnectAllThread::getInstance()
{
    // The devices it closes come from the manager: the manager comes first.
    if (!CDeviceManager::getInstance())
        return nullptr;
    return CSingletonSlot<CDisconnectAllThread>::instance([]() { return new CDisconnectAllThread(); });
}

CDisconnectAllThread::CDisconnectAllThread() : CJobQueueThread("CDisconnectAllThread")
{
    setClock(nullptr, nullptr);
}

void CDisconnectAllThread::setClock(std::function<qint64()> now, std::function<bool(int)> pause)
{
    if (!now || !pause)
    {
        auto clock = std::make_shared<QElapsedTimer>();
        clock->start();
        now = [clock]() { return clock->elapsed(); };
        pause = [this](int ms) { return pauseUnlessStopping(ms); };
    }
    m_now = std::move(now);
    m_pause = std::move(pause);
}

void CDisconnectAllThread::closeAll()
{
    QList<CTavDevicePtr> devices;
    if (CDeviceManager* manager = CDeviceManager::getInstance())
        devices = manager->getAllDevices().values();
    post([this, devices]() { closeAllOnWorker(devices); });
}

void CDisconnectAllThread::closeAllOnWorker(const QList<CTavDevicePtr>& devices)
{
    emit closeAllBegin();
    for (const CTavDevicePtr& device : devices)
    {
        // The device's state belongs to its own (GUI) thread, which also
        // handles its connection results and loss reports: the close is
        // asked for there and runs on the device's own worker, so all
        // devices close side by side. A device still connecting closes
        // once its connection has finished.
        if (device->isActive())
            QMetaObject::invokeMethod(
                device.get(),
                [device]() {
                    const CTavDevice::EConnectionState state = device->connectionState();
                    if (state == CTavDevice::stateConnected || state == CTavDevice::stateConnecting)
                        device->closeDevice(false);
                },
                Qt::QueuedConnection);
    }

    auto activeCount = [&devices]() {
        return int(std::count_if(devices.cbegin(), devices.cend(),
                                 [](const CTavDevicePtr& device) { return device->isActive(); }));
    };
    const qint64 start = m_now();
    while (activeCount() != 0 && m_now() - start < kTimeoutMs)
    {
        if (!m_pause(kPollMs))
            break;
    }
    if (activeCount() != 0 && !isStopping())
        LOG_WARN("CDisconnectAllThread gave up after %d ms; %d device(s) still open", kTimeoutMs, activeCount());
    emit closeAllFinished();
}
