#include "CDisconnectAllThread.h"

#include <QElapsedTimer>
#include <QMetaObject>
#include <QMutex>
#include <memory>

#include "CDeviceManager.h"
#include "CTavDevice.h"
#include "Tavlog4cpp/TavLogMacros.h"

CDisconnectAllThread* CDisconnectAllThread::getInstance()
{
    static QMutex mutex;
    static std::unique_ptr<CDisconnectAllThread> instance;
    QMutexLocker locker(&mutex);
    if (!instance)
        instance.reset(new CDisconnectAllThread());
    return instance.get();
}

CDisconnectAllThread::CDisconnectAllThread(QObject* parent) : QThread(parent) {}

CDisconnectAllThread::~CDisconnectAllThread()
{
    wait();
}

void CDisconnectAllThread::run()
{
    LOG_DEBUG("CDisconnectAllThread run begin");
    emit closeAllBegin();

    CDeviceManager* manager = CDeviceManager::getInstance();
    const QMap<QString, CTavDevicePtr> devices = manager->getAllDevices();
    for (const CTavDevicePtr& device : devices)
    {
        // The device's state belongs to its own (GUI) thread, which also
        // handles its connection results and loss reports: the close runs
        // there. closeDevice(false) only starts the disconnection, so
        // nothing needs to wait for the call; the poll below waits for the
        // devices to close.
        if (device && device->isConnected())
            QMetaObject::invokeMethod(
                device.get(),
                [device]() {
                    if (device->isConnected())
                        device->closeDevice(false);
                },
                Qt::QueuedConnection);
    }

    QElapsedTimer timer;
    timer.start();
    while (manager->getOpenedDeviceCount() != 0 && timer.elapsed() < kTimeoutMs)
        msleep(kPollMs);

    emit closeAllFinished();
    LOG_DEBUG("CDisconnectAllThread run end");
}
