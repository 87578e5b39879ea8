#include "CDisconnectAllThread.h"

#include <QElapsedTimer>
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
        if (device && device->isConnected())
            device->closeDevice(false);
    }

    QElapsedTimer timer;
    timer.start();
    while (manager->getOpenedDeviceCount() != 0 && timer.elapsed() < kTimeoutMs)
        msleep(kPollMs);

    emit closeAllFinished();
    LOG_DEBUG("CDisconnectAllThread run end");
}
