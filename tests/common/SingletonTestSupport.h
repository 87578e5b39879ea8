#pragma once
// The process-wide objects in a test, made and ended by the application's own
// singleton owner, and finding devices through the device manager. For tests
// that link the device layer.
#include <QSignalSpy>
#include <QString>
#include <QtTest>
#include <memory>

#include "CDeviceManager.h"
#include "CDiscoveryDevicesThread.h"
#include "CSingletonOwner.h"
#include "CTavDevice.h"

// The owner, with the configuration files in the test's own home (CTest
// sets HOME per test). Make it after the application object.
inline std::unique_ptr<CSingletonOwner> makeSingletons()
{
    if (qEnvironmentVariableIsEmpty("LUMIDOR_HOME"))
        qputenv("LUMIDOR_HOME", qgetenv("HOME"));
    return std::make_unique<CSingletonOwner>();
}

// The device whose camera carries the serial number, or null.
inline CTavDevicePtr findDeviceBySerial(const QString& serial)
{
    const QMap<QString, CTavDevicePtr> devices = CDeviceManager::getInstance()->getAllDevices();
    for (const CTavDevicePtr& device : devices)
    {
        const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera> camera = device->getDevice();
        if (camera && QString::fromLocal8Bit(camera->getSerialNumber().c_str()) == serial)
            return device;
    }
    return CTavDevicePtr();
}

// Asks for a discovery pass and waits until the manager has rebuilt its map.
// The worker drops a request that comes while a pass runs: wait for it to be
// idle first.
inline bool rediscover(const QString& ip = QString(), int timeoutMs = 20000)
{
    CDeviceManager* manager = CDeviceManager::getInstance();
    CDiscoveryDevicesThread* worker = CDiscoveryDevicesThread::getInstance();
    if (!QTest::qWaitFor([worker]() { return worker->isFirstDiscoveryFinished() && !worker->isDisconvrying(); },
                         timeoutMs))
        return false;
    QSignalSpy spy(manager, &CDeviceManager::discoveryDevicesFinished);
    manager->refreshDeviceMap(ip, 0);
    return spy.wait(timeoutMs);
}
